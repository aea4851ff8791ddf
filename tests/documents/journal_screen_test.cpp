#include "books/posting_queue.h"
#include "documents/journal.h"
#include "foundation/shared_routines.h"
#include "foundation/store_place.h"
#include "platform/store/transaction.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "purchases/frmPurchaseGrid.h"
#include "sales/frmSalesGrid.h"
#include "support/box_script.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <QAbstractButton>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
// Stands in for the entry screen: notes what it is opened with.
class StubEntry : public RecordScreen {
  public:
    explicit StubEntry(const QString& name) : RecordScreen(name, "Entry") {}
    bool receive(const ScreenArguments& arguments) override {
        received += arguments;
        mblnAddmode = arguments.key.isEmpty();
        setProperty("mstrPrimary", arguments.key);
        return true;
    }
    static inline QList<ScreenArguments> received;
};

class JournalScreen : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        for (const char* entry : {"frmSalesEntry", "frmPurchaseEntry"})
            ScreenRegistry::instance().add(entry, [entry] { return new StubEntry(entry); });
        StubEntry::received.clear();
        store().run(
            "INSERT INTO tblContactMaster (ContactID, ContactName) VALUES ('C1', 'Reyes Trading'),"
            " ('C2', 'cruz Store'), ('C3', 'Abad Sari-Sari')");
        sale("3", "C1", {2026, 3, 1}, 300, false);
        sale("1", "C2", {2026, 3, 3}, 100, false);
        sale("2", "C3", {2026, 3, 2}, 200, true);
        open();
    }
    void TearDown() override {
        journal.reset();
        for (ChildScreen* screen : ScreenRegistry::instance().openScreens()) delete screen;
        SessionTest::TearDown();
    }

    void sale(const char* number, const char* contact, QDate date, int amount, bool printed) {
        insertRow(store(), "tblSalesMaster",
                  "RefNo, RefDate, ContactNo, TotalAmount, Remarks, Printed, UpdatedBy, DateUpdate",
                  {number, date, contact, bound(Currency::fromInteger(amount)), QString("note ") + number,
                   printed, printed ? "ADMIN" : "CLERK", QDateTime(date, QTime(8, 0))});
    }

    void open() { journal = std::make_unique<frmSalesGrid>(); }
    template <class Control>
    Control* control(const QString& name) const {
        return journal->findChild<Control*>(name);
    }
    DataGrid* grid() const { return control<DataGrid>("dbgMyGrid"); }
    void press(const char* button) const { control<QAbstractButton>(button)->click(); }
    void search(const char* category, const char* text) const {
        control<ComboBox>("cboSearch")->setText(category);
        control<TextBox>("txtSearch")->setText(text);
        press("cmdSearch");
    }
    // The numbers of the listed documents, from the top.
    QString listed() const {
        grid()->fetchAll();
        QString numbers;
        for (int row = 0; row < grid()->model()->rowCount(); ++row)
            numbers += grid()->model()->index(row, 0).data().toString();
        return numbers;
    }
    bool lockedInStore(const QString& number) {
        return FlagFieldSet(store(), "tblSalesMaster", "RefNo", number, "RecordLock");
    }
    void select(const char* number) const { grid()->selectKey("RefNo", number); }

    BoxScript boxes;
    std::unique_ptr<Journal> journal;
};

TEST_F(JournalScreen, EveryOptionAndEveryHeaderListsInItsOrder) {
    EXPECT_EQ(listed(), "31") << "what is not printed, in the order of the store";
    EXPECT_EQ(control<ComboBox>("cboSearch")->text(), QString("Customer Name"));
    EXPECT_EQ(journal->windowTitle(), QString("Sales Journal Data Grid . . ."));
    const QList<std::pair<const char*, QString>> options{{"optPackNo", "123"},   {"optCustomer", "213"},
                                                         {"optPackDate", "321"}, {"optTotalAmount", "123"},
                                                         {"optPrinted", "2"},    {"optUnPrinted", "31"}};
    for (const auto& [name, numbers] : options) {
        press(name);
        EXPECT_EQ(listed(), numbers) << name;
    }
    setRecordLock(store(), salesBook, "3", true);
    const QStringList headers{"123", "321", "213", "123", "312", "231", "231", "321"};
    for (int column = 0; column < headers.size(); ++column) {
        emit grid()->headerClicked(column);
        EXPECT_EQ(listed(), headers[column]) << column;
    }
}

TEST_F(JournalScreen, ASearchKeepsTheFilterItWasOpenedWith) {
    search("Customer Name", "a");
    EXPECT_EQ(listed(), "3");
    press("optPrinted");
    EXPECT_EQ(listed(), "2");
    press("optPackNo");
    EXPECT_EQ(listed(), "23");
}

TEST_F(JournalScreen, EverySearchFindsItsDocuments) {
    press("optPackNo");
    const struct {
        const char *category, *text;
        bool exact;
        const char* found;
    } cases[] = {{"Delivery No.", "2", true, "2"},
                 {"Delivery Date", "3/2/2026", false, "2"},
                 {"Customer Name", "CRUZ", false, "1"},
                 {"Customer Name", "CRUZ", true, ""},
                 {"Customer Name", "CRUZ STORE ", true, "1"},
                 {"Total Amount", "200.00", false, "2"},
                 {"Delivery No.", "2", false, "2"},
                 {"Remarks", "note", false, "123"},
                 {"Remarks", "note", true, ""},
                 {"Who Updated", "clerk", true, "13"},
                 {"Remarks", "%", false, "123"},
                 {"Remarks", "x' OR '1'='1", false, ""}};
    for (const auto& row : cases) {
        press(row.exact ? "optExact" : "optAny");
        search(row.category, row.text);
        EXPECT_EQ(listed(), row.found) << row.category << ' ' << row.text;
    }
}

TEST_F(JournalScreen, ClearedTextShowsTheLastResultInItsSort) {
    press("optPackDate");
    search("Who Updated", "CLERK");
    EXPECT_EQ(listed(), "31");
    search("Who Updated", "");
    EXPECT_EQ(listed(), "31");
    press("optPackNo");
    EXPECT_EQ(listed(), "13");
}

TEST_F(JournalScreen, AFilterWithoutATextBehindAFormerSearchIsTheErrorOfTheStore) {
    search("Who Updated", "CLERK");
    control<TextBox>("txtSearch")->clear();
    boxes.expect("Error...");
    press("optPrinted");
    EXPECT_EQ(listed(), "31");
    search("Who Updated", "ADMIN");
    EXPECT_EQ(listed(), "2");
}

TEST_F(JournalScreen, WhatDoesNotConvertIsShownAndKeptWithTheSearchBefore) {
    search("Customer Name", "a");
    boxes.expect("Error...");
    search("Delivery Date", "31/31/2026");
    boxes.expect("Error...");
    search("Total Amount", "1.2.3");
    boxes.expect("Error!", "Criteria does not exist!");
    search("Colour", "red");
    EXPECT_EQ(control<TextBox>("txtSearch")->text(), QString("red"));
    EXPECT_EQ(listed(), "3");
    control<TextBox>("txtSearch")->clear();
    press("optPackNo");
    EXPECT_EQ(listed(), "23");
}

TEST_F(JournalScreen, SearchTextTakesTheKeysOfItsCategory) {
    auto* text = control<TextBox>("txtSearch");
    const QList<std::pair<const char*, QString>> cases{
        {"Delivery Date", "12/-"}, {"Total Amount", "12."}, {"Remarks", "1a2/-."}};
    for (const auto& [category, kept] : cases) {
        control<ComboBox>("cboSearch")->setText(category);
        text->clear();
        QTest::keyClicks(text, "1a'2/-.");
        EXPECT_EQ(text->text(), kept) << category;
    }
}

TEST_F(JournalScreen, KeysOfTheSearchText) {
    journal->show();
    auto* text = control<TextBox>("txtSearch");
    text->setText("cruz");
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(listed(), "1");
    QTest::keyClick(text, Qt::Key_Down);
    EXPECT_EQ(journal->focusWidget(), grid());
    QSignalSpy closed(journal.get(), &ChildScreen::unloaded);
    journal->setAttribute(Qt::WA_DeleteOnClose, false);
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_EQ(closed.size(), 1);
}

TEST_F(JournalScreen, ShowsAtOnceAndInItsRowWhatItsOwnProgramDoes) {
    const auto cell = [this](int row, const char* column) {
        QTest::qWait(60);  // a unit that has ended is looked at again after fifty milliseconds
        person::settle();
        const int place =
            static_cast<int>(std::ranges::find(salesJournal().columns, column, &GridColumn::column) -
                             salesJournal().columns.begin());
        return grid()->model()->index(row, place).data().toString();
    };
    select("1");
    store().run("UPDATE tblSalesMaster SET Printed = True, RecordLock = True WHERE RefNo = '3'");
    EXPECT_EQ(cell(0, "Printed") + cell(0, "RecordLock") + listed(), "YesYes31");
    {
        const Transaction undone(store());
        store().run("UPDATE tblSalesMaster SET RecordLock = True WHERE RefNo = '1'");
        EXPECT_EQ(cell(1, "RecordLock"), "No") << "not before it is in the store";
    }
    EXPECT_EQ(cell(1, "RecordLock"), "No");
    Connection other;
    other.open(storePlace(), passwordFor(storePlace()));
    setRecordLock(other, salesBook, "1", true);
    EXPECT_EQ(cell(1, "RecordLock"), "No");
    journal->RefreshRecord();
    EXPECT_EQ(cell(0, "RecordLock") + listed(), "Yes1") << "with a refresh, which drops what is printed";
    emit grid()->headerClicked(0);
    select("2");
    sale("4", "C1", QDate(2026, 3, 4), 400, false);
    EXPECT_EQ(cell(3, "RefNo") + grid()->currentText("RefNo"), "42") << "in its place of the sort";
    store().run("DELETE FROM tblSalesMaster WHERE RefNo = '2'");
    QTest::qWait(0);
    EXPECT_EQ(listed() + grid()->currentText("RefNo"), "1343") << "the next one takes the mark";
}

TEST_F(JournalScreen, EditTakesTheLockAndOpensTheDocument) {
    select("1");
    for (const char* way : {"cmdEdit", "picked"}) {
        if (way == QString("picked"))
            emit grid()->picked();
        else
            press(way);
        EXPECT_EQ(StubEntry::received.size(), 1) << way;
        EXPECT_EQ(StubEntry::received.last().key, QString("1")) << way;
        EXPECT_TRUE(lockedInStore("1")) << way;
    }
    EXPECT_FALSE(lockedInStore("3"));
    press("cmdNew");
    EXPECT_EQ(StubEntry::received.last(), ScreenArguments());
}

TEST_F(JournalScreen, EditOfALockedGoneOrMissingDocument) {
    select("1");
    setRecordLock(store(), salesBook, "1", true);
    const Box locked = critical(
        "Record Lock!",
        "Record is Being Locked! You Cannot Edit This Record! Please Ask Administrator to Unlock Record!");
    boxes.expect(locked);
    journal->EditRecord();
    EXPECT_EQ(boxes.shown().last().icon, BoxIcon::Critical);
    const Box nothing =
        exclamation("Error!", "Please select proper record to EDIT! There's nothing to EDIT!");
    store().run("DELETE FROM tblSalesMaster");
    boxes.expect(nothing);
    journal->EditRecord();
    journal->RefreshRecord();
    boxes.expect(nothing);
    journal->EditRecord();
    EXPECT_TRUE(StubEntry::received.isEmpty());
}

const Box confirm =
    question("Confirm Delete", "Confirm Deletion of this Record. Delete Record Now?", BoxAnswer::No);

TEST_F(JournalScreen, DeleteAsksRemovesAndLists) {
    select("1");
    QueueBookForPosting(store(), "S", "1", "C2", QDate(2026, 3, 3));
    boxes.expect(confirm, BoxAnswer::No);
    press("cmdDelete");
    EXPECT_EQ(boxes.shown().last(), confirm);
    EXPECT_EQ(listed(), "31");
    select("1");
    boxes.expect(confirm, BoxAnswer::Yes);
    press("cmdDelete");
    EXPECT_EQ(listed(), "3");
    EXPECT_FALSE(HasPendingPosting(store()));
}

TEST_F(JournalScreen, DeleteOfAPaidDocumentAndOfNothing) {
    select("3");
    store().run("INSERT INTO tblReceiptDetails (ZevRef, Reference, Amount) VALUES (1, '3', 0)");
    boxes.expect(confirm, BoxAnswer::Yes);
    boxes.expect(
        "Error!",
        "You Cannot Delete This Sales Order, You have Tag Payment with This Order! Remove Payment First!");
    journal->DeleteRecord();
    EXPECT_EQ(listed(), "31");
    search("Delivery No.", "none");
    boxes.expect(confirm, BoxAnswer::Yes);
    boxes.expect("Nothing to Delete!", "Can't You See There is Nothing to Delete!");
    journal->DeleteRecord();
}

TEST_F(JournalScreen, WithoutRightsNothingIsDeletedOrPrinted) {
    store().run("UPDATE tblUserMaster SET PrintDRAccess = False, DeleteDRAccess = False");
    open();
    EXPECT_FALSE(control<QWidget>("cmdDelete")->isEnabled());
    EXPECT_FALSE(control<QWidget>("cmdPrint")->isEnabled());
    EXPECT_FALSE(journal->property("deleteAllowed").toBool());
    boxes.expect(critical("Access Denied!", "You don't have Permission to Delete Record!"));
    journal->DeleteRecord();
    boxes.expect(critical("Access Denied!", "You don't have Permission to Print Record!"));
    journal->PrintRecord();
    journal = std::make_unique<frmPurchaseGrid>();
    EXPECT_TRUE(journal->property("deleteAllowed").toBool());
}

TEST_F(JournalScreen, PrintOfNothing) {
    search("Delivery No.", "none");
    boxes.expect("Nothing to Print!", "No Records to Print...");
    press("cmdPrint");
}

}  // namespace
