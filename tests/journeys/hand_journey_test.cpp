#include "journeys/journey.h"

#include "foundation/start.h"
#include "platform/ui/column_header.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/list_view.h"
#include "support/screen_tour.h"
#include "support/users.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

namespace {

constexpr int items = 20;

// The hand of a clerk at work: which keys it takes, and where it finds itself after them.
class HandJourney : public Journey {
  protected:
    void SetUp() override {
        Journey::SetUp();
        DocumentRow purchase{
            .number = "03-1001-2026", .date = onDay(1), .contactId = "1000000001", .lines = {}};
        for (int i = 0; i < items; ++i) {
            addItem(store(), {.code = code(i),
                              .description = "ITEM " + code(i),
                              .selling = amount(10),
                              .wholesale = amount(9)});
            purchase.lines.push_back({.item = code(i), .quantity = amount(100), .price = amount(5)});
        }
        addPurchase(store(), purchase);
        play("log in ADMIN admin");
    }

    static QString code(int i) { return QString::number(2001 + i); }

    QWidget* newSale() {
        person::choose("mnuTransactionItem_2");
        person::screen("frmSalesGrid");
        person::press(Qt::Key_N, Qt::ControlModifier);
        QWidget* entry = person::screen("frmSalesEntry");
        person::fill(entry, "cboCustomer", "Cora");
        person::press(Qt::Key_Return);
        person::screen("frmContactFound");
        person::press(Qt::Key_Return);
        person::waitFor([] { return !person::isOpen("frmContactFound"); }, "the picker to close");
        return entry;
    }

    void leavePicker(const QString& name) {
        person::screen(name);
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return !person::isOpen(name); }, name + " to close");
    }
};

TEST_F(HandJourney, ALineTakesAtMostThreeKeysBesideItsData) {
    auto* list = person::find<ListView>(newSale(), "lvwItems");
    person::press(Qt::Key_Insert);
    QWidget* popup = person::screen("frmAddItem");
    int keys = 0;
    for (int line = 0; line < items; ++line) {
        person::type("6*" + code(line));
        for (; list->rowCount() == line && keys < 4 * items; ++keys) person::press(Qt::Key_Return);
    }
    ASSERT_EQ(list->rowCount(), items);
    EXPECT_LE(keys, 3 * items);
    EXPECT_EQ(list->row(19).mid(0, 4), QStringList({code(19), "ITEM " + code(19), "6", "6"}));
    EXPECT_LE(popup->window()->geometry().bottom(), list->mapToGlobal(QPoint()).y())
        << "the lines are in sight";
    person::press(Qt::Key_Escape);

    person::goTo(list->window(), "lvwItems");
    list->setCurrentRow(3);
    person::press(Qt::Key_F2);
    popup = person::screen("frmAddItem");
    EXPECT_EQ(person::read(popup, "txtInventory"), "0") << "as the item's row has it";
    person::fill(popup, "txtDiscount", "10");
    person::press(Qt::Key_Return, Qt::ControlModifier);
    person::waitFor([&] { return list->rowCount() == items; }, "Ctrl+Enter to save the line");
    EXPECT_EQ(list->text(3, 0), code(3)) << "at its place again";
    EXPECT_EQ(list->text(3, 6), "10.0000");
    person::press(Qt::Key_Escape);
    list->setFocus();
    list->setCurrentRow(3);
    person::press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), list->row(3).join(u'\t'));
}

TEST_F(HandJourney, APickerGivesTheFocusBackAndSaysWhatItDidNotFind) {
    QWidget* entry = newSale();
    person::goTo(entry, "cmdSearch");
    person::press(Qt::Key_Space);
    leavePicker("frmContactFound");
    EXPECT_EQ(person::focusName(), "cboCustomer");
    person::fill(entry, "cboCustomer", "Nobody");
    person::press(Qt::Key_Return);
    const auto* note = person::screen("frmContactFound")->findChild<QLabel*>("lblEmpty");
    ASSERT_TRUE(note && note->isVisible());
    EXPECT_TRUE(note->text().contains("Nobody"));
    leavePicker("frmContactFound");
    EXPECT_EQ(person::focusName(), "cboCustomer");
}

TEST_F(HandJourney, ADateIsTestedWhenItsFieldIsLeft) {
    QWidget* entry = newSale();
    for (const char* wrong : {"11/31/2026", "23", ""}) {
        BoxScript boxes;
        boxes.expect("Error!", "Invalid Date Value!");
        person::fill(entry, "txtRefDate", wrong);
        person::press(Qt::Key_Tab);
        EXPECT_EQ(person::focusName(), "txtRefDate") << wrong;
    }
    person::fill(entry, "txtRefDate", "3/2/26");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::read(entry, "txtRefDate"), "03/02/2026");
    EXPECT_EQ(person::focusName(), "cboCustomer");
}

TEST_F(HandJourney, AGridStandsOnWhatWasSavedAndOnItsOrder) {
    person::choose("mnuMaintenanceItem_2");
    QWidget* contacts = person::screen("frmContacts");
    person::press(Qt::Key_N, Qt::ControlModifier);
    person::fill(contacts, "txtName", "Mabini Farm");
    person::pushButton(contacts, "chkCustomer");
    person::press(Qt::Key_S, Qt::ControlModifier);
    auto* grid = person::find<DataGrid>(contacts, "dbgMyGrid");
    EXPECT_EQ(grid->currentText("ContactName"), "Mabini Farm");
    person::press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(person::read(contacts, "txtName"), "Mabini Farm");
    person::goTo(contacts, "txtSearch");
    person::press(Qt::Key_Down);
    EXPECT_EQ(person::focusName(), "dbgMyGrid");
    person::press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(grid->horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), 1);
    person::press(Qt::Key_Escape);

    person::choose("mnuTransactionItem_2");
    QWidget* journal = person::screen("frmSalesGrid");
    person::clickHeader(person::find<DataGrid>(journal, "dbgMyGrid"), 1);
    for (const QRadioButton* option : journal->findChild<QWidget*>("fraSort")->findChildren<QRadioButton*>())
        EXPECT_FALSE(option->isChecked()) << qPrintable(option->text());
}

// Draws the right edge of a heading with the mouse.
void widen(QHeaderView* headings, int column, int by) {
    QWidget* window = headings->window();
    const QPoint edge(headings->sectionViewportPosition(column) + headings->sectionSize(column) - 1, 5);
    const QPoint from = headings->viewport()->mapTo(window, edge), to = from + QPoint(by, 0);
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, from);
    QTest::mouseMove(window->windowHandle(), to);
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, to);
    person::settle();
}

struct Desk {
    const char *screen, *list;
    const char* fills = "";  // the button that lists something
    int width = 0;           // of the first column, as it was left

    ColumnHeader* open() const {
        QWidget* opened = openRegistered(screen);
        if (*fills) person::pushButton(opened, fills);
        person::settle();
        person::goTo(opened, list);
        return person::control(opened, list)->findChild<ColumnHeader*>();
    }
};

TEST_F(HandJourney, ADeskIsFoundAsItsUserLeftIt) {
    addUser(store(), "BEA", "bea");
    Desk desks[] = {{"frmSalesGrid", "dbgMyGrid"},
                    {"frmContacts", "dbgMyGrid", "cmdAll"},
                    {"frmNegReceivableChecks", "lvwRecord"}};
    const QPoint place(0, 8);
    for (Desk& desk : desks) {
        QHeaderView* headings = desk.open();
        EXPECT_FALSE(headings->isSortIndicatorShown()) << desk.screen;
        widen(headings, 0, 40);
        desk.width = headings->sectionSize(0);
        person::press(Qt::Key_2, Qt::ControlModifier);
        person::screen(desk.screen)->parentWidget()->move(place);
        closeOpenScreens();
    }
    for (const Desk& desk : desks) {
        QHeaderView* headings = desk.open();
        EXPECT_EQ(headings->sectionSize(0), desk.width) << desk.screen;
        EXPECT_TRUE(headings->isSortIndicatorShown() && headings->sortIndicatorSection() == 1) << desk.screen;
        EXPECT_EQ(person::screen(desk.screen)->parentWidget()->pos(), place) << desk.screen;
        closeOpenScreens();
    }
    QWidget* journal = openRegistered("frmSalesGrid");
    EXPECT_TRUE(person::find<QRadioButton>(journal, "optUnPrinted")->isChecked()) << "on what is not printed";
    closeOpenScreens();
    closeProgram();
    ASSERT_TRUE(Main());
    play("log in BEA bea");
    for (const Desk& desk : desks) {
        QHeaderView* headings = desk.open();
        EXPECT_LT(headings->sectionSize(0), desk.width) << desk.screen;
        EXPECT_FALSE(headings->isSortIndicatorShown()) << desk.screen;
        closeOpenScreens();
    }
}

TEST_F(HandJourney, TheMenuOfAListOffersWhatItsKeysDo) {
    const struct {
        const char *screen, *list;
        QStringList offered;
    } lists[] = {{"frmPurchaseGrid", "dbgMyGrid", {"Open\tReturn", "Copy\tCtrl+C", "Sort by"}},
                 {"frmSalesEntry",
                  "lvwItems",
                  {"Open\tReturn", "Add\tIns", "Edit\tF2", "Delete\tDel", "Copy\tCtrl+C", "Sort by"}},
                 {"frmUnitGrid", "lvwRecord", {"Open\tReturn", "Delete\tDel", "Copy\tCtrl+C"}}};
    for (const auto& each : lists) {
        auto* list = person::find<QAbstractItemView>(openRegistered(each.screen), each.list);
        QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, list->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(list->viewport(), &click);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << each.screen;
        QStringList offered;
        for (const QAction* action : menu->actions()) offered += action->text();
        EXPECT_EQ(offered, each.offered) << each.screen;
        menu->close();
        closeOpenScreens();
    }
}

}  // namespace
