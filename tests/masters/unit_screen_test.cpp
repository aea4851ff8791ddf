#include "masters/frmUnitGrid.h"
#include "masters_screen_fixture.h"
#include "platform/ui/list_view.h"
#include "platform/ui/text_box.h"

namespace {
class UnitScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        store().run("DELETE FROM tblUnitMaster");
        store().run("INSERT INTO tblUnitMaster (UnitCode) VALUES ('BOX'), ('PC')");
        screen = open("frmUnitGrid");
    }
    ListView* list() const { return screen->findChild<ListView*>("lvwRecord"); }
    QStringList units() const {
        QStringList codes;
        for (const QStringList& row : list()->rows()) codes << row.first();
        return codes;
    }
};

TEST_F(UnitScreen, TheFieldIsCyanAndClosedWhileIdle) {
    EXPECT_EQ(units(), (QStringList{"BOX", "PC"}));
    TextBox* unit = box("txtUnit");
    EXPECT_FALSE(unit->isEnabled());
    EXPECT_EQ(unit->palette().color(QPalette::Disabled, QPalette::Base), QColor(Qt::cyan));
    command("NewRecord");
    EXPECT_EQ(focused(), "txtUnit");
    EXPECT_NE(unit->palette().color(QPalette::Active, QPalette::Base), QColor(Qt::cyan));
    type("doz'en\r");
    EXPECT_EQ(units(), (QStringList{"BOX", "DOZEN", "PC"}));
    EXPECT_FALSE(unit->isEnabled());
    EXPECT_EQ(text("txtUnit"), "");
    EXPECT_EQ(unit->palette().color(QPalette::Disabled, QPalette::Base), QColor(Qt::cyan));
}

TEST_F(UnitScreen, AFaultKeepsWhatWasTyped) {
    command("NewRecord");
    type("pc\r");
    EXPECT_EQ(takeBoxes(), QStringList{"Error!|System Cannot Accept Duplicate Unit!"});
    EXPECT_EQ(focused(), "txtUnit");
    EXPECT_EQ(text("txtUnit"), "pc");
    type("1234567890123456\r");
    EXPECT_EQ(takeBoxes(), QStringList{"Unit Error!|Please Enter Not More Than 15 Characters!"});
}

TEST_F(UnitScreen, TheListEditsAndDeletes) {
    list()->setCurrentRow(1);
    keyTo(list(), Qt::Key_Return);
    EXPECT_EQ(text("txtUnit"), "PC");
    type("piece\r");
    EXPECT_EQ(units(), (QStringList{"BOX", "PIECE"}));
    list()->setCurrentRow(0);
    answer(BoxAnswer::No);
    keyTo(list(), Qt::Key_Delete);
    EXPECT_EQ(takeBoxes(),
              QStringList{"Confirm Delete|Confirm Deletion of this Record.  Delete Record Now?"});
    answer(BoxAnswer::Yes);
    keyTo(list(), Qt::Key_Delete);
    takeBoxes();
    EXPECT_EQ(units(), QStringList{"PIECE"});
}

TEST_F(UnitScreen, ADeletionEndsTheNewUnit) {
    command("NewRecord");
    list()->setFocus();
    list()->setCurrentRow(0);
    answer(BoxAnswer::Yes);
    keyTo(list(), Qt::Key_Delete);
    takeBoxes();
    EXPECT_FALSE(box("txtUnit")->isEnabled());
    EXPECT_FALSE(addMode());
}
}  // namespace
