#include "journeys/journey.h"

#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "shell/menu_catalogue.h"
#include "support/screen_tour.h"
#include "support/users.h"

#include <QAbstractButton>

// A clerk who may sell and keep contacts, print delivery receipts, and nothing else.
class ClerkJourney : public Journey {
  protected:
    void SetUp() override {
        Journey::SetUp();
        addUser(store(), "CLERK", "clerk", {100, 101, 200, 202}, {"PrintDRAccess"});
        play("log in CLERK clerk");
    }
};

// By menu and panel: AUserReachesWhatTheirRowsGrantAndNothingElse.
TEST_F(ClerkJourney, ReachesNothingElseByToolOrKey) {
    BoxScript boxes;
    boxes.record();
    for (const ToolRow& tool : toolCatalogue())
        if (QString(tool.key) != "Exit") person::choose(QString("tbrMain_%1").arg(tool.key));
    for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter)
        person::press(static_cast<Qt::Key>(letter), Qt::ControlModifier);
    for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key) person::press(static_cast<Qt::Key>(key));
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Delete}) person::press(key, Qt::ShiftModifier);
    for (const ChildScreen* screen : ScreenRegistry::instance().openScreens())
        ADD_FAILURE() << qPrintable(screen->objectName());
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

// The screens that the menus open: those whose rights the user has, or those whose rights are another's.
static QStringList screensOf(const QList<int>& rights, bool granted) {
    QStringList screens;
    for (const MenuTable& menu : menuCatalogue())
        for (const MenuItem& item : menu.rows)
            if (const auto* open = std::get_if<OpenScreen>(&item.action))
                if (item.right != 0 && rights.contains(item.right) == granted) screens += open->screen;
    return screens;
}

// Whatever a clerk presses on the screens that are theirs, no other menu's screen opens.
TEST_F(ClerkJourney, ReachesNothingElseByAScreensOwnButtons) {
    const QList<int> rights{100, 101, 200, 202};
    const QStringList own = screensOf(rights, true), others = screensOf(rights, false);
    ASSERT_TRUE(own.contains("frmSalesGrid") && others.contains("frmPurchaseGrid"));
    int presses = 0;
    BoxScript boxes;
    boxes.record();
    desk::setDoors({.saveFile = [](const QString&) { return QString(); }});
    for (const QString& name : own) {
        QStringList buttons;
        for (const auto* button : openRegistered(name)->findChildren<QAbstractButton*>())
            if (button->isEnabled() && !button->objectName().isEmpty()) buttons += button->objectName();
        closeOpenScreens();
        for (const QString& button : buttons) {
            ++presses;
            person::click(openRegistered(name), button);
            for (const ChildScreen* opened : ScreenRegistry::instance().openScreens())
                EXPECT_FALSE(others.contains(opened->objectName()))
                    << qPrintable(name + " " + button + ": " + opened->objectName());
            closeOpenScreens();
        }
    }
    desk::setDoors({});
    EXPECT_GT(presses, 12);
}
