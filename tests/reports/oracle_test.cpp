#include "demo/demo_firm.h"
#include "foundation/shared_routines.h"
#include "reports/checks/due_checks.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/lists/prtContactList.h"
#include "reports/printed_rows.h"
#include "support/test_store.h"

#include <gmock/gmock.h>

// Every figure of the demo firm's reports against a plain reading of its books, which shares nothing with the
// reports.
namespace {
using Row = Recordset;

// "1,234.50", as it is printed with two places, or with four.
QString printedWith(int places, Currency value) {
    const qint64 whole = places == 2 ? 100 : 10000;
    const qint64 parts = (std::abs(value.tenThousandths()) + 5000 / whole) / (10000 / whole);
    QString pesos = QString::number(parts / whole);
    for (qsizetype place = pesos.size() - 3; place > 0; place -= 3) pesos.insert(place, ',');
    const QString sign = value.isNegative() && parts > 0 ? "-" : "";
    return sign + pesos + '.' + QString::number(parts % whole).rightJustified(places, '0');
}

QString printedAmount(Currency value) { return printedWith(2, value); }
QString printedPrice(Currency value) { return printedWith(4, value); }

// What a line shows in one column, and the figure behind it.
struct Shown {
    QString text;
    Currency figure = {};
    Shown(const QString& shown) : text(shown) {}
    Shown(Currency value) : text(printedAmount(value)), figure(value) {}
};

Shown shownOf(const Row& row, const QString& column) {
    if (row.kind(column) == ColumnKind::Currency) return row.currency(column);
    if (row.kind(column) == ColumnKind::Date) return row.dateTime(column).toString("MM/dd/yyyy");
    return row.trimmed(column);
}

Currency firstDiscount(Connection& store, const QString& refNo) {
    const Row paid = store.execute(
        {"SELECT Discount FROM tblReceiptDetails WHERE Reference = ? ORDER BY ZevRef LIMIT 1", {refNo}});
    return paid.eof() ? Currency() : paid.currency("Discount");
}

// The discount that was given when it was paid, line by line.
Currency paymentDiscount(Connection& store, const QString& column, const QString& value) {
    Currency sum;
    for (Row line = store.execute({"SELECT * FROM tblSalesDetails WHERE " + column + " = ?", {value}});
         !line.eof(); line.moveNext()) {
        const Currency price = line.currency("UnitPrice");
        const Currency net = price - PercentOf(line.currency("Discount"), price);
        sum += PercentOf(firstDiscount(store, line.text("Reference")), net) * line.currency("Served");
    }
    return sum;
}

// The one value that a statement finds; 0 without one.
Currency figureOf(Connection& store, const QString& statement, const QVariantList& values) {
    const Row row = store.execute({"SELECT (" + statement + ") AS Figure", values});
    return Currency::fromTenThousandths(row.value("Figure").toLongLong());
}

Currency quotient(Currency dividend, Currency divisor) {
    return divisor.isZero() ? Currency() : Currency::fromDouble(dividend.toDouble() / divisor.toDouble());
}

QList<Shown> profitOfSale(Connection& store, const Row& row) {
    const QString sale = row.text("RefNo");
    const Currency net = row.currency("TotalAmount") - paymentDiscount(store, "Reference", sale);
    const Currency cost = figureOf(
        store, "SELECT SUM(SalesCost) FROM tblStockValuation WHERE BookID = 'S' AND Reference = ?", {sale});
    return {net, cost, net - cost};
}

QList<Shown> profitOfLine(Connection& store, const Row& row) {
    const QString sale = row.text("Reference");
    const Currency served = row.currency("Served"), price = row.currency("UnitPrice");
    const Currency granted =
        figureOf(store, "SELECT SUM(DiscountAmount) FROM tblReceiptDetails WHERE Reference = ?", {sale});
    const Currency percent =
        quotient(granted * Currency::fromInteger(100),
                 figureOf(store, "SELECT TotalAmount FROM tblSalesMaster WHERE RefNo = ?", {sale}));
    const Currency net = NetOfPercent(percent, NetOfPercent(row.currency("Discount"), price));
    const Currency cost =
        quotient(figureOf(store,
                          "SELECT SalesCost FROM tblStockValuation WHERE BookID = 'S' AND Reference = ? AND "
                          "ItemCode = ? ORDER BY ZevRef LIMIT 1",
                          {sale, row.text("ItemID")}),
                 served);
    return {printedPrice(price), printedPrice(net),        price * served,       net * served,
            printedPrice(cost),  printedPrice(net - cost), (net - cost) * served};
}

// Of the newest goods that came in, as many as are on hand.
QList<Shown> valueOfStock(Connection& store, const Row& item) {
    Row row =
        store.execute({"SELECT * FROM tblStockValuation WHERE ItemCode = ? ORDER BY TransDate DESC, BookID "
                       "DESC, ZevRef DESC",
                       {item.text("ItemCode")}});
    Currency left = row.eof() ? Currency() : row.currency("Balance");
    Currency value;
    for (; !row.eof() && left > Currency(); row.moveNext()) {
        const Currency taken = std::min(left, row.currency("StockIn"));
        value += taken * row.currency("InPrice");
        left -= taken;
    }
    return {value};
}

QList<Shown> movedAmounts(Connection& store, const Row& row) {
    const Currency out = row.currency("StockOut");
    const Currency charged =
        figureOf(store, "SELECT Total FROM tblSalesDetails WHERE Reference = ? AND ItemID = ?",
                 {row.text("Reference"), row.text("ItemCode")});
    const Currency price =
        row.text("BookID") == "P"
            ? Currency()
            : quotient(charged - PercentOf(firstDiscount(store, row.text("Reference")), charged), out);
    return {printedPrice(price), row.currency("StockIn") * row.currency("InPrice"), out * price};
}

QList<Shown> balancesOf(Connection& store, const Row& row) {
    const QVariantList contact{row.text("ContactID")};
    const auto sum = [&](const char* rows) { return figureOf(store, QString("SELECT SUM") + rows, contact); };
    return {
        sum("(TotalAmount) FROM tblSalesMaster WHERE ContactNo = ?") -
            sum("(PaymentAmount) FROM tblReceiptMaster WHERE CustomerNo = ?") -
            sum("(TotalDiscAmount) FROM tblReceiptMaster WHERE CustomerNo = ?"),
        sum("(PurchaseAmount) FROM tblPurchaseMaster WHERE ContactNo = ?") -
            sum("(PayAmount) FROM tblDisbursementDetails WHERE DirectPayment = 0 AND VoucherID IN (SELECT "
                "VoucherNo FROM tblDisbursementMaster WHERE ContactNo = ?)")};
}

using Adds = QList<Shown> (*)(Connection& store, const Row& row);
struct Reading {
    const char* name;
    std::optional<ReportJobParts> (*report)(Connection& store);
    QList<int> lefts;     // of its columns,
    const char* columns;  // which stand in these, in the same order,
    const char* from;
    Adds adds = nullptr;           // and behind them here
    QList<int> totals = {};        // the columns that are totalled
    const char* unseen = nullptr;  // columns that the figures are reckoned from
};

template <const char* kind, const char* option>
std::optional<ReportJobParts> journal(Connection& store) {
    return transactionReport(store, {.kind = kind, .selection = option, .allDays = true});
}
constexpr char S[] = "S", R[] = "R", P[] = "P", D[] = "D", summary[] = "optSummary",
               detailed[] = "optDetailed", PROFIT[] = "PROFIT";

std::optional<ReportJobParts> busiestStockCard(Connection& store) {
    return stockCardReport(
        store,
        {.allDays = true,
         .item = valueOf(
             store,
             "SELECT ItemCode FROM tblStockValuation GROUP BY ItemCode ORDER BY COUNT(*) DESC, ItemCode")});
}
std::optional<ReportJobParts> items(Connection& store) { return inventoryReport(store, {.allDays = true}); }
std::optional<ReportJobParts> contacts(Connection& store) {
    return contactListReport(store, "SELECT * FROM tblContactMaster ORDER BY ContactName", "");
}

template <const DueChecks* list>
std::optional<ReportJobParts> dueChecks(Connection& store) {
    return dueChecksReport(store, *list, checksDue(*list), "Due Checks Report");
}

const Reading readings[] = {
    {"sales summary",
     journal<S, summary>,
     {90, 1890, 6660},
     "RefNo, RefDate",
     "tblSalesMaster",
     [](Connection& store, const Row& row) {
         const Currency total =
             store.execute({"SELECT TotalAmount FROM tblSalesMaster WHERE RefNo = ?", {row.text("RefNo")}})
                 .currency("TotalAmount");
         return QList<Shown>{total - paymentDiscount(store, "Reference", row.text("RefNo"))};
     },
     {6660}},
    {"sales details",
     journal<S, detailed>,
     {90, 3600, 5220, 6210, 7830, 9180},
     "ItemID, SUM(Served) AS Moved, Unit, SUM(Total) AS Gross",
     "tblSalesDetails GROUP BY ItemID, "
     "Unit",
     [](Connection& store, const Row& row) {
         const Currency discount = paymentDiscount(store, "ItemID", row.text("ItemID"));
         return QList<Shown>{discount, row.currency("Gross") - discount};
     },
     {6210, 7830, 9180}},
    {"receipts",
     journal<R, detailed>,
     {90, 1440, 5850, 7200},
     "PayNo, PaymentDate, PaymentAmount, TotalDiscAmount",
     "tblReceiptMaster",
     nullptr,
     {5850, 7200}},
    {"receipts by customer",
     journal<R, summary>,
     {7650, 9180},
     "SUM(TotalDiscAmount) AS Discount, SUM(PaymentAmount) AS Paid",
     "tblReceiptMaster GROUP BY "
     "CustomerNo",
     nullptr,
     {7650, 9180}},
    {"purchases",
     journal<P, summary>,
     {90, 1440, 6300},
     "PurchaseNo, PurchaseDate, PurchaseAmount",
     "tblPurchaseMaster",
     nullptr,
     {6300}},
    {"purchases by item",
     journal<P, detailed>,
     {90, 6480, 7650, 9090},
     "ItemID, SUM(Delivered) AS Moved, Unit, SUM(Total) AS Gross",
     "tblPurchaseDetails GROUP BY "
     "ItemID, Unit",
     nullptr,
     {9090}},
    {"vouchers",
     journal<D, detailed>,
     {90, 1440, 6300},
     "VoucherNo, VoucherDate, VoucherAmount",
     "tblDisbursementMaster",
     nullptr,
     {6300}},
    {"vouchers by payee",
     journal<D, summary>,
     {9000},
     "SUM(VoucherAmount) AS Paid",
     "tblDisbursementMaster GROUP BY ContactNo",
     nullptr,
     {9000}},
    {"checks received and due",
     dueChecks<&prtReceivableDueChecks>,
     {90, 1890, 3060, 4320, 5670},
     "CheckNo, CheckDate, Amount, CheckStatus, Reference",
     "tblReceiptDetails WHERE CheckNo <> "
     "'Cash' "
     "AND Negotiated = 0 AND CheckDate <= (SELECT MAX(RefDate) FROM tblSalesMaster)",
     nullptr,
     {3060}},
    {"checks issued and due",
     dueChecks<&prtPayableDueChecks>,
     {90, 1890, 3060, 4320, 5670},
     "CheckNo, CheckDate, CheckAmount, CheckStatus, VoucherID",
     "tblChecks WHERE CheckNo <> 'Cash' "
     "AND Negotiated = 0 AND CheckDate <= (SELECT MAX(RefDate) FROM tblSalesMaster)",
     nullptr,
     {3060}},
    {"profit of sales",
     journal<PROFIT, summary>,
     {90, 1800, 6120, 7920, 9720},
     "RefNo, RefDate",
     "tblSalesMaster",
     profitOfSale,
     {6120, 7920, 9720},
     "TotalAmount"},
    {"profit of lines",
     journal<PROFIT, detailed>,
     {1530, 3060, 5220, 9180, 10530, 11880, 13230, 14580, 15930},
     "Reference, RefDate",
     "tblSalesDetails INNER JOIN tblSalesMaster ON Reference = RefNo",
     profitOfLine,
     {10530, 11880, 15930},
     "ItemID, Served, UnitPrice, Discount"},
    {"items with the value of their stock",
     items,
     {90, 4320, 7830, 9270},
     "ItemCode, CostPrice, Balance",
     "tblItemMaster",
     valueOfStock,
     {9270}},
    {"stock card of the busiest item",
     busiestStockCard,
     {450, 1890, 10170, 11340, 12780},
     "Reference, TransDate",
     "tblStockValuation WHERE ItemCode = (SELECT ItemCode FROM tblStockValuation GROUP BY ItemCode ORDER BY "
     "COUNT(*) DESC, ItemCode LIMIT 1)",
     movedAmounts,
     {11340, 12780},
     "BookID, ItemCode, StockIn, InPrice, StockOut"},
    {"contacts with their balances",
     contacts,
     {90, 13140, 14490, 15930},
     "ContactID, CreditLimit",
     "tblContactMaster",
     balancesOf}};

struct Expected {
    QList<QStringList> rows;
    QStringList totals;
};

Expected expectedOf(Connection& store, const Reading& reading) {
    const QStringList columns = QString(reading.columns).split(", ");
    Expected expected;
    QList<Currency> sums(reading.lefts.size());
    const QStringList selected = reading.unseen ? columns + QStringList{reading.unseen} : columns;
    Row row = store.execute(QString("SELECT %1 FROM %2").arg(selected.join(", "), reading.from));
    for (; !row.eof(); row.moveNext()) {
        QList<Shown> line;
        for (const QString& column : columns) line += shownOf(row, column.section(" AS ", -1));
        if (reading.adds) line += reading.adds(store, row);
        expected.rows += QStringList();
        for (qsizetype i = 0; i < line.size(); ++i) {
            expected.rows.last() += line[i].text;
            sums[i] += line[i].figure;
        }
    }
    for (const int left : reading.totals) expected.totals += printedAmount(sums[reading.lefts.indexOf(left)]);
    std::ranges::sort(expected.rows);
    return expected;
}
}  // namespace

TEST(Oracle, EveryFigureIsThatOfAPlainReading) {
    TestStore firm;
    Connection& store = firm.connection();
    fillDemoFirm(store, QDate::currentDate());
    for (const Reading& reading : readings) {
        SCOPED_TRACE(reading.name);
        auto report = reading.report(store);
        ASSERT_TRUE(report);
        QList<QStringList> rows = printedRows(*report, reading.lefts);
        if (reading.lefts == reading.totals) rows.removeLast();
        std::ranges::sort(rows);
        const Expected expected = expectedOf(store, reading);
        EXPECT_GT(expected.rows.size(), 2);
        EXPECT_EQ(rows, expected.rows);
        if (reading.totals.isEmpty()) continue;
        auto again = reading.report(store);
        EXPECT_EQ(printedRows(*again, reading.totals).last(), expected.totals);
    }
}
