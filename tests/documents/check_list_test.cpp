#include "documents/check_books.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

#include <QComboBox>

using person::press;
using person::read;
using ::testing::ElementsAre;

namespace {
class CheckScreens : public CheckBooks {
  protected:
    void open(const CheckScreen& words) {
        ScreenRegistry::instance().add(words.name, [&words] { return new CheckList(words); });
        screen = ScreenRegistry::instance().open(words.name);
        dialogName = words.dialogName;
        person::look(screen);
    }
    void TearDown() override {
        if (screen) screen->unload();
        person::settle();
        OrderBooks::TearDown();
    }
    ListView* list() { return person::find<ListView>(screen, "lvwRecord"); }
    QString listed() {
        QStringList controls;
        for (const QStringList& row : list()->rows()) controls += row[check_column::control];
        return controls.join(' ');
    }
    void tick(const char* box) {
        person::goTo(dialog(), box);
        press(Qt::Key_Space);
    }
    QWidget* dialog() { return ScreenRegistry::instance().opened(dialogName); }
    void choose(const char* combo, const QString& entry) {
        auto* box = person::find<QComboBox>(screen, combo);
        box->setCurrentIndex(box->findText(entry));
        emit box->activated(box->currentIndex());
        person::settle();
    }

    BoxScript boxes;
    QPointer<ChildScreen> screen;
    QString dialogName;
};

// A check bounces and stays among the pending, is deposited again and cleared, all by keys.
TEST_F(CheckScreens, FollowACheckThatBounces) {
    add(receivedChecks, {1, "B1", check::pending, false});
    open(receivedCheckScreens);
    const auto give = [&](int statusKeyPresses) {
        person::goTo(screen, "lvwRecord");
        press(Qt::Key_Return);
        ASSERT_TRUE(dialog());
        person::goTo(dialog(), "cboCheckStatus");
        for (int i = 0; i < statusKeyPresses; ++i) press(Qt::Key_Down);
        boxes.expect("Saved!", "Record Successfully Updated!");
        person::goTo(dialog(), "cmdOK");
        press(Qt::Key_Return);
        EXPECT_FALSE(dialog());
        person::look(screen);
    };
    give(2);
    EXPECT_EQ(listed(), "1");
    EXPECT_EQ(list()->text(0, 7), "DAIF");
    choose("cboView", "Cleared Checks");
    EXPECT_EQ(listed(), "");
    EXPECT_FALSE(person::control(screen, "imgNegotiate")->isVisible());
    choose("cboView", "Pending Checks");
    person::goTo(screen, "imgMark");
    press(Qt::Key_Space);
    boxes.expect("Proceed?", "This will Tag 1 Checks as Cleared! Do you want to Continue?", BoxAnswer::Yes);
    boxes.expect("Success?", "1 Checks Successfully Tagged!");
    person::click(screen, "imgNegotiate");
    EXPECT_EQ(listed(), "");
    EXPECT_THAT(stored(receivedChecks), ElementsAre("B1 | Cleared | -1"));
}

TEST_F(CheckScreens, TagThirtyAtOnceAndLeaveWhatHasChanged) {
    for (int key = 1; key <= 31; ++key)
        add(issuedChecks, {key, QString("B%1").arg(key), check::pending, false});
    open(issuedCheckScreens);
    boxes.expect("No Item Selected!");
    person::click(screen, "imgNegotiate");
    person::click(screen, "imgMark");
    store.run("UPDATE tblChecks SET CheckNo = 'B77' WHERE ZevRef = 9");
    boxes.expect("Proceed?", "This will Tag 31 Checks as Cleared! Do you want to Continue?", BoxAnswer::Yes);
    boxes.expect("Success!", "30 Checks Successfully Tagged!").expect("Not Tagged!");
    person::click(screen, "imgNegotiate");
    EXPECT_EQ(listed(), "9");
}

// Another workstation has changed the check that stands in the dialog: it is shown anew, and nothing is
// written.
TEST_F(CheckScreens, ShowACheckAnewThatSomeoneHasChanged) {
    add(issuedChecks, {1, "B1", check::pending, false});
    open(issuedCheckScreens);
    person::doubleClickRow(list(), 0);
    store.run("UPDATE tblChecks SET CheckStatus = 'DAUD'");
    tick("chkNegotiated");
    EXPECT_EQ(read(dialog(), "cboCheckStatus"), "Cleared");
    boxes.expect("Error!");
    person::click(dialog(), "cmdOK");
    EXPECT_EQ(read(dialog(), "cboCheckStatus"), "DAUD");
    tick("chkCash");
    EXPECT_FALSE(person::control(dialog(), "txtCheckNo")->isEnabled());
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog());
    EXPECT_THAT(stored(issuedChecks), ElementsAre("B1 | DAUD | 0"));
    person::look(screen);
    person::goTo(screen, "lvwRecord");
    press(Qt::Key_Escape);
    EXPECT_FALSE(screen) << "Esc from inside the list";
}
}  // namespace
