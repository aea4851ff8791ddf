#include "platform/clock.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/journals/transaction_reports.h"
#include "support/test_store.h"

namespace {
// A sale of ten at 100 less 10 %, paid with 5 % off, and one that nobody has paid; the same two of everything
// else.
void trade(Connection& store) {
    addContact(store, {"C1", "Reyes Trading"});
    addItem(store, {.code = "NAIL", .description = "Common nail"});
    for (const auto& [number, day] : {std::pair{"03-01", 5}, std::pair{"03-02", 25}}) {
        const DocumentRow document{
            number, QDate(2026, 3, day), "C1", {{"NAIL", amount(10), amount(100), amount(10)}}};
        addSale(store, document);
        addPurchase(store, document);
        insertRow(store, "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo, PaymentAmount, TotalDiscAmount",
                  {day, document.date, "C1", bound(amount(855)), bound(amount(45))});
        insertRow(store, "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo, VoucherAmount, Remarks",
                  {number, document.date, "C1", bound(amount(900)), "Nails"});
    }
    store.run("UPDATE tblPurchaseDetails SET Unit = 'BOX' WHERE Reference = '03-02'");
    for (const double percent : {5.0, 50.0})
        insertRow(store, "tblReceiptDetails", "PayCode, Reference, Discount",
                  {5, "03-01", bound(amount(percent))});
}

class Transactions : public ::testing::TestWithParam<const char*> {};

TEST_P(Transactions, OfAPeriodAndOfAllDays) {
    TestStore store;
    trade(store.connection());
    Clock::freeze(QDateTime(QDate(2026, 4, 9), QTime(14, 5, 6)));
    QString text;
    for (const char* option : {"optSummary", "optDetailed"})
        for (const bool allDays : {false, true}) {
            auto report = transactionReport(store.connection(), {.kind = GetParam(),
                                                                 .selection = option,
                                                                 .allDays = allDays,
                                                                 .from = "03/01/2026",
                                                                 .to = "03/05/2026"});
            text += reportOutput::plainText(runReport(*report));
        }
    Clock::unfreeze();
    compareWithGolden(QString("transactions_%1.txt").arg(GetParam()), text);
}

INSTANTIATE_TEST_SUITE_P(Journals, Transactions, ::testing::Values("S", "R", "P", "D"));
}  // namespace
