#include "shell/user_document.h"

#include "foundation/login.h"
#include "foundation/shared_routines.h"
#include "platform/store/store_error.h"
#include "support/test_store.h"

namespace {

class UserDocumentTest : public SessionTest {
  protected:
    static UserProfile clerk() {
        UserProfile user = newUser();
        user.code = "clerk ";
        user.fullName = "Cora Santos";
        user.password = user.confirm = "secret";
        user.flags = {"InqItemAccess"};
        user.menus = {100, 101};
        return user;
    }
    // The text of the refusal; empty: saved.
    QString save(const UserProfile& user, const UserProfile* before = nullptr) {
        const Outcome outcome = saveUser(store(), user, before);
        const auto* fault = std::get_if<Fault>(&outcome);
        return fault ? fault->box.text : QString();
    }
};

TEST_F(UserDocumentTest, EveryRefusalInItsOrder) {
    UserProfile user;
    user.confirm = "x";
    user.flags = {"EndofDay", "PrintItemAccess"};
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"User Login Should Not be Blank!", [&] { user.code = "Admin "; }},
        {"Password not Accepted! Blank Password not Accepted!", [&] { user.password = "ab"; }},
        {"Password Should be Minimum of 3 Characters!", [&] { user.password = "abc"; }},
        {"Password not Accepted! Please Confirm by Retyping Password.", [&] { user.confirm = "abc"; }},
        {"User ID Already Exist!", [&] { user.code = "CLERK"; }},
        {"Please Select At Least One Inquiry Access for this User!", [&] { user.flags += "InqItemAccess"; }},
        {"There is Already a User that can do End of Day Processing! Only One User can be Assigned for this "
         "Function!",
         [&] { user.flags -= "EndofDay"; }},
        {"", [] {}},
    };
    for (const auto& [text, correct] : steps) {
        EXPECT_EQ(save(user), text);
        correct();
    }
}

TEST_F(UserDocumentTest, AUserIsWrittenWholeAndMayLogIn) {
    ASSERT_EQ(save(clerk()), "");
    EXPECT_EQ(ValidateLogin(store(), "CLERK", "secret"), "Cora Santos");
    UserProfile stored = loadUser(store(), "clerk");
    EXPECT_EQ(stored.menus, clerk().menus);
    EXPECT_EQ(stored.flags, clerk().flags);
    const UserProfile before = stored;
    stored.menus = {402};
    Connection::setStatementHook([](const QString& statement) {
        if (statement.startsWith("INSERT INTO tblUserDetails"))
            throw StoreError(StoreError::general, "The disk is full.");
    });
    EXPECT_THROW(save(stored, &before), StoreError);
    Connection::setStatementHook({});
    EXPECT_EQ(loadUser(store(), "clerk"), before);
    EXPECT_EQ(save(stored, &before), "");
    // What another station wrote meanwhile is not written over.
    EXPECT_TRUE(save(stored, &before).startsWith("The user clerk was changed by ADMIN meanwhile."));
}

TEST_F(UserDocumentTest, TheAdministratorStaysAndKeepsTheWayToTheUsers) {
    const UserProfile before = loadUser(store(), "ADMIN");
    UserProfile admin = before;
    EXPECT_EQ(save(admin, &before), "");
    admin.menus -= 301;
    EXPECT_TRUE(save(admin, &before).startsWith("The user ADMIN always keeps the rights"));
    EXPECT_TRUE(std::holds_alternative<Fault>(deleteUser(store(), "admin", {{"delete", BoxAnswer::Yes}})));
    ASSERT_EQ(save(clerk()), "");
    EXPECT_TRUE(std::holds_alternative<Question>(deleteUser(store(), "clerk", {})));
    EXPECT_TRUE(isDone(deleteUser(store(), "clerk", {{"delete", BoxAnswer::Yes}})));
    EXPECT_EQ(listUsers(store()).size(), 2);
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblUserDetails WHERE UserID = 'clerk'"), "0");
}

}  // namespace
