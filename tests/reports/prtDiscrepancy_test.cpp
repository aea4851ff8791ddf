#include "reports/audit/prtDiscrepancy.h"

#include "books/discrepancies.h"
#include "support/box_script.h"
#include "support/test_store.h"

namespace {
using namespace modDiscrepancy;

class Told : public Progress {
  public:
    void begin(const QString& text, qint64) override { texts += text; }
    void end() override { texts += "end"; }
    QStringList texts;
};

class Discrepancies : public SessionTest {
  protected:
    // The report's blocks without their heads.
    QStringList found() {
        Told told;
        const auto report = discrepancyReport(store(), told);
        EXPECT_TRUE(report->rows->next());
        const QString text = report->rows->text("Findings");
        QStringList steps, blocks;
        for (const DiscrepancyCheck* check : discrepancyChecks()) {
            steps += {check->waiting, "end"};
            blocks += text.section(headOf(*check), 1).section("\r\n\r\n", 0, 0).trimmed();
        }
        EXPECT_EQ(told.texts, steps);
        return blocks;
    }
};

const QString none = "No Error to Report...";
}  // namespace

TEST_F(Discrepancies, NameWhatIsMissingAndGoOnAfterAFault) {
    addSale(store(), {"S1", QDate(2026, 1, 2), "1", {{"1", amount(1), amount(5)}}});
    addPurchase(store(), {"P1", QDate(2026, 1, 2), "1", {{"1", amount(1), amount(5)}}});
    EXPECT_EQ(found(), QStringList(7, none));

    addSale(store(), {"S3", QDate(2026, 1, 2), "1", {}});
    addSale(store(), {"S2", QDate(2026, 1, 2), "1", {}});
    addPurchase(store(), {"P2", QDate(2026, 1, 2), "1", {}});
    insertRow(store(), "tblReceiptMaster", "PayNo", {7});
    insertRow(store(), "tblReceiptDetails", "ZevRef, PayCode, Reference", {1, 8, "s1"});
    insertRow(store(), "tblReceiptDetails", "ZevRef, PayCode, Reference", {2, 8, "S9"});
    insertRow(store(), "tblDisbursementMaster", "VoucherNo", {"V1"});
    EXPECT_EQ(found(), QStringList({"DR No. = S2\r\nDR No. = S3", none, "PO No. = P2", none,
                                    "Receipt No. = 7", "DR No. = S9 Payment No. = 8", "Voucher No. = V1"}));

    addSale(store(), {"S4", QDate(2026, 1, 2), "1", {{"1", amount(1), amount(0)}}});
    addPurchase(store(), {"P4", QDate(2026, 1, 2), "1", {{"1", amount(1), amount(0)}}});
    BoxScript boxes;
    boxes.expect("Error...").expect("Error...");
    EXPECT_EQ(found(), QStringList({"DR No. = S2\r\nDR No. = S3", "", "PO No. = P2", "", "Receipt No. = 7",
                                    "DR No. = S9 Payment No. = 8", "Voucher No. = V1"}));
}
