// The first screenful of a journal and of the pickers, against the bare query with a limit of 100 on the
// driver's handle; and the pending checks of both sides, against their bare query and the filling of a bare
// list.
//
//     journal_bench [documents = 1000] [rows of a picker = 50000] [pending checks = 10000]
#include "bench/bare.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "masters/frmContactFound.h"
#include "masters/frmFound.h"
#include "masters/order_pickers.h"
#include "platform/store/transaction.h"
#include "purchases/frmPurchaseGrid.h"
#include "purchases/issued_checks.h"
#include "sales/frmSalesGrid.h"
#include "sales/received_checks.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTemporaryDir>

namespace {
// The numbers from 1 to a bound one, as the table n(i).
const QString counted = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) ";

void fill(const QString& insert, qint64 rows) { StoreConnection().run({counted + insert, {rows}}); }

// One document in five hundred is still to be printed.
void fillDocuments(const char* table, const char* key, const char* date, const char* amount, qint64 rows) {
    fill(QString(
             "INSERT INTO %1 (%2, %3, ContactNo, %4, Remarks, Printed, RecordLock, Balance, UpdatedBy,"
             " DateUpdate) SELECT substr('0' || (i % 12 + 1), -2) || '-' || (1000 + i) || '-2026',"
             " date('2024-01-01', (i / 300) || ' days'), 1000000001 + i * 7919 % 2000, i * 77777 % 99990000,"
             " 'Deliver before noon', CASE WHEN i % 500 = 0 THEN 0 ELSE -1 END, 0, 0,"
             " CASE i % 3 WHEN 0 THEN 'ADMIN' ELSE 'CLERK' || (i % 3) END,"
             " datetime('2024-01-01', (i / 300) || ' days', (i % 300) || ' minutes') FROM n")
             .arg(QString(table), QString(key), QString(date), QString(amount)),
         rows);
}

void fillMasters(qint64 rows) {
    fill(
        "INSERT INTO tblContactMaster (ContactID, ContactName, Address, TelNo, Terms, IsCustomer, IsSupplier)"
        " SELECT 1000000000 + i, 'Trader ' || (i * 7919 % 100003), i || ' Rizal Street', '555-' || i, 30,"
        " -(i % 3 > 0), -(i % 3 = 0) FROM n",
        rows);
    fill(
        "INSERT INTO tblItemMaster (ItemCode, Description, Unit, Locator, SupplierCode, CostPrice,"
        " SellingPrice, Balance) SELECT 1000000000 + i, 'Goods ' || (i * 7919 % 100003), 'PC', 'A' || i,"
        " 1000000000 + i % 2000, 100000, 120000, 0 FROM n",
        rows);
}

void fillChecks(qint64 rows) {
    fill(
        "INSERT INTO tblReceiptMaster (PayNo, CustomerNo, PaymentDate) SELECT i, 1000000001 + i % 900,"
        " date('2026-01-01', (i % 300) || ' days') FROM n",
        rows);
    fill(
        "INSERT INTO tblReceiptDetails (ZevRef, PayCode, Reference, Amount, CheckNo, CheckDate, CheckStatus,"
        " Negotiated) SELECT i, i, '01-' || i || '-2026', i * 7777, 'BPI ' || i,"
        " date('2026-01-01', (i % 300) || ' days'), 'Pending', 0 FROM n",
        rows);
    fill(
        "INSERT INTO tblDisbursementMaster (VoucherNo, VoucherDate, ContactNo) SELECT '01-' || i || '-2026',"
        " date('2026-01-01', (i % 300) || ' days'), 1000000001 + i % 900 FROM n",
        rows);
    fill(
        "INSERT INTO tblChecks (ZevRef, VoucherID, CheckNo, CheckDate, CheckAmount, ContactNo, CheckStatus,"
        " Negotiated) SELECT i, '01-' || i || '-2026', '88' || i, date('2026-01-01', (i % 300) || ' days'),"
        " i * 7777, 1000000001 + i % 900, 'Pending', 0 FROM n",
        rows);
}

void makeStore(const QString& path, qint64 documents, qint64 masters, qint64 checks) {
    registerSchema();
    makeDeliveredStore(path);
    StoreConnection().open(path, storePassword);
    Transaction unit(StoreConnection());
    fillMasters(masters);
    fillDocuments("tblSalesMaster", "RefNo", "RefDate", "TotalAmount", documents);
    fillDocuments("tblPurchaseMaster", "PurchaseNo", "PurchaseDate", "PurchaseAmount", documents);
    fillChecks(checks);
    unit.commit();
}

struct View {
    QString name;
    DataGrid::Source source;
};

View viewOf(const JournalBook& book, const JournalQuery& query, const QString& name) {
    return {QString(book.screen) + ' ' + name,
            {query.columns(), query.from(), book.tables.table, query.where(), query.order()}};
}

QList<View> filteredViews(const JournalBook& book) {
    JournalQuery unprinted(book.tables);
    unprinted.setPrintedFilter(false, false);
    JournalQuery printed(book.tables);
    printed.setPrintedFilter(true, false);
    return {viewOf(book, unprinted, "as it opens"), viewOf(book, printed, "printed")};
}

QList<View> sortedViews(const JournalBook& book) {
    QList<View> views;
    for (const GridColumn& column : book.columns) {
        JournalQuery query(book.tables);
        query.setOrder(column.order);
        views += viewOf(book, query, "by " + column.heading);
    }
    return views;
}

View searchedView(const JournalBook& book, const QString& category, const QString& text, bool exact,
                  bool unprinted) {
    JournalQuery query(book.tables);
    if (unprinted) query.setPrintedFilter(false, true);
    query.search(category, text, exact);
    return viewOf(
        book, query,
        QString("%1 %2 \"%3\"%4").arg(category, exact ? "=" : "like", text, unprinted ? ", unprinted" : ""));
}

QList<View> searchedViews(const JournalBook& book) {
    QList<View> views;
    for (const bool unprinted : {false, true}) {
        views += searchedView(book, book.tables.fields[0].caption, "99", false, unprinted);
        views += searchedView(book, book.tables.fields[1].caption, "2/1/2024", true, unprinted);
        views += searchedView(book, book.initialField, "1", false, unprinted);
        views += searchedView(book, book.initialField, "Trader 7919", true, unprinted);
        views += searchedView(book, "Total Amount", "7.7777", true, unprinted);
        views += searchedView(book, "Remarks", "noon", false, unprinted);
        views += searchedView(book, "Who Updated", "ADMIN", true, unprinted);
    }
    return views;
}

QList<View> pickerViews() {
    const QString trader = "1000000001";
    QList<View> views;
    for (const char* text : {"", "7"}) {
        views += {QString("frmFound description \"%1\"").arg(text), itemFoundSource(text, "D")};
        views += {QString("frmFound code \"%1\"").arg(text), itemFoundSource(text, "P")};
        views += {QString("frmContactFound all \"%1\"").arg(text), contactFoundSource(text, "")};
        views += {QString("frmContactFound customers \"%1\"").arg(text), contactFoundSource(text, "C")};
        views += {QString("frmSalesFound \"%1\"").arg(text), salesFoundSource(text, trader, "")};
        views += {QString("frmSalesFound owed \"%1\"").arg(text), salesFoundSource(text, trader, "R")};
        views +=
            {QString("frmDisbursementFound \"%1\"").arg(text), disbursementFoundSource(text, trader, "")};
        views += {QString("frmDisbursementFound owed \"%1\"").arg(text),
                  disbursementFoundSource(text, trader, "A")};
    }
    return views;
}

Sql firstRows(const DataGrid::Source& source) {
    Sql query = Sql{"SELECT " + source.columns + " FROM " + source.from} + source.where;
    query.text.replace("= True", "= -1").replace("= False", "= 0");
    // Bound, as the grid has it: a limit that is written gives the engine another plan.
    return query + Sql{source.order + " LIMIT ?", {100}};
}

void measure(const QList<View>& views) {
    Connection& store = StoreConnection();
    DataGrid grid("dbgMyGrid", "adcMyControl", {{"Remarks", "Remarks"}});
    for (const View& view : views) {
        const Sql first = firstRows(view.source);
        const auto [gridTime, bareTime] = bare::medians([&] { grid.setSource(store, view.source); },
                                                        [&] { bare::readAll(store.handle(), first); });
        bare::report(view.name, gridTime, bareTime);
    }
}
// The texts of the rows, in a list model that knows nothing but them.
void fillBareList(const QList<CheckRow>& rows, int columns) {
    QStandardItemModel model(static_cast<int>(rows.size()), columns);
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < columns; ++column)
            model.setItem(row, column, new QStandardItem(rows[row].texts[column]));
}

void measureChecks(const CheckScreen& screen) {
    const CheckBook& book = *screen.book;
    Connection& store = StoreConnection();
    const CheckView& pending = book.views.first();
    const auto rows = std::get<QList<CheckRow>>(loadChecks(store, book, pending.name, {}));
    const auto columns = static_cast<int>(book.columns.size());
    Sql query = checksOf(book, pending, {});
    query.text.replace("= True", "= -1").replace("= False", "= 0");
    CheckList list(screen);
    const auto [listTime, bareTime] = bare::medians([&] { list.LoadGrid({}); },
                                                    [&] {
                                                        bare::readAll(store.handle(), query);
                                                        fillBareList(rows, columns);
                                                    });
    bare::report(QString("%1, %2 pending").arg(screen.name).arg(rows.size()), listTime, bareTime);
}
}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    makeStore(folder.filePath(storeFileName), argc > 1 ? atoll(argv[1]) : 1000,
              argc > 2 ? atoll(argv[2]) : 50000, argc > 3 ? atoll(argv[3]) : 10000);
    for (const JournalBook* book : {&salesJournal(), &purchaseJournal()}) {
        measure(filteredViews(*book));
        measure(sortedViews(*book));
        measure(searchedViews(*book));
    }
    measure(pickerViews());
    for (const CheckScreen* screen : {&receivedCheckScreens, &issuedCheckScreens}) measureChecks(*screen);
}
