#include "foundation/login.h"

#include "foundation/encryption.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/parsing.h"

namespace {

constexpr const char* masterPassword = "tamrosi";
constexpr int shortestPassword = 3;

bool sameText(const QString& a, const QString& b) { return trim(a).toUpper() == trim(b).toUpper(); }

bool passwordFits(const QString& stored, const QString& typed) {
    return trim(typed) == DecryptText(trim(stored));
}

std::optional<Fault> faultOf(const PasswordChange& change) {
    if (change.newPassword != change.confirmPassword)
        return Fault{exclamation("Password does not match!",
                                 "Password not accepted! Please confirm by retyping password."),
                     "txtNewPassword"};
    if (change.newPassword.size() < shortestPassword)
        return Fault{exclamation("Password Error!", "Password should be minimum of 3 characters!"),
                     "txtNewPassword"};
    if (!passwordLetsIn(change.newPassword))
        return Fault{exclamation("Password Error!",
                                 "This password would not let you in again! Please choose another one."),
                     "txtNewPassword"};
    return {};
}

}  // namespace

std::optional<QString> ValidateLogin(Connection& store, const QString& userName, const QString& password) {
    if (sameText(userName, masterUserCode) && sameText(password, masterPassword)) return "ADMIN";
    Recordset users = store.execute("SELECT * FROM tblUserMaster");
    for (; !users.eof(); users.moveNext())
        if (sameText(users.text("UserCode"), userName) && passwordFits(users.text("Password"), password))
            return users.trimmed("FullName");
    return {};
}

QString sessionUserCode(Connection& store, const QString& userName) {
    if (RecordFound(store, "tblUserMaster", "UserCode", userName)) return userName;
    for (Recordset users = store.execute("SELECT UserCode FROM tblUserMaster"); !users.eof();
         users.moveNext())
        if (sameText(users.text("UserCode"), userName)) return users.trimmed("UserCode");
    return userName;
}

bool passwordLetsIn(const QString& password) { return passwordFits(EncryptText(password), password); }

Outcome changePassword(Connection& store, const PasswordChange& change) {
    if (const auto fault = faultOf(change)) return *fault;
    Recordset user = store.openTable("tblUserMaster", {"WHERE UserCode = ?", {trimRight(change.userCode)}});
    if (user.eof()) return Done{{exclamation("Error!", "User Unknown, Please Select User ID Properly!")}};
    if (!passwordFits(user.text("Password"), change.oldPassword))
        return Fault{critical("Invalid!", "Invalid Old Password, Try Again!"), "txtOldPassword"};
    user.set("Password", EncryptText(change.newPassword));
    user.update();
    return Done{{information("Thank You!", "Password Successfully Changed!")}};
}

Boxes setClock(std::optional<QDate> date, std::optional<QTime> time) {
    if (!date && !time) return {};
    const QDateTime now = Clock::now();
    const QDateTime moment(date.value_or(now.date()), time.value_or(now.time()));
    if (Clock::setSystemClock(moment)) {
        Clock::clearOffset();
        return {};
    }
    Clock::setNow(moment);
    if (std::exchange(session().ClockOffsetTold, true)) return {};
    return {information("Date and Time",
                        "This computer does not let the program change its clock. The date and time that you "
                        "confirmed hold within this program until you exit from it.")};
}
