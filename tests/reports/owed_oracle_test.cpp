#include "demo/demo_firm.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/printed_rows.h"
#include "support/test_store.h"

#include <gmock/gmock.h>
#include <QLocale>

// What is owed by the demo firm's books, line by line and sum by sum, against a plain reading of them, which
// shares nothing with the reports.
namespace {
using Rows = QList<QStringList>;

QString printed(Currency value) {
    const qint64 cents = (std::abs(value.tenThousandths()) + 50) / 100;
    const QString text = QLocale(QLocale::English, QLocale::UnitedStates).toString(cents / 100) + '.' +
                         QString::number(cents % 100).rightJustified(2, '0');
    return value.isNegative() && cents > 0 ? '(' + text + ')' : text;
}

struct Side {
    const char *kind, *documents, *number, *date, *total;
    const char *payments, *paid, *granted;  // of a document
    const char *contactPaid, *contactGranted, *balanceWords;
    QList<int> document, sums, balance;  // places in the log book
};
const Side sides[] = {
    {"R",
     "tblSalesMaster",
     "RefNo",
     "RefDate",
     "TotalAmount",
     "tblReceiptDetails WHERE Reference = ?",
     "Amount",
     "SUM(DiscountAmount)",
     "SELECT SUM(PaymentAmount) AS Paid FROM tblReceiptMaster WHERE CustomerNo = ?",
     "SELECT SUM(TotalDiscAmount) AS Paid FROM tblReceiptMaster WHERE CustomerNo = ?",
     "Total Outstanding :",
     {90, 1530, 2700},
     {2700, 4140, 5490},
     {6750, 8640}},
    {"P",
     "tblPurchaseMaster",
     "PurchaseNo",
     "PurchaseDate",
     "PurchaseAmount",
     "tblDisbursementDetails WHERE DirectPayment = False AND PuchaseID = ?",
     "PayAmount",
     "SUM(0)",
     "SELECT SUM(PayAmount) AS Paid FROM tblDisbursementDetails WHERE DirectPayment = False AND VoucherID IN "
     "(SELECT VoucherNo FROM tblDisbursementMaster WHERE ContactNo = ?)",
     nullptr,
     "Total Outstanding Balance",
     {90, 1800, 4050},
     {4050, 5670, 9630},
     {7200, 9630}}};

Currency sumOf(Connection& store, const QString& statement, const QString& value) {
    const Recordset row = store.execute({statement, {value}});
    return row.isNull("Paid") ? Currency() : row.currency("Paid");
}

struct Contact {
    QString name;
    Currency terms, net, paid, owed;
};

// The lines that both reports of a side must show, each kind of them sorted.
struct Owed {
    Rows documents, sums, balances, open, contacts;
    Currency total;
};

Owed owedOf(Connection& store, const Side& side) {
    Owed owed;
    QMap<QString, Contact> contacts;
    Recordset row =
        store.execute(QString("SELECT %1.*, ContactName, Terms FROM %1 INNER JOIN tblContactMaster "
                              "ON ContactID = ContactNo")
                          .arg(side.documents));
    for (; !row.eof(); row.moveNext()) {
        const QString number = row.text(side.number);
        const QDate day = row.date(side.date);
        Contact& contact = contacts[row.text("ContactNo")];
        contact.name = row.text("ContactName");
        contact.terms = row.currency("Terms");
        const Currency net =
            row.currency(side.total) -
            sumOf(store, QString("SELECT %1 AS Paid FROM %2").arg(side.granted, side.payments), number);
        const Currency paid =
            sumOf(store, QString("SELECT SUM(%1) AS Paid FROM %2").arg(side.paid, side.payments), number);
        owed.documents += QStringList{number, day.toString("MM/dd/yyyy"), printed(net)};
        owed.sums += QStringList{printed(net), printed(paid), printed(net - paid)};
        contact.net += net;
        contact.paid += paid;
        const Currency balance = row.currency("Balance");
        if (balance.isZero()) continue;
        contact.owed += balance;
        owed.total += balance;
        const qint64 days = contact.terms.tenThousandths() / 10000;
        owed.open += QStringList{number,
                                 day.toString("MM/dd/yyyy"),
                                 day.addDays(days).toString("MM/dd/yyyy"),
                                 QString("%1 Days").arg(days),
                                 contact.name,
                                 printed(balance)};
    }
    for (auto each = contacts.cbegin(); each != contacts.cend(); ++each) {
        owed.sums += QStringList{printed(each->net), printed(each->paid), printed(each->net - each->paid)};
        Currency balance = sumOf(
            store,
            QString("SELECT SUM(%1) AS Paid FROM %2 WHERE ContactNo = ?").arg(side.total, side.documents),
            each.key());
        for (const char* paid : {side.contactPaid, side.contactGranted})
            if (paid) balance -= sumOf(store, paid, each.key());
        owed.balances += QStringList{side.balanceWords, printed(balance)};
        if (!each->owed.isZero()) owed.contacts += QStringList{each->name, printed(each->owed)};
    }
    for (Rows* rows : {&owed.documents, &owed.sums, &owed.balances, &owed.open, &owed.contacts})
        std::ranges::sort(*rows);
    return owed;
}

Rows sorted(Rows rows) {
    std::ranges::sort(rows);
    return rows;
}
}  // namespace

TEST(OwedOracle, EveryFigureIsThatOfAPlainReading) {
    TestStore firm;
    Connection& store = firm.connection();
    fillDemoFirm(store, QDate(2026, 3, 31));
    for (const Side& side : sides) {
        SCOPED_TRACE(side.kind);
        const Owed owed = owedOf(store, side);
        EXPECT_GT(owed.open.size(), 10);
        const auto logBook = [&](const QList<int>& lefts) {
            auto report = logBookReport(store, {.kind = side.kind, .allDays = true});
            return sorted(printedRows(*report, lefts));
        };
        const auto outstanding = [&](const char* option, const QList<int>& lefts) {
            auto report = outstandingReport(store, {.kind = side.kind, .selection = option});
            return printedRows(*report, lefts);
        };
        EXPECT_EQ(logBook(side.document), owed.documents);
        EXPECT_EQ(logBook(side.sums), owed.sums);
        Rows balances = logBook(side.balance);
        balances.removeIf([&](const QStringList& line) { return line.first() != side.balanceWords; });
        EXPECT_EQ(balances, owed.balances);
        EXPECT_EQ(sorted(outstanding("optDetailed", {90, 1710, 2790, 3870, 4950, 9270})), owed.open);
        EXPECT_EQ(sorted(outstanding("optSummary", {90, 8640})), owed.contacts);
        EXPECT_EQ(outstanding("optDetailed", {9270}).last(), QStringList{printed(owed.total)});
        EXPECT_EQ(outstanding("optSummary", {8640}).last(), QStringList{printed(owed.total)});
    }
}
