#include "foundation/login.h"

#include "foundation/encryption.h"
#include "foundation/frmChangePassword.h"
#include "foundation/frmDateChecker.h"
#include "foundation/frmOpening.h"
#include "foundation/register.h"
#include "foundation/start.h"
#include "platform/clock.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/test_store.h"
#include "support/users.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

class LoginTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addUser(store(), "anna", "Secret1");
    }
};

TEST_F(LoginTest, OnlyTheRightPasswordLetsIn) {
    const struct {
        const char* user;
        const char* password;
        const char* fullName;  // null: refused
    } cases[] = {
        {"anna", "Secret1", "anna Santos"},
        {"ANNA ", "Secret1", "anna Santos"},
        {" anna", " Secret1 ", "anna Santos"},
        {"anna", "secret1", nullptr},
        {"anna", "", nullptr},
        {"ann", "Secret1", nullptr},
        {"anna' OR '1'='1", "x", nullptr},
        {"Dorvane", "tamrosi", "ADMIN"},
        {" dorvane ", "TAMROSI ", "ADMIN"},
        {"Dorvane", "tamros", nullptr},
        {"ADMIN", "admin", "*"},
        {"ADMIN", "ADMIN", nullptr},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.user);
        const auto fullName = ValidateLogin(store(), row.user, row.password);
        ASSERT_EQ(fullName.has_value(), row.fullName != nullptr);
        const QString expected = row.fullName;
        EXPECT_TRUE(expected == "*" || fullName.value_or("") == expected);
    }
}

// What the rights are looked up by must find the user that the password has let in.
TEST_F(LoginTest, TheSessionGoesByACodeThatTheStoreFinds) {
    addUser(store(), "PEÑA", "Secret1");
    for (const auto& [typed, code] : {std::pair("peña", "PEÑA"), {" anna", "anna"}, {"ANNA ", "ANNA "}})
        EXPECT_EQ(sessionUserCode(store(), typed), code);
}

TEST_F(LoginTest, AStoreWithoutUsersSaysSo) {
    store().run("DELETE FROM tblUserMaster");
    BoxScript boxes;
    boxes.expect("No Users!");
    EXPECT_FALSE(Main());
}

TEST_F(LoginTest, APasswordChangesOnlyWhenEveryTestPasses) {
    const struct {
        PasswordChange change;
        const char *title, *focus;
    } cases[] = {{{"anna", "Secret1", "abcd", "abce"}, "Password does not match!", "txtNewPassword"},
                 {{"anna", "Secret1", "ab", "ab"}, "Password Error!", "txtNewPassword"},
                 {{"anna", "Secret1", "1234a", "1234a"}, "Password Error!", "txtNewPassword"},
                 {{"anna", "Secret1", "abc ", "abc "}, "Password Error!", "txtNewPassword"},
                 {{"anna", "Secret1", "niño1", "niño1"}, "Password Error!", "txtNewPassword"},
                 {{"anna", "secret1", "abcd", "abcd"}, "Invalid!", "txtOldPassword"}};
    for (const auto& row : cases) {
        const Outcome outcome = changePassword(store(), row.change);
        ASSERT_TRUE(std::holds_alternative<Fault>(outcome)) << row.title;
        EXPECT_EQ(std::get<Fault>(outcome).box.title, row.title);
        EXPECT_EQ(std::get<Fault>(outcome).focus, row.focus);
        EXPECT_TRUE(ValidateLogin(store(), "anna", "Secret1"));
    }
    const Outcome unknown = changePassword(store(), {"nobody", "x", "abcd", "abcd"});
    EXPECT_EQ(std::get<Done>(unknown).boxes.first().title, "Error!");

    const Outcome changed = changePassword(store(), {"ANNA", "Secret1", "x yz", "x yz"});
    EXPECT_EQ(std::get<Done>(changed).boxes.first().text, "Password Successfully Changed!");
    EXPECT_FALSE(ValidateLogin(store(), "anna", "Secret1"));
    EXPECT_EQ(store().execute("SELECT * FROM tblUserMaster WHERE UserCode = 'anna'").text("Password"),
              EncryptText("x yz"));
}

// The screen, with what follows it caught.
class OpeningTest : public LoginTest {
  protected:
    void SetUp() override {
        LoginTest::SetUp();
        screen = new frmOpening;
        ScreenRegistry::instance().addWindow("mdiMain", [this](const ScreenArguments&) { ++mainWindows; });
        screen->show();
    }
    void TearDown() override {
        ScreenRegistry::instance().addWindow("mdiMain", [](const ScreenArguments&) {});
        delete screen;
        LoginTest::TearDown();
    }
    void login(const QString& user, const QString& password) {
        screen->findChild<ComboBox*>("txtUserName")->setText(user);
        screen->findChild<TextBox*>("txtPassword")->setText(password);
        QTest::keyClick(screen->findChild<TextBox*>("txtPassword"), Qt::Key_Return);
    }

    QPointer<frmOpening> screen;
    int mainWindows = 0;
};

TEST_F(OpeningTest, AGoodLoginOpensTheMainWindowWithTheCodeAsTyped) {
    BoxScript boxes;
    login("ANNA ", "Secret1");
    EXPECT_EQ(mainWindows, 1);
    EXPECT_FALSE(screen && screen->isVisible());
    EXPECT_EQ(session().CurrentUserCode, "ANNA ");
    EXPECT_EQ(session().CurrentUserName, "anna Santos");
}

TEST_F(OpeningTest, AMainWindowThatCannotOpenBringsTheLoginBack) {
    int logins = 0;
    ScreenRegistry& registry = ScreenRegistry::instance();
    registry.addWindow("mdiMain", [](const ScreenArguments&) {
        throw StoreError(StoreError::busy, "Another workstation is using the store. Please try again.");
    });
    registry.addWindow("frmOpening", [&](const ScreenArguments&) { ++logins; });
    BoxScript boxes;
    boxes.expect("Error...", "Another workstation is using the store. Please try again.");
    login("anna", "Secret1");
    EXPECT_EQ(logins, 1);
    registry.addWindow("frmOpening", [](const ScreenArguments&) {});
}

TEST_F(OpeningTest, TheThirdFailureEndsItAndAnEmptyNameNeitherCountsNorHelps) {
    BoxScript boxes;
    boxes.expect("Invalid!").expect("Invalid!").expect("Invalid!");
    login("anna", "a");
    login("", "b");
    login("anna", "b");
    EXPECT_TRUE(screen->isVisible());
    EXPECT_EQ(screen->findChild<TextBox*>("txtPassword")->selectedText(), "b");
    boxes.expect("Invalid!").expect("Maximum Attempt Error!");
    login("nobody", "c");
    EXPECT_FALSE(screen && screen->isVisible());
    EXPECT_EQ(mainWindows, 0);
    EXPECT_EQ(session().CurrentUserName, "");
}

TEST_F(OpeningTest, ThePasswordIsChangedForTheNameInTheBox) {
    BoxScript boxes;
    boxes.expect("Select User Name...");
    auto* link = screen->findChild<QPushButton*>("lblChangePassword");
    screen->findChild<ComboBox*>("txtUserName")->setText("  ");
    link->click();

    boxes.expect("Thank You!");
    screen->findChild<ComboBox*>("txtUserName")->setText("anna");
    QTimer::singleShot(0, screen, [] {
        QWidget* form = QApplication::activeModalWidget();
        ASSERT_TRUE(form);
        form->findChild<TextBox*>("txtOldPassword")->setText("Secret1");
        form->findChild<TextBox*>("txtNewPassword")->setText("abc");
        form->findChild<TextBox*>("txtConfirmPassword")->setText("abc");
        form->findChild<QPushButton*>("cmdOK")->click();
    });
    link->click();
    EXPECT_TRUE(ValidateLogin(store(), "anna", "abc"));
}

TEST_F(LoginTest, ASmallDisplayEndsTheProgramOnlyWhenTheUserSaysNo) {
    for (const QSize size : {QSize(1024, 768), QSize(1920, 1080), QSize(1023, 768), QSize(1024, 767)}) {
        setScreenSizeDoor([&] { return size; });
        EXPECT_EQ(CheckResolution(), size.width() >= 1024 && size.height() >= 768) << size.width();
    }
    int ended = 0;
    setScreenSizeDoor([] { return QSize(1024, 767); });
    setEndProcessDoor([&] { ++ended; });
    BoxScript boxes;
    boxes.expect("Screen Resolution!", {}, BoxAnswer::No);
    showOpening();
    EXPECT_EQ(ended, 1);
    setScreenSizeDoor({});
    setEndProcessDoor({});
}

TEST(Start, AMissingStoreShowsBothBoxes) {
    QTemporaryDir empty;
    setProgramFolder(empty.path());
    BoxScript boxes;
    boxes.expect("Connection Error")
        .expect("Database Not Found!",
                "Database not found!, Please Place the Database with the Same Path as the .EXE File");
    EXPECT_FALSE(Main());
    EXPECT_FALSE(session().StoreOpen);
    setProgramFolder({});
}

TEST(Start, AStoreThatWasLeftOpenIsLookedThroughAndADamagedOneRefused) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(storeFileName);
    setProgramFolder(folder.path());
    copyDeliveredStore(path);
    writeFile(path + "-open-dead", "");
    EXPECT_TRUE(OpenDatabase());
    EXPECT_FALSE(StoreConnection().wasLeftOpen());
    StoreConnection().close();
    QByteArray bytes = contentOf(path);
    bytes.replace(bytes.size() - 4096, 4096, QByteArray(4096, 'z'));
    writeFile(path, bytes);
    writeFile(path + "-open-dead", "");
    BoxScript boxes;
    boxes.expect("Connection Error");
    EXPECT_FALSE(OpenDatabase());
    EXPECT_FALSE(StoreConnection().isOpen());
    setProgramFolder({});
}

// The store opens, and what the login shows first cannot be read.
TEST_F(LoginTest, ADamagedTableEndsTheStartWithABox) {
    registerFoundationScreens();
    int ended = 0;
    setEndProcessDoor([&] { ++ended; });
    store().run("DROP TABLE tblSystemProfile");
    BoxScript boxes;
    boxes.expect("Error...");
    EXPECT_FALSE(Main());
    EXPECT_EQ(ended, 0);
    boxes.expect("Error...");
    showLogin();
    EXPECT_EQ(ended, 1);
    setEndProcessDoor({});
}

// The confirmation of the clock, on a machine that lets the program set it or not.
class ClockTest : public ::testing::Test {
  protected:
    ClockTest() { session() = {}; }
    ~ClockTest() override {
        Clock::clearOffset();
        Clock::setSystemClockDoor({});
    }
};

TEST_F(ClockTest, WhereTheMachineRefusesTheSessionKeepsTheTimeAndTheUserIsToldOnce) {
    Clock::setSystemClockDoor([](const QDateTime&) { return false; });
    EXPECT_EQ(setClock({}, {}), Boxes());
    const QTime before = Clock::now().time();
    EXPECT_EQ(setClock(QDate(2026, 3, 2), {}).size(), 1);
    EXPECT_EQ(Clock::today(), QDate(2026, 3, 2));
    EXPECT_LT(std::abs(before.secsTo(Clock::now().time())), 5);
    EXPECT_EQ(setClock({}, QTime(9, 30)), Boxes());
    EXPECT_EQ(Clock::today(), QDate(2026, 3, 2));
    EXPECT_EQ(Clock::now().time().hour(), 9);
}

TEST_F(ClockTest, WhereTheMachineAllowsItTheMachinesClockIsSet) {
    QDateTime given;
    Clock::setNow(QDateTime(QDate(2031, 5, 6), QTime(7, 8)));
    Clock::setSystemClockDoor([&](const QDateTime& moment) {
        given = moment;
        return true;
    });
    EXPECT_EQ(setClock(QDate(2026, 3, 2), QTime(9, 30)), Boxes());
    EXPECT_EQ(given, QDateTime(QDate(2026, 3, 2), QTime(9, 30)));
    EXPECT_LT(qAbs(Clock::now().msecsTo(QDateTime::currentDateTime())), 5000) << "an offset beside it";
}

TEST_F(ClockTest, OnlyTheCheckedPickerIsTaken) {
    Clock::setSystemClockDoor([](const QDateTime&) { return false; });
    frmDateChecker checker;
    auto* date = checker.findChild<QDateTimeEdit*>("dtpDate");
    auto* time = checker.findChild<QDateTimeEdit*>("dpTime");
    EXPECT_FALSE(date->isEnabled());
    checker.findChild<QCheckBox*>("chkDate")->setChecked(true);
    EXPECT_TRUE(date->isEnabled());
    EXPECT_FALSE(time->isEnabled());
    EXPECT_FALSE(checker.findChild<QTimer*>("tmrCurrDate")->isActive());
    EXPECT_TRUE(checker.findChild<QTimer*>("tmrCurrTime")->isActive());
    date->setDate(QDate(2020, 1, 1));
    checker.findChild<QCheckBox*>("chkDate")->setChecked(false);
    EXPECT_EQ(date->date(), Clock::today());
    checker.findChild<QCheckBox*>("chkDate")->setChecked(true);
    date->setDate(QDate(2020, 1, 1));
    BoxScript boxes;
    boxes.expect("Date and Time");
    checker.findChild<QPushButton*>("cmdOK")->click();
    EXPECT_EQ(Clock::today(), QDate(2020, 1, 1));
}

}  // namespace
