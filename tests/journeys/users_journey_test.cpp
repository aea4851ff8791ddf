#include "journeys/journey.h"

#include "platform/ui/file_dialogs.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "shell/menu_catalogue.h"
#include "support/screen_tour.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QMainWindow>
#include <QPrinter>

namespace {

// Marks the menus of the details by keys, and saves.
void giveRights(QWidget* details, const QList<int>& rights) {
    auto* menus = person::find<ListView>(details, "lvwMenu");
    person::goTo(details, "lvwMenu");
    person::press(Qt::Key_Home);
    for (int row = 0; row < menus->rowCount(); ++row, person::press(Qt::Key_Down))
        if (rights.contains(menus->text(row, 1).toInt())) person::press(Qt::Key_Space);
    BoxScript boxes;
    boxes.expect(
        "Thank You!",
        "User Settings Successfully Saved! Cora Santos Must Log Off from the System In Order for the "
        "New Settings to Take Effect!");
    person::press(Qt::Key_S, Qt::ControlModifier);
}

void makeClerk(const QList<int>& rights) {
    person::choose("mnuAdminItem_0");
    person::screen("frmUserGrid");
    person::press(Qt::Key_N, Qt::ControlModifier);
    QWidget* details = person::screen("frmUserDetails");
    const QList<std::pair<const char*, const char*>> texts{{"txtUserLogin", "CLERK"},
                                                           {"txtFullName", "Cora Santos"},
                                                           {"txtPassword", "secret"},
                                                           {"txtConfirm", "secret"}};
    for (const auto& [box, text] : texts) person::fill(details, box, text);
    person::goTo(details, "chkInquireContact");
    person::press(Qt::Key_Space);
    giveRights(details, rights);
    EXPECT_FALSE(person::isOpen("frmUserDetails"));
    EXPECT_EQ(person::find<ListView>(person::screen("frmUserGrid"), "lvwRecord")->findRow(0, "CLERK"), 2);
}

// What opens by each way that the main window has: menus, tools, panel and keys; then by the buttons of what
// has opened.
class Ways {
  public:
    QSet<QString> opened;

    void tryAll() {
        for (const MenuTable& menu : menuCatalogue())
            for (const MenuItem& row : menu.rows) choose(QString("%1_%2").arg(menu.items).arg(row.index));
        for (const ToolRow& tool : toolCatalogue()) choose(QString("tbrMain_%1").arg(tool.key));
        auto* panel = person::find<QListWidget>(person::window("mdiMain"), "lvMenu");
        for (int entry = 0; entry < panel->count(); ++entry)
            if (const QString key = panel->item(entry)->data(Qt::UserRole).toString();
                key != "Exit" && key != "Switch")
                note([&] { person::doubleClickRow(panel, entry); });
        for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter)
            note([&] { person::press(static_cast<Qt::Key>(letter), Qt::ControlModifier); });
        for (int key = Qt::Key_F1; key <= Qt::Key_F12; ++key)
            note([&] { person::press(static_cast<Qt::Key>(key)); });
    }

    // The buttons of a screen, each on a fresh one.
    void tryButtons(const QString& menuItem, const QString& screen) {
        person::choose(menuItem);
        QStringList buttons;
        for (const auto* button : person::screen(screen)->findChildren<QAbstractButton*>())
            if (!button->objectName().isEmpty()) buttons += button->objectName();
        closeOpenScreens();
        for (const QString& name : buttons)
            note([&] {
                person::choose(menuItem);
                if (auto* button = person::screen(screen)->findChild<QAbstractButton*>(name)) button->click();
            });
    }

  private:
    void choose(const QString& action) {
        static const QStringList leaving{"mnuFileItem_8", "mnuFileItem_9", "tbrMain_Exit", "mnuHelpItem_4"};
        if (!leaving.contains(action) && person::isOffered(action)) note([&] { person::choose(action); });
    }

    void note(const std::function<void()>& act) {
        person::window("mdiMain")->activateWindow();
        act();
        person::settle();
        for (const ChildScreen* screen : ScreenRegistry::instance().openScreens())
            opened += screen->objectName();
        closeOpenScreens();
        person::waitFor([] { return person::control(person::window("mdiMain"), "lvMenu")->isVisible(); },
                        "the panel");
    }
};

TEST_F(Journey, AClerkOfThreeRightsReachesThoseAndNothingElse) {
    play("log in ADMIN admin");
    makeClerk({100, 101, 202});
    closeOpenScreens();
    play("log off\nlog in CLERK secret");
    closeOpenScreens();

    desk::setDoors({.openWithDesktop = [](const QString&) { return true; },
                    .setUpPrinter = [] { return false; },
                    .printer = [] { return std::unique_ptr<QPrinter>(); }});
    BoxScript boxes;
    boxes.record(
        [](const Box& box) { return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No; });
    Ways ways;
    ways.tryAll();
    ways.tryButtons("mnuTransactionItem_2", "frmSalesGrid");
    desk::setDoors({});
    // What every user has, and the contacts by the panel: their menu is shut.
    QSet<QString> expected{"frmReorder",    "frmCalculator", "frmSalesGrid",
                           "frmSalesEntry", "frmContacts",   "prtDiscrepancy"};
    for (const char* everybodys : {"frmSearch", "frmReceipts"})
        if (ScreenRegistry::instance().knows(everybodys)) expected += everybodys;
    EXPECT_EQ(ways.opened, expected) << qPrintable(ways.opened.values().join(' '));
}

}  // namespace
