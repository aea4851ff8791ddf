#include "masters_screen_fixture.h"
#include "platform/ui/list_view.h"

namespace {
class UnitScreen : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        store().run("DELETE FROM tblUnitMaster");
        store().run("INSERT INTO tblUnitMaster (UnitCode) VALUES ('BOX'), ('PC')");
        open("frmUnitGrid");
    }
    ListView* list() const { return person::find<ListView>(screen, "lvwRecord"); }
    QString units() const {
        QStringList codes;
        for (const QStringList& row : list()->rows()) codes << row.first();
        return codes.join(' ');
    }
    void atRow(int row, Qt::Key key) {
        person::goTo(screen, "lvwRecord");
        list()->setCurrentRow(row);
        person::press(key);
    }
    void expectIdle() {
        const QWidget* unit = person::control(screen, "txtUnit");
        EXPECT_FALSE(unit->isEnabled());
        EXPECT_EQ(unit->palette().color(QPalette::Disabled, QPalette::Base), QColor(Qt::cyan));
        EXPECT_EQ(text("txtUnit"), "");
        EXPECT_FALSE(addMode());
    }
};

TEST_F(UnitScreen, AddsAUnitInAFieldThatIsCyanWhileIdle) {
    expectIdle();
    command("NewRecord");
    EXPECT_EQ(person::focusName(), "txtUnit");
    EXPECT_NE(person::control(screen, "txtUnit")->palette().color(QPalette::Active, QPalette::Base),
              QColor(Qt::cyan));
    type("doz'en\r");
    EXPECT_EQ(units(), "BOX DOZEN PC");
    expectIdle();
}

TEST_F(UnitScreen, AFaultKeepsWhatWasTyped) {
    command("NewRecord");
    boxes.expect("Error!", "System Cannot Accept Duplicate Unit!");
    type("pc\r");
    EXPECT_EQ(person::focusName(), "txtUnit");
    EXPECT_EQ(text("txtUnit"), "pc");
}

TEST_F(UnitScreen, TheListEditsAndDeletes) {
    atRow(1, Qt::Key_Return);
    EXPECT_EQ(text("txtUnit"), "PC");
    type("piece\r");
    EXPECT_EQ(units(), "BOX PIECE");
    boxes.expect("Confirm Delete", "Confirm Deletion of this Record.  Delete Record Now?", BoxAnswer::No);
    atRow(0, Qt::Key_Delete);
    command("NewRecord");
    boxes.expect("Confirm Delete", "", BoxAnswer::Yes);
    atRow(0, Qt::Key_Delete);
    EXPECT_EQ(units(), "PIECE");
    expectIdle();
}
}  // namespace
