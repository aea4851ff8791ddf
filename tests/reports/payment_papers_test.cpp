#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "reports/checks/check_report.h"
#include "reports/checks/due_checks.h"
#include "reports/checks/prtVoucher.h"
#include "reports/documents/prtSalesInvoice.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "support/box_script.h"
#include "support/test_server.h"
#include "support/test_store.h"

namespace {
// What a customer paid for two orders and one that has gone, and how a supplier was paid.
class PaymentPapers : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        store().run(
            "UPDATE tblSystemProfile SET CompanyName = 'Mabini Trading', CompanyAddress = '12 Colon Street', "
            "CompanyTelNo = '255-0101', Prepared = 'Maria Dizon', Checked = 'Jun Abella'");
        addContact(store(), {.id = "C1", .name = "Ana Cruz & Sons", .terms = amount(30)});
        addSale(store(), {"02-1001-2026", {2026, 2, 3}, "C1", {{"NAIL", amount(2), amount(1250.5)}}});
        addSale(store(), {"02-1002-2026", {2026, 2, 9}, "C1", {{"NAIL", amount(1), amount(800)}}});
        store().run("UPDATE tblSalesMaster SET Remarks = 'Deliver before noon' WHERE RefNo = '02-1001-2026'");
        insertRow(store(), "tblReceiptMaster", "PayNo, CustomerNo, PaymentDate, PayRemarks",
                  {1001, "C1", march(9), "4929 0000 1111 / Ana Cruz"});
        receive("02-1001-2026", 2450.99, 50.01, {}, {});
        receive("02-1002-2026", 300, 0, "BPI 000451", march(8));
        receive("01-0001-2026", 12.5, 0, "BPI 000452", march(9));
        receive("02-1002-2026", 40, 0, "BPI 000453", march(10));
        receive("02-1002-2026", 41, 0, "BPI 000454", march(1), true);
        for (const char* voucher : {"V1", "V2"}) {
            insertRow(store(), "tblDisbursementMaster", "VoucherNo, VoucherDate, VoucherAmount, ContactNo",
                      {voucher, march(1), bound(amount(1000)), "C1"});
            issue(voucher, "000123", 600, march(9));
            issue(voucher, "000124", 400.25, march(2));
        }
        issue("V2", "000125", 7, march(10));
        issue("V2", "Cash", 8, march(2));
    }
    void TearDown() override {
        Clock::unfreeze();
        SessionTest::TearDown();
    }

    static QDate march(int day) { return {2026, 3, day}; }
    void receive(const char* sale, double paid, double discount, const QVariant& check, const QVariant& date,
                 bool isCleared = false) {
        insertRow(
            store(), "tblReceiptDetails",
            "ZevRef, PayCode, Reference, Amount, DiscountAmount, CheckNo, CheckDate, CheckStatus, Negotiated",
            {++key, 1001, sale, bound(amount(paid)), bound(amount(discount)), check, date, "Pending",
             isCleared});
    }
    void issue(const char* voucher, const char* check, double amountOf, const QDate& date) {
        insertRow(store(), "tblChecks",
                  "ZevRef, VoucherID, CheckNo, CheckDate, CheckAmount, ContactNo, CheckStatus",
                  {++key, voucher, check, date, bound(amount(amountOf)), "C1", "Pending"});
    }
    static QString textOf(std::optional<ReportJobParts> report) {
        return report ? reportOutput::plainText(runReport(*report)) : QString();
    }
    int key = 0;
};
}  // namespace

TEST_F(PaymentPapers, TheInvoiceListsWhatWasPaid) {
    compareWithGolden("invoice.txt", textOf(salesInvoiceReport(store(), "1001")));
    EXPECT_FALSE(salesInvoiceReport(store(), "1002"));
}

// Wherever a page happens to end.
TEST_F(PaymentPapers, TheVoucherEndsWithALineAboveItsSignatures) {
    const QString rows =
        "INSERT INTO tblDisbursementDetails (VoucherID, PuchaseID, PayAmount) VALUES ('V1', 'PO-1', 1)";
    for (int lines = 1; lines <= 45; ++lines) {
        store().run(rows);
        const QStringList pages = textOf(voucherReport(store(), "V1")).split('\f');
        EXPECT_TRUE(pages.last().contains("PO-1") && pages.last().contains("Total :") &&
                    pages.last().contains("Approved:"))
            << lines;
        EXPECT_EQ(pages.join("").count("PO-1"), lines);
        EXPECT_EQ(pages.last().contains(QString("Page %1 of %1").arg(pages.size())), pages.size() > 1);
    }
}

TEST_F(PaymentPapers, DueChecksAreThoseOfTodayAndBefore) {
    Clock::freeze(QDateTime(march(9), QTime(14, 5, 6)));
    for (const DueChecks* list : {&prtReceivableDueChecks, &prtPayableDueChecks})
        compareWithGolden(QString(list->name) + ".txt",
                          textOf(dueChecksReport(store(), *list, checksDue(*list))));
    compareWithGolden("card_payments.txt", textOf(dueChecksReport(store(), prtReceivableDueChecks,
                                                                  checksDue(prtReceivableDueChecks),
                                                                  "Credit Card Payment Report")));
}

// The paper of one payment, the flags of its records, and those of what it must leave alone.
TEST_F(PaymentPapers, AreTaggedWithTheirChecksFirst) {
    refuseWrites(
        store(), "UPDATE OF Printed ON tblDisbursementMaster",
        "EXISTS (SELECT 1 FROM tblChecks WHERE VoucherID = NEW.VoucherNo AND Printed <> NEW.Printed)");
    const auto flags = [this] {
        QString all;
        for (auto row = store().execute("SELECT VoucherNo AS V, Printed AS P, RecordLock AS L FROM "
                                        "tblDisbursementMaster ORDER BY VoucherNo");
             !row.eof(); row.moveNext())
            all += row.text("V") + row.text("P") + row.text("L") + u' ';
        for (const char* figure :
             {"SELECT SUM(Printed) FROM tblChecks WHERE VoucherID = 'V1'",
              "SELECT SUM(Printed) FROM tblChecks", "SELECT ' ' FROM tblReceiptMaster",
              "SELECT Printed FROM tblReceiptMaster", "SELECT RecordLock FROM tblReceiptMaster"})
            all += valueOf(store(), figure);
        return all;
    };
    const QString file = folder_.filePath("paper.txt");
    const auto print = [&](std::optional<ReportJobParts> report, const DocumentTagging& tagging,
                           BoxAnswer answer) {
        BoxScript boxes;
        boxes.expect("Printed?", tagging.question, answer).expect("Thank You!");
        session().ExportFileName = file;
        EXPECT_TRUE(runFromPrintScreen(std::move(report), ReportTarget::PlainText, &tagging));
        return flags();
    };
    EXPECT_EQ(print(voucherReport(store(), "V1"), voucherTagging(), BoxAnswer::Yes), "V1-1-1 V200 -2-2 00");
    EXPECT_EQ(print(voucherReport(store(), "V1"), voucherTagging(), BoxAnswer::No), "V10-1 V200 00 00");
    EXPECT_EQ(print(salesInvoiceReport(store(), "1001"), salesInvoiceTagging(), BoxAnswer::Yes),
              "V10-1 V200 00 -1-1");
    EXPECT_EQ(print(salesInvoiceReport(store(), "1001"), salesInvoiceTagging(), BoxAnswer::No),
              "V10-1 V200 00 0-1");
    BoxScript boxes;
    boxes.expect("Thank You!");
    EXPECT_TRUE(runChecks(store(), prtCheckOnly(), "V2", ReportTarget::PlainText));
    EXPECT_EQ(flags(), "V10-1 V200 00 0-1") << "a check tags nothing by itself";
}
