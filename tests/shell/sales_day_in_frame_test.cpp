#include "documents/order_document.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/list_view.h"
#include "sales/frmSalesEntry.h"
#include "sales/frmSalesGrid.h"
#include "sales/sales_document.h"
#include "shell/frame_fixture.h"
#include "support/screen_driver.h"

#include <QCheckBox>

using person::press;
using person::read;

namespace {
// The sales journal and the sales entry screen within the main window, worked with its keys.
class SalesDayInFrame : public FrameTest {
  protected:
    void SetUp() override {
        FrameTest::SetUp();
        addItem(store(), {"I1", "Rice", amount(10), amount(15), amount(13)});
        addItem(store(), {"I2", "Sugar", amount(4), amount(6), amount(5)});
        addContact(store(), {.id = "C1", .name = "Nena", .discount = amount(10)});
        addPurchase(
            store(),
            {"P1", Clock::today(), "C1", {{"I1", amount(10), amount(10)}, {"I2", amount(10), amount(4)}}});
        store().run("UPDATE tblUserMaster SET PrintDRAccess = False");
        ScreenRegistry::instance().add("frmSalesEntry", [] { return new frmSalesEntry; });
        ScreenRegistry::instance().add("frmSalesGrid", [] { return new frmSalesGrid; });
        logIn();
    }
    void TearDown() override {
        if (entry()) entry()->mblnUpdated = false;
        for (ChildScreen* screen : ScreenRegistry::instance().openScreens())
            if (screen->objectName() != "frmAddItem") screen->unload();
        person::settle();
        FrameTest::TearDown();
    }

    ChildScreen* at(const char* name) { return ScreenRegistry::instance().opened(name); }
    frmSalesEntry* entry() { return static_cast<frmSalesEntry*>(at("frmSalesEntry")); }
    ListView* list() { return person::find<ListView>(entry(), "lvwItems"); }
    DataGrid* grid() { return person::find<DataGrid>(at("frmSalesGrid"), "dbgMyGrid"); }
    QString lines() {
        QStringList texts;
        for (const QStringList& row : list()->rows()) texts << row.mid(0, 9).join(' ');
        return texts.join('\n');
    }
    QString saveSale(const char* served) {
        OrderDocument document = newOrder(store(), salesOrders);
        document.contactName = "Nena";
        document.lines = {makeOrderLine("I1", "Rice", "PC", amount(9), amount(QString(served).toDouble()),
                                        amount(15), amount(0)),
                          makeOrderLine("I2", "Sugar", "PC", amount(2), amount(1), amount(6), amount(0))};
        EXPECT_TRUE(isDone(saveOrder(store(), salesOrders, document)));
        return document.code;
    }
    bool locked(const QString& key) {
        return FlagFieldSet(store(), "tblSalesMaster", "RefNo", key, "RecordLock");
    }
    void openJournal() {
        ScreenRegistry::instance().open("frmSalesGrid");
        person::settle();
    }
    void edit(const QString& key) {
        openJournal();
        grid()->setFocus(Qt::ShortcutFocusReason);
        grid()->selectKey("RefNo", key);
        person::settle();
        press(Qt::Key_Return);
        ASSERT_TRUE(entry());
    }
    void startSale() {
        ScreenRegistry::instance().open("frmSalesEntry");
        person::settle();
        person::type("Nena");
    }
    void clickBesideIt() {
        frame->activateWindow();
        frame->setFocus();
        person::settle();
    }
    void startLine() {
        startSale();
        press(Qt::Key_Insert);
        ASSERT_TRUE(at("frmAddItem"));
    }

    BoxScript boxes;
};

TEST_F(SalesDayInFrame, SellsEditsAndDeletesWithTheKeysOfTheFrame) {
    openJournal();
    press(Qt::Key_N, Qt::AltModifier);
    ASSERT_TRUE(entry());
    EXPECT_EQ(person::focusName(), "cboCustomer");
    const QString key = read(entry(), "txtCode");
    person::type("ne");
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmContactFound"));
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtRemarks");
    person::type("by truck");
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmAddItem"));
    EXPECT_EQ(person::focusName(), "cboItemCode");
    person::type("I1");
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtCost");
    press(Qt::Key_Return);
    person::type("4");
    press(Qt::Key_Return);
    person::type("3");
    press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "cboItemCode");
    press(Qt::Key_Escape);
    EXPECT_FALSE(at("frmAddItem"));
    EXPECT_EQ(lines(), "I1 Rice 4 3 PC 15.0000 10.0000 13.5000 40.50");
    boxes.expect("Saved!", "Record Successfully Saved!");
    press(Qt::Key_S, Qt::ControlModifier);
    boxes.verify();
    EXPECT_EQ(lines(), "");
    EXPECT_EQ(person::focusName(), "cboCustomer");
    press(Qt::Key_Escape);
    EXPECT_FALSE(entry());
    press(Qt::Key_F5);
    edit(key);
    EXPECT_TRUE(locked(key));
    EXPECT_EQ(read(entry(), "txtRemarks"), "by truck");
    person::goTo(entry(), "lvwItems");
    list()->setCurrentRow(0);
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmInputInList"));
    EXPECT_EQ(person::focusName(), "txtValue");
    person::type("2");
    press(Qt::Key_Return);
    EXPECT_FALSE(at("frmInputInList"));
    EXPECT_EQ(person::focusName(), "lvwItems");
    EXPECT_EQ(read(entry(), "txtAmount"), "27.00");
    boxes.expect("Confirm Update Record!", "", BoxAnswer::Cancel);
    press(Qt::Key_Escape);
    EXPECT_TRUE(locked(key));
    boxes.expect("Confirm Update Record!", "", BoxAnswer::Yes).expect("Saved!");
    press(Qt::Key_Escape);
    boxes.verify();
    EXPECT_FALSE(entry());
    EXPECT_FALSE(locked(key));
    openJournal();
    press(Qt::Key_F5);
    EXPECT_EQ(grid()->currentText("TotalAmount"), "27.00");
    boxes.expect("Confirm Delete", "", BoxAnswer::Yes);
    press(Qt::Key_D, Qt::AltModifier);
    EXPECT_FALSE(grid()->hasCurrent());
}

// Nothing is done over a line in the dialog; the popup of a quantity is no such line.
TEST_F(SalesDayInFrame, LineDialogKeepsTheFrontAndTheQuantityPopupGivesWay) {
    startLine();
    QList<std::function<void()>> acts{[this] { clickBesideIt(); }, [this] { frame->close(); },
                                      [this] { EXPECT_FALSE(entry()->SaveRecord()); },
                                      [this] { EXPECT_FALSE(entry()->unload()); }};
    for (const char* way :
         {"mnuFileItem_9", "mnuFileItem_8", "mnuRecordItem_5", "mnuRecordItem_0", "mnuRecordItem_4"})
        acts += [this, way] { choose(way); };
    for (qsizetype act = 0; act < acts.size(); ++act) {
        boxes.expect("Lost Focus!", "Please Click on Close Button to Exit!");
        acts[act]();
        boxes.verify();
        ASSERT_TRUE(at("frmAddItem") && entry()) << act;
        EXPECT_TRUE(at("frmAddItem")->isActiveWindow()) << act;
    }
    boxes.expect("Please Don't Press X Button!",
                 "You cannot Press X mark, please click on Cancel Button to exit without saving!");
    at("frmAddItem")->close();
    ASSERT_TRUE(at("frmAddItem"));
    person::click(at("frmAddItem"), "cmdCancel");
    boxes.expect("Confirm Add Record!", "", BoxAnswer::Cancel);
    choose("mnuFileItem_9");
    boxes.verify();
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(read(entry(), "cboCustomer"), "Nena");

    entry()->lines().addLine(makeOrderLine("I1", "Rice", "PC", amount(1), amount(1), amount(15), amount(0)));
    person::goTo(entry(), "lvwItems");
    list()->setCurrentRow(0);
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmInputInList"));
    clickBesideIt();
    EXPECT_FALSE(at("frmInputInList"));
}

TEST_F(SalesDayInFrame, AWrongCodeOpensOneSearchAndDoesNotKeepTheDialogOpen) {
    startLine();
    person::type("ZZ");
    person::click(at("frmAddItem"), "cmdSearch2");
    int pickers = 0;
    for (const ChildScreen* screen : ScreenRegistry::instance().openScreens())
        pickers += screen->objectName() == "frmFound";
    EXPECT_EQ(pickers, 1);
    press(Qt::Key_Escape);
    EXPECT_TRUE(at("frmAddItem")->isActiveWindow());
    const QList<std::function<void()>> ways{[] { press(Qt::Key_Escape); },
                                            [] { press(Qt::Key_C, Qt::AltModifier); },
                                            [this] { person::click(at("frmAddItem"), "cmdCancel"); }};
    for (const auto& way : ways) {
        way();
        EXPECT_FALSE(at("frmFound"));
        EXPECT_FALSE(at("frmAddItem"));
        press(Qt::Key_Insert);
        person::type("ZZ");
    }
    press(Qt::Key_Escape);
}

// Nothing that is open calls a frame, or an order, that has gone before it.
TEST_F(SalesDayInFrame, AFrameThatGoesUnaskedTakesAlongAllThatIsOpen) {
    openJournal();
    startLine();
    person::type("ZZ");
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmFound"));
    delete frame;
    person::settle();
    EXPECT_TRUE(ScreenRegistry::instance().openScreens().isEmpty());
    logIn();
    EXPECT_TRUE(at("frmReorder"));
}

TEST_F(SalesDayInFrame, AFailingStoreTakesNoLineAway) {
    const QString key = saveSale("2");
    edit(key);
    person::goTo(entry(), "lvwItems");
    list()->setCurrentRow(0);
    press(Qt::Key_F2);
    ASSERT_TRUE(at("frmAddItem"));
    person::fill(at("frmAddItem"), "txtServe", "3");
    store().run("ALTER TABLE tblItemMaster RENAME TO tblHidden");
    boxes.expect("Error...");
    press(Qt::Key_Escape);
    boxes.verify();
    store().run("ALTER TABLE tblHidden RENAME TO tblItemMaster");
    EXPECT_FALSE(at("frmAddItem"));
    EXPECT_EQ(lines(),
              "I1 Rice 9 2 PC 15.0000 0.0000 15.0000 30.00\nI2 Sugar 2 1 PC 6.0000 0.0000 6.0000 6.00");
}

TEST_F(SalesDayInFrame, LinesThatDoNotLoadAreNotThoseOfTheDocumentBefore) {
    const QString first = saveSale("2"), second = saveSale("3");
    edit(first);
    ASSERT_EQ(list()->rowCount(), 2);
    store().run("ALTER TABLE tblSalesDetails RENAME TO tblHidden");
    boxes.expect("Error Loading");
    edit(second);
    store().run("ALTER TABLE tblHidden RENAME TO tblSalesDetails");
    boxes.verify();
    EXPECT_EQ(read(entry(), "txtCode"), second);
    EXPECT_EQ(lines(), "");
}

TEST_F(SalesDayInFrame, WholesaleCanBeChosenAgainAfterTheOnlyLineWasLost) {
    startLine();
    person::type("I1");
    press(Qt::Key_Return);
    person::fill(at("frmAddItem"), "txtOrder", "1");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    ASSERT_EQ(list()->rowCount(), 1);
    auto* wholesale = person::find<QCheckBox>(entry(), "chkWholesale");
    EXPECT_FALSE(wholesale->isEnabled());
    person::goTo(entry(), "lvwItems");
    list()->setCurrentRow(0);
    press(Qt::Key_F2);
    person::fill(at("frmAddItem"), "txtServe", "11");
    boxes.expect("Error!");
    press(Qt::Key_Escape);
    boxes.verify();
    EXPECT_EQ(list()->rowCount(), 0);
    EXPECT_TRUE(wholesale->isEnabled());
}

TEST_F(SalesDayInFrame, EntryAskedForAnotherDocumentAsksFirst) {
    const QString first = saveSale("2"), second = saveSale("3");
    edit(first);
    person::fill(entry(), "txtRemarks", "x");
    boxes.expect("Confirm Update Record!", "", BoxAnswer::Cancel);
    edit(second);
    EXPECT_FALSE(locked(second));
    EXPECT_TRUE(locked(first));
    EXPECT_EQ(read(entry(), "txtRemarks"), "x");
    boxes.expect("Confirm Update Record!", "", BoxAnswer::No);
    edit(second);
    EXPECT_TRUE(locked(second));
    EXPECT_FALSE(locked(first));
    openJournal();
    edit(second);
    EXPECT_EQ(person::focusName(), "txtRemarks");
    boxes.expect("Record Lock!");
    setRecordLock(store(), salesBook, first, true);
    edit(first);
    setRecordLock(store(), salesBook, first, false);
}

// All that a person sees on the screen.
QStringList seen(QWidget* screen) {
    QStringList texts;
    for (const QLineEdit* field : screen->findChildren<QLineEdit*>()) texts << field->text();
    for (const QStringList& row : person::find<ListView>(screen, "lvwItems")->rows()) texts << row;
    return texts;
}

TEST_F(SalesDayInFrame, ARefusedSaveKeepsAllAndGoesToTheFieldAtFault) {
    startSale();
    person::fill(entry(), "txtRemarks", "by truck");
    entry()->lines().addLine(makeOrderLine("I2", "Sugar", "PC", amount(1), amount(1), amount(6), amount(0)));
    person::fill(entry(), "txtRefDate", "02/30/2026");
    const QStringList before = seen(entry());
    // As it is left, and once more at the save.
    boxes.expect("Error!", "Invalid Date Value!").expect("Error!", "Invalid Date Value!");
    person::goTo(entry(), "txtRemarks");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(seen(entry()), before);
    EXPECT_EQ(person::focusName(), "txtRefDate");
    EXPECT_TRUE(entry()->mblnUpdated && entry()->mblnAddmode);
    person::type("2/3/26");
    boxes.expect("Saved!");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(valueOf(store(), "SELECT RefDate FROM tblSalesMaster"), "2026-02-03");
}

TEST_F(SalesDayInFrame, QuantityPopupGoesWithItsOrder) {
    const QString key = saveSale("2");
    edit(key);
    person::goTo(entry(), "lvwItems");
    list()->setCurrentRow(0);
    press(Qt::Key_Return);
    ASSERT_TRUE(at("frmInputInList"));
    boxes.expect("Confirm Update Record!", "", BoxAnswer::No);
    item("mnuRecordItem_5")->trigger();
    person::settle();
    boxes.verify();
    EXPECT_FALSE(entry());
    EXPECT_FALSE(at("frmInputInList"));
    EXPECT_FALSE(locked(key));
}

TEST_F(SalesDayInFrame, FiguresOfAContactGoWhenAnotherNameIsTyped) {
    saveSale("2");
    ScreenRegistry::instance().open("frmSalesEntry");
    person::settle();
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(read(entry(), "txtTerm") + " " + read(entry(), "txtCustomerBalance"), "0 Days 36.00");
    person::fill(entry(), "cboCustomer", "Lita");
    EXPECT_EQ(read(entry(), "txtTerm") + read(entry(), "txtCustomerBalance"), "0.00");
}
}  // namespace
