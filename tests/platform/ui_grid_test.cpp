#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/form.h"
#include "platform/ui/grid_picker.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <qabstractitemmodeltester.h>
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QStyleOptionViewItem>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

const QList<GridColumn> itemColumns = {{"Item Code", "ItemCode"},
                                       {"Description", "Description", GridColumn::Text, 30},
                                       {"Cost Price", "CostPrice", GridColumn::Amount},
                                       {"Balance", "Balance", GridColumn::Count}};

DataGrid::Source itemSource(const Sql& where = {}, const QString& order = " ORDER BY Description ASC") {
    return {"*", "tblItemMaster", "tblItemMaster", where, order};
}

QString codeOf(int item) { return QString("I%1").arg(item, 5, 10, QLatin1Char('0')); }

// Many items with few descriptions, so that the order has ties.
void addItems(Connection& store, int count) {
    std::vector<QVariantList> rows;
    for (int item = 0; item < count; ++item)
        rows.push_back({codeOf(item), QString("Kind %1").arg(item % 7), bound(Currency::fromInteger(item))});
    store.runMany("INSERT INTO tblItemMaster (ItemCode, Description, CostPrice) VALUES (?, ?, ?)", rows);
}

QStringList column(const DataGrid& grid, int column) {
    QStringList texts;
    for (int row = 0; row < grid.model()->rowCount(); ++row)
        texts += grid.model()->index(row, column).data().toString();
    return texts;
}

class UiGrid : public testing::Test {
  protected:
    void open(int items) {
        addItems(store.connection(), items);
        grid.setSource(store.connection(), itemSource());
    }
    TestStore store;
    DataGrid grid{"dbgItem", "adcItem", itemColumns};
};

}  // namespace

TEST_F(UiGrid, OpensWithOnePageAndThenListsEveryRowOnceInOrder) {
    open(350);
    EXPECT_EQ(grid.model()->rowCount(), 100);
    EXPECT_EQ(grid.recordCount(), 350);
    const QAbstractItemModelTester tester(grid.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    grid.fetchAll();
    const QStringList codes = column(grid, 0);
    EXPECT_EQ(codes.size(), 350);
    EXPECT_EQ(QSet<QString>(codes.begin(), codes.end()).size(), 350);
    const QStringList descriptions = column(grid, 1);
    EXPECT_TRUE(std::is_sorted(descriptions.begin(), descriptions.end()));
}

TEST_F(UiGrid, ScrollingFetchesWhatComesIntoView) {
    open(350);
    person::look(&grid);
    grid.setFocus();
    person::press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.currentText("Description"), "Kind 6");
    EXPECT_EQ(column(grid, 0).value(grid.model()->rowCount() - 1), grid.currentText("ItemCode"));
    EXPECT_EQ(column(grid, 0)[150], "") << "a page that nobody came to is fetched";
    person::settle();
    EXPECT_NE(column(grid, 0)[150], "") << "a page that was asked for is not fetched";
}

TEST_F(UiGrid, RowsWrittenWhileAPersonScrollsAreNeitherRepeatedNorLeftOut) {
    open(350);
    const QString shownFirst = grid.currentText("ItemCode");
    store.connection().run({"DELETE FROM tblItemMaster WHERE ItemCode = ?", {shownFirst}});
    store.connection().run(
        "INSERT INTO tblItemMaster (ItemCode, Description, CostPrice) VALUES ('NEW', 'A first one', 0)");
    grid.model()->fetchMore({});
    EXPECT_EQ(grid.model()->rowCount(), 351);
    store.connection().run({"DELETE FROM tblItemMaster WHERE ItemCode = ?", {codeOf(349)}});
    grid.fetchAll();
    const QStringList codes = column(grid, 0);
    EXPECT_EQ(codes.count("(gone)"), 1);
    EXPECT_EQ(codes.count("NEW"), 1);
    EXPECT_EQ(codes.first(), shownFirst) << "what was on show stays until the list is read again";
    EXPECT_EQ(QSet<QString>(codes.begin(), codes.end()).size(), 351);
}

TEST_F(UiGrid, KeepsItsPlaceWhenItIsAskedTo) {
    open(1000);
    grid.resize(600, 300);
    person::look(&grid);
    grid.selectKey("ItemCode", codeOf(703));
    grid.verticalScrollBar()->setValue(450);
    const auto top = [this] { return grid.indexAt({0, 0}).data().toString(); };
    person::settle();
    const QString before = top();
    grid.setSource(store.connection(), itemSource(), DataGrid::Place::Kept);
    person::settle();
    EXPECT_EQ(grid.currentText("ItemCode"), codeOf(703));
    EXPECT_EQ(top(), before);
    const int row = grid.currentIndex().row();
    store.connection().run({"DELETE FROM tblItemMaster WHERE ItemCode = ?", {codeOf(703)}});
    grid.setSource(store.connection(), itemSource(), DataGrid::Place::Kept);
    EXPECT_EQ(grid.currentIndex().row(), row) << "the next one";
    EXPECT_NE(grid.currentText("ItemCode"), codeOf(703));
}

TEST_F(UiGrid, ShowsValuesByTheirKindAndNumbersAtTheRight) {
    store.connection().run(
        {"INSERT INTO tblItemMaster (ItemCode, Description, CostPrice, Balance) VALUES (?, ?, ?, ?)",
         {"A1", "two\nlines", bound(amount(1234.5)), bound(amount(1200))}});
    grid.setSource(store.connection(), itemSource());
    EXPECT_EQ(grid.model()->index(0, 1).data(), "two lines");
    EXPECT_EQ(grid.currentText("Description"), "two\nlines");
    EXPECT_EQ(grid.model()->index(0, 2).data(), "1,234.50");
    EXPECT_EQ(grid.model()->index(0, 3).data(), "1,200");
    EXPECT_EQ(grid.currentText("SellingPrice"), "0");
    EXPECT_EQ(grid.currentText("DateUpdate"), "");
    EXPECT_TRUE(grid.model()->index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(UiGrid, AStatementThatFailsLeavesWhatItShowed) {
    open(5);
    EXPECT_THROW(grid.setSource(store.connection(), itemSource("WHERE Nonsense = 1")), StoreError);
    const DataGrid::Source lacksAColumn{"ItemCode, Description", "tblItemMaster", "tblItemMaster", {}, {}};
    EXPECT_THROW(grid.setSource(store.connection(), lacksAColumn), StoreError) << "not later, in painting";
    EXPECT_EQ(grid.model()->rowCount(), 5);
    EXPECT_TRUE(grid.hasCurrent());
}

TEST_F(UiGrid, APageThatCannotBeReadIsToldOnce) {
    open(150);
    grid.model()->fetchMore({});
    store.connection().run("ALTER TABLE tblItemMaster RENAME TO tblElsewhere");
    BoxScript boxes;
    boxes.expect("Error...");
    person::look(&grid);
    grid.scrollToBottom();
    person::settle();
    EXPECT_EQ(grid.model()->rowCount(), 150);
}

TEST_F(UiGrid, EnterDoubleClickDeleteAndHeadersAreTold) {
    open(20);
    person::look(&grid);
    const QSignalSpy picked(&grid, &DataGrid::picked);
    const QSignalSpy deleted(&grid, &DataGrid::deletePressed);
    const QSignalSpy header(&grid, &DataGrid::headerClicked);
    grid.setFocus();
    person::press(Qt::Key_Return);
    person::doubleClickRow(&grid, 3);
    EXPECT_EQ(picked.count(), 2);
    EXPECT_EQ(grid.currentText("ItemCode"), column(grid, 0)[3]);
    person::press(Qt::Key_Delete);
    person::press(Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(deleted.count(), 1) << "Shift+Del is the frame's";
    person::clickHeader(&grid, 2);
    ASSERT_EQ(header.count(), 1);
    EXPECT_EQ(header[0][0].toInt(), 2);
}

namespace {

// A screen with a field that a picker fills.
class Opener : public ChildScreen {
  public:
    Opener() : ChildScreen("frmOpener", "Opener") {
        auto* layout = new QGridLayout(this);
        form::row(layout, 0, 0, "&Item :", item);
        form::row(layout, 1, 0, "&Remarks :", remarks);
    }
    void activated() override { events += "activated"; }
    void deactivated() override { events += "deactivated"; }
    TextBox* item = new TextBox("txtItem");
    TextBox* remarks = new TextBox("txtRemarks");
    QStringList events;
};

class UiPicker : public UiGrid {
  protected:
    void SetUp() override {
        open(30);
        opener = new Opener;
        ScreenRegistry::instance().show(opener);
        person::look(opener);
    }
    void TearDown() override {
        delete picker;
        delete opener;
        person::settle();
    }
    void openPicker() {
        picker =
            new GridPicker("frmFound", "Item Search...", itemColumns, [this](const GridPicker::Row& row) {
                ++picks;
                opener->item->setText(row("ItemCode"));
                opener->activateWindow();
                opener->remarks->setFocus();
                person::settle();
            });
        QObject::connect(picker, &ChildScreen::unloaded, opener, [this] { ++unloads; });
        picker->list(store.connection(), itemSource(), {});
        ScreenRegistry::instance().show(picker);
        person::settle();
        ASSERT_TRUE(picker->isActiveWindow());
    }
    QPointer<Opener> opener;
    QPointer<GridPicker> picker;
    int picks = 0;
    int unloads = 0;
};

}  // namespace

TEST_F(UiPicker, APickFillsAndUnloadsOnceAlthoughTheFillMovesTheFocus) {
    openPicker();
    person::press(Qt::Key_Down);
    const QString code = picker->grid()->currentText("ItemCode");
    person::press(Qt::Key_Return);
    EXPECT_FALSE(picker);
    EXPECT_EQ(opener->item->text(), code);
    EXPECT_EQ(person::focusName(), "txtRemarks");
    EXPECT_EQ(picks, 1);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(opener->events, QStringList("activated")) << "its own picker is no other part";
}

TEST_F(UiPicker, EscAndTheLossOfTheFocusUnloadWithoutAPick) {
    openPicker();
    person::press(Qt::Key_Escape);
    EXPECT_FALSE(picker);
    EXPECT_TRUE(opener->isActiveWindow());
    openPicker();
    opener->activateWindow();
    opener->item->setFocus();
    person::settle();
    EXPECT_FALSE(picker);
    EXPECT_EQ(picks, 0);
    EXPECT_EQ(unloads, 2);
    EXPECT_EQ(opener->events, QStringList("activated"));
}

namespace {

QStringList firsts(const ListView& list) {
    QStringList texts;
    for (const QStringList& row : list.rows()) texts += row.first();
    return texts;
}

const QList<QStringList> someRows = {{"b", "1,000.00", "02/03/2026"},
                                     {"A", "9.5", "12/31/2025"},
                                     {"c", "-3", "01/01/2026"},
                                     {"a", "9.50", "02/03/2026"},
                                     {"d", "none", ""}};

}  // namespace

TEST(UiList, SortsByKindStablyInBothDirections) {
    const struct {
        const char* name;
        int column;
        QStringList ascending, descending;
    } cases[] = {
        {"texts without regard to case", 0, {"A", "a", "b", "c", "d"}, {"d", "c", "b", "A", "a"}},
        {"amounts as numbers", 1, {"d", "c", "A", "a", "b"}, {"b", "A", "a", "c", "d"}},
        {"dates as dates", 2, {"d", "A", "c", "b", "a"}, {"b", "a", "c", "A", "d"}},
    };
    for (const auto& row : cases) {
        ListView list("lvwItems",
                      {{"Code"}, {"Total", 12, ListColumn::Number}, {"Date", 12, ListColumn::Date}});
        const QAbstractItemModelTester tester(list.model(),
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        list.setRows(someRows);
        list.setCurrentRow(0);
        list.toggleSort(row.column);
        EXPECT_EQ(firsts(list), row.ascending) << row.name;
        EXPECT_EQ(list.text(list.currentRow(), 0), "b") << "the selected row stays selected";
        list.toggleSort(row.column);
        EXPECT_EQ(firsts(list), row.descending) << row.name;
        EXPECT_EQ(list.sortOrder(), Qt::DescendingOrder);
        list.setRows(someRows);
        EXPECT_EQ(list.sortedColumn(), -1) << "new rows stand in their own order";
    }
}

TEST(UiList, TheTextsAreTheData) {
    ListView list("lvwItems", {{"Code"}, {"Total", 12, ListColumn::Number}});
    const QString endless(100000, u'x');
    EXPECT_EQ(list.addRow({"A"}), 0);
    list.addRow({"two\nlines", "1,234.50"});
    list.setText(0, 1, endless);
    EXPECT_EQ(list.row(0), QStringList({"A", endless}));
    EXPECT_LT(list.model()->index(0, 1).data().toString().size(), 1000) << "the screen shows its beginning";
    EXPECT_EQ(list.text(1, 0), "two\nlines");
    EXPECT_EQ(list.model()->index(1, 0).data(), "two lines");
    EXPECT_EQ(list.findRow(0, "TWO\nLINES"), 1);
    EXPECT_EQ(list.findRow(0, "no"), -1);
    list.removeRow(0);
    EXPECT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.text(5, 5), "");
}

TEST(UiList, MarksAreSetByKeyAndClickAndGoWithTheirRows) {
    ListView list("lvwRecord", {{"No."}, {"Date", 12, ListColumn::Date}});
    const QAbstractItemModelTester tester(list.model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    list.showMarks();
    list.setRows({{"1", "12-31-2025"}, {"2", "02-01-2026"}, {"3", "01-15-2026"}});
    person::look(&list);
    list.setCurrentRow(0);
    const QSignalSpy changes(&list, &ListView::marksChanged);
    person::press(Qt::Key_Space);
    QStyleOptionViewItem option;
    option.rect = list.visualRect(list.model()->index(2, 0));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center());
    EXPECT_EQ(list.markedRows(), (QList<int>{0, 2}));

    list.toggleSort(1);
    list.toggleSort(1);
    EXPECT_EQ(firsts(list), (QStringList{"2", "3", "1"}));
    EXPECT_EQ(list.markedRows(), (QList<int>{1, 2}));
    list.removeRow(1);
    EXPECT_EQ(list.markedRows(), QList<int>{1});
    person::press(Qt::Key_Home);
    person::press(Qt::Key_End);
    person::press(Qt::Key_Space);
    EXPECT_EQ(list.markedRows(), QList<int>());
    list.setAllMarked(true);
    EXPECT_EQ(list.markedRows().size(), 2);
    EXPECT_EQ(changes.size(), 4) << "two keys, a click, and all at once";
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&list)->child(2)->state().checked)
        << "the first cell below two headings";
    list.setRows({{"4", ""}});
    EXPECT_FALSE(list.isMarked(0));
}
