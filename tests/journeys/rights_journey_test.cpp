#include "journeys/journey.h"

#include "platform/ui/screen_registry.h"
#include "shell/menu_catalogue.h"
#include "support/users.h"

#include <QListWidget>

// A clerk who may sell and keep contacts, print delivery receipts, and nothing else.
class ClerkJourney : public Journey {
  protected:
    void SetUp() override {
        Journey::SetUp();
        addUser(store(), "CLERK", "clerk", {100, 101, 200, 202}, {"PrintDRAccess"});
        play("log in CLERK clerk");
    }

    static QStringList openScreens() {
        QStringList names;
        for (const ChildScreen* screen : ScreenRegistry::instance().openScreens())
            names += screen->objectName();
        return names;
    }
};

TEST_F(ClerkJourney, ReachesNothingElseByMenu) {
    const QStringList withoutRight{"File", "Edit", "View", "Record", "Window", "Help"};
    const QStringList granted{"mnuTransactionItem_2", "mnuMaintenanceItem_2"};
    int items = 0;
    for (const MenuTable& menu : menuCatalogue())
        for (const MenuItem& row : menu.rows) {
            if (QString(row.caption) == "-") continue;
            const QString name = QString("%1_%2").arg(menu.items).arg(row.index);
            const bool everybodys = withoutRight.contains(QString(menu.name).mid(3));
            const bool expected = (everybodys || granted.contains(name)) && name != "mnuFileItem_0";
            // The submenu stands behind an item of its own, which has no right but leads to nothing.
            if (name == "mnuTransactionItem_8") continue;
            EXPECT_EQ(person::isOffered(name), expected) << qPrintable(name);
            ++items;
        }
    EXPECT_GT(items, 60);
}

TEST_F(ClerkJourney, ReachesNothingElseByPanel) {
    auto* panel = person::find<QListWidget>(person::window("mdiMain"), "lvMenu");
    ASSERT_TRUE(panel);
    QStringList captions;
    for (int row = 0; row < panel->count(); ++row) captions += panel->item(row)->text();
    EXPECT_EQ(captions, QStringList({"Sales Order", "Contact Maintenance", "Search Database", "Calculator",
                                     "Zevrin Help Desk", "Switch User", "Exit System"}));
}

TEST_F(ClerkJourney, ReachesNothingElseByToolOrKey) {
    BoxScript boxes;
    boxes.record();
    for (const ToolRow& tool : toolCatalogue())
        if (QString(tool.key) != "Exit") person::choose(QString("tbrMain_%1").arg(tool.key));
    for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter)
        person::press(static_cast<Qt::Key>(letter), Qt::ControlModifier);
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) person::press(static_cast<Qt::Key>(key));
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Delete}) person::press(key, Qt::ShiftModifier);
    EXPECT_EQ(openScreens(), QStringList());
}

// What the journal lets the clerk do follows the clerk's flags: printing, but no deleting.
TEST_F(ClerkJourney, DeletesNothing) {
    addSale(store(), {.number = "03-1001-2026",
                      .date = onDay(1),
                      .contactId = "1000000002",
                      .lines = {{.item = "1001", .quantity = {}, .price = amount(10)}}});
    QWidget* journal = sale("03-1001-2026");
    EXPECT_FALSE(person::control(journal, "cmdDelete")->isEnabled());
    EXPECT_TRUE(person::control(journal, "cmdPrint")->isEnabled());
    EXPECT_FALSE(person::isOffered("mnuRecordItem_3"));
    EXPECT_FALSE(person::isOffered("tbrMain_Delete"));
    person::press(Qt::Key_Delete, Qt::ShiftModifier);
    person::press(Qt::Key_Delete);
    EXPECT_EQ(figure("TotalAmount", "tblSalesMaster", "RefNo", "03-1001-2026"), "0.00");
    person::press(Qt::Key_Escape);
    EXPECT_TRUE(person::isOffered("mnuRecordItem_3"));
}
