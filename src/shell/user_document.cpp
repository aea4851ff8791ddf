#include "shell/user_document.h"

#include "foundation/encryption.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

#include <optional>

namespace {
using Check = std::optional<Fault>;

constexpr const char* administrator = "ADMIN";
constexpr int shortestPassword = 3;
// Who may open the users again: the menu Administration, and in it the user profiles.
constexpr int keptRights[] = {300, 301};

bool isAdministrator(const QString& code) { return trim(code).toUpper() == administrator; }

// A password that the scrambling cannot take, or whose last scrambled character a trim would eat.
bool canBeKept(const QString& password) {
    const QString scrambled = EncryptText(password);
    return !scrambled.isEmpty() && trim(scrambled) == scrambled;
}

Check passwordFault(const UserProfile& user) {
    const auto fault = [](const char* text) {
        return Fault{exclamation("Password Error!", text), "txtPassword"};
    };
    const QString password = trim(user.password);
    if (password.isEmpty()) return fault("Password not Accepted! Blank Password not Accepted!");
    if (password.size() < shortestPassword) return fault("Password Should be Minimum of 3 Characters!");
    if (user.confirm != user.password)
        return fault("Password not Accepted! Please Confirm by Retyping Password.");
    if (!canBeKept(password)) return fault("Password not Accepted! Please choose another one.");
    return {};
}

Check typedFault(const UserProfile& user) {
    if (trim(user.code).isEmpty())
        return Fault{exclamation("User Login Error!", "User Login Should Not be Blank!"), "txtUserLogin"};
    return passwordFault(user);
}

bool mayInquire(const UserProfile& user) {
    return user.flags.intersects({"InqContactAccess", "InqItemAccess", "InqJournalAccess"});
}

bool otherEndsTheDay(Connection& store, const QString& code) {
    return !store.execute({"SELECT 1 FROM tblUserMaster WHERE UserCode <> ? AND EndofDay = True", {code}})
                .eof();
}

bool keepsItsRights(const UserProfile& user) {
    return !isAdministrator(user.code) ||
           std::ranges::all_of(keptRights, [&](int right) { return user.menus.contains(right); });
}

Check changedFault(Connection& store, const UserProfile* before) {
    if (!before) return {};
    const UserProfile now = loadUser(store, before->code);
    if (now == *before) return {};
    return Fault{exclamation("Error!", QString("The user %1 was changed by %2 meanwhile. Close this window "
                                               "and open the user again.")
                                           .arg(now.code, now.updatedBy)),
                 {}};
}

Check storeFault(Connection& store, const UserProfile& user, const UserProfile* before) {
    const QString code = trim(user.code);
    if (!before && RecordFound(store, "tblUserMaster", "UserCode", code))
        return errorFault("User ID Already Exist!", "txtUserLogin");
    if (!mayInquire(user))
        return errorFault("Please Select At Least One Inquiry Access for this User!", "chkInquireItem");
    if (user.flags.contains("EndofDay") && otherEndsTheDay(store, code))
        return errorFault(
            "There is Already a User that can do End of Day Processing! Only One User can be Assigned for "
            "this Function!",
            "chkEOD");
    if (!keepsItsRights(user))
        return Fault{exclamation("System Administrator!",
                                 "The user ADMIN always keeps the rights to Administration and to the System "
                                 "User Profile! Nobody else could give them back."),
                     "lvwMenu"};
    return changedFault(store, before);
}

void writeUser(Connection& store, const UserProfile& user, bool adding) {
    const QString code = trim(user.code);
    Recordset row = store.openTable("tblUserMaster", adding ? Sql{} : Sql{"WHERE UserCode = ?", {code}});
    if (adding) row.addNew();
    row.set("UserCode", code);
    row.set("FullName", trim(user.fullName));
    row.set("Description", trim(user.description));
    row.set("Password", EncryptText(trim(user.password)));
    row.set("UpdatedBy", trim(session().CurrentUserCode));
    row.set("DateUpdated", Clock::today());
    for (const AccessRight& right : accessRights())
        row.set(right.column, QVariant(user.flags.contains(right.column)));
    row.update();
}

void writeMenus(Connection& store, const UserProfile& user) {
    const QString code = trim(user.code);
    DeleteWhereValue(store, code, "tblUserDetails", "UserID");
    QList<int> menus = user.menus.values();
    std::ranges::sort(menus);
    std::vector<QVariantList> rows;
    for (const int menu : menus) rows.push_back({code, menu});
    store.runMany("INSERT INTO tblUserDetails (UserID, MenuID) VALUES (?, ?)", rows);
}
}  // namespace

const std::vector<AccessRight>& accessRights() {
    static const std::vector<AccessRight> rights{
        {"EndofDay", "chkEOD", "Can Process End of Day Transactions", ""},
        {"POSUser", "chkPOS", "Can Access Point of Sales System", ""},
        {"POSSuper", "chkPOSSuper", "Point of Sales System Supervisor", ""},
        {"DeleteDRAccess", "chkDeliveryReceipt", "Can Delete Record",
         "Can Delete Record in Sales Order Entry"},
        {"PrintDRAccess", "chkPrintDR", "&& Print in Sales Order Entry", ""},
        {"DeleteSIAccess", "chkSalesInvoice", "Can Delete Record",
         "Can Delete Record in Payments Receipt Entry"},
        {"PrintSIAccess", "chkPrintInvoice", "&& Print in Payments Receipt Entry", ""},
        {"DeletePOAccess", "chkPurchaseOrder", "Can Delete Record",
         "Can Delete Record in Purchase Order Entry"},
        {"PrintPOAccess", "chkPrintPO", "&& Print in Purchase Order Entry", ""},
        {"DeleteCVAccess", "chkCheckVoucher", "Can Delete Record", "Can Delete Record in Disbursement Entry"},
        {"PrintCVAccess", "chkPrintCV", "&& Print in Disbursement Entry", ""},
        {"InqItemAccess", "chkInquireItem", "User Can Inquire", "User Can Inquire Items"},
        {"PrintItemAccess", "chkPrintItem", "And Print Item Master File", "", "chkInquireItem"},
        {"InqContactAccess", "chkInquireContact", "User Can Inquire", "User Can Inquire Contacts"},
        {"PrintContactAccess", "chkPrintContact", "And Print Contact Balance", "", "chkInquireContact"},
        {"InqJournalAccess", "chkInquireJournal", "User Can Inquire", "User Can Inquire Journals"},
        {"PrintJournalAccess", "chkPrintJournal", "And Print Journal Transaction", "", "chkInquireJournal"},
    };
    return rights;
}

QList<UserListRow> listUsers(Connection& store) {
    QList<UserListRow> users;
    Recordset rows = store.execute("SELECT UserCode, FullName, Description FROM tblUserMaster");
    for (; !rows.eof(); rows.moveNext())
        users += {rows.trimmed("UserCode"), rows.trimmed("FullName"), rows.trimmed("Description")};
    return users;
}

QList<MenuEntry> listMenuRights(Connection& store) {
    QList<MenuEntry> entries;
    Recordset rows = store.execute("SELECT * FROM tblUserMenu ORDER BY MenuCode ASC");
    for (; !rows.eof(); rows.moveNext())
        entries += {static_cast<int>(rows.integer("MenuCode")), rows.trimmed("MenuName")};
    return entries;
}

UserProfile newUser() {
    UserProfile user;
    user.updatedBy = trim(session().CurrentUserCode);
    user.dateUpdated = Clock::today();
    return user;
}

UserProfile loadUser(Connection& store, const QString& code) {
    const Recordset row = store.execute({"SELECT * FROM tblUserMaster WHERE UserCode = ?", {code}});
    UserProfile user;
    user.code = row.trimmed("UserCode");
    user.fullName = row.trimmed("FullName");
    user.description = row.trimmed("Description");
    user.password = user.confirm = DecryptText(row.trimmed("Password"));
    user.updatedBy = row.trimmed("UpdatedBy");
    user.dateUpdated = row.date("DateUpdated");
    for (const AccessRight& right : accessRights())
        if (row.flag(right.column)) user.flags += right.column;
    Recordset menus = store.execute({"SELECT MenuID FROM tblUserDetails WHERE UserID = ?", {code}});
    for (; !menus.eof(); menus.moveNext()) user.menus += static_cast<int>(menus.integer("MenuID"));
    return user;
}

Outcome saveUser(Connection& store, const UserProfile& user, const UserProfile* before) {
    if (const Check fault = typedFault(user)) return *fault;
    Transaction save(store);
    if (const Check fault = storeFault(store, user, before)) return *fault;
    writeUser(store, user, !before);
    writeMenus(store, user);
    save.commit();
    return Done{{information("Thank You!", "User Settings Successfully Saved! " + user.fullName +
                                               " Must Log Off from the System In Order for the New Settings "
                                               "to Take Effect!")}};
}

Outcome deleteUser(Connection& store, const QString& code, const Answers& answers) {
    if (isAdministrator(code))
        return Fault{information("System Administrator!", "You Cannot Delete This Particular User!"), {}};
    if (!answers.contains("delete")) return Question{"delete", confirmDeleteBox()};
    if (answers.value("delete") != BoxAnswer::Yes) return Fault{};
    Transaction unit(store);
    store.run({"DELETE FROM tblUserDetails WHERE UserID = ?", {code}});
    store.run({"DELETE FROM tblUserMaster WHERE UserCode = ?", {code}});
    unit.commit();
    return Done{};
}
