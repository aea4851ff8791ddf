#include "journeys/journey.h"

#include "platform/ui/data_grid.h"
#include "platform/ui/list_view.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QRadioButton>

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

}  // namespace
