#include "reports/audit/frmPrintAudit.h"

#include "platform/clock.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "reports/audit/prtAudit.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/screen_driver.h"
#include "support/screen_tour.h"
#include "support/test_store.h"

namespace {
class Audit : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        Clock::freeze(QDateTime(QDate(2026, 3, 9), QTime(14, 5, 6)));
        addContact(store(), {"C1", "Reyes Trading"});
    }
    void TearDown() override {
        closeOpenScreens();
        Clock::unfreeze();
        SessionTest::TearDown();
    }
    void sale(const char* number, const char* contact, const char* changed) {
        insertRow(store(), "tblSalesMaster", "RefNo, RefDate, ContactNo, UpdatedBy, DateUpdate",
                  {number, QDate(2026, 1, 5), contact, "MARIA", changed});
    }
    QString printed(const PrintRequest& request) {
        auto report = auditReport(store(), request);
        return report ? reportOutput::plainText(runReport(*report)) : QString("nothing");
    }
};

// Up to the last day's midnight, the newest first; the count is that of the whole table.
TEST_F(Audit, ListsTheChangesOfAPeriod) {
    sale("03-0001", "C1", "2026-01-01 00:00:00");
    sale("03-0002", "GONE", "2026-01-31 00:00:00");
    sale("03-0003", "C1", "2026-01-31 00:00:01");
    sale("03-0004", "C1", "2025-12-31 23:59:59");
    compareWithGolden("audit.txt",
                      printed({.selection = "Audit Sales Journal", .from = "1/1/26", .to = "01/31/2026"}));
    const QString contacts =
        printed({.selection = "Audit Contact Master File", .from = "1/1/1990", .to = "1/1/2030"});
    EXPECT_EQ(contacts, "nothing");
    store().run("UPDATE tblContactMaster SET DateUpdate = '2026-01-02'");
    for (const QString& book : auditedBooks().mid(4))
        EXPECT_EQ(
            printed({.selection = book, .from = "1/1/1990", .to = "1/1/2030"}).contains("Reyes Trading"),
            book.contains("Contact"));
}

TEST_F(Audit, EachBookFindsItsRecords) {
    insertRow(store(), "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo, DateUpdate",
              {7, QDate(2026, 1, 5), "C1", QDate(2026, 1, 6)});
    insertRow(store(), "tblPurchaseMaster", "PurchaseNo, PurchaseDate, ContactNo, DateUpdate",
              {"P7", QDate(2026, 1, 5), "C1", QDate(2026, 1, 6)});
    insertRow(store(), "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo, DateUpdate",
              {"V7", QDate(2026, 1, 5), "C1", QDate(2026, 1, 6)});
    for (const int book : {1, 2, 3}) {
        const QString text = printed({.selection = auditedBooks()[book], .from = "1/1/26", .to = "1/8/26"});
        EXPECT_TRUE(text.contains("7 01/05/2026") && text.contains("Reyes Trading")) << qPrintable(text);
    }
}

TEST_F(Audit, TheScreenChecksAndThenPrints) {
    sale("03-0001", "C1", "2026-02-01 10:00:00");
    registerReportScreens();
    BoxScript boxes;
    auto* screen = qobject_cast<frmPrintAudit*>(openRegistered("frmPrintAudit"));
    ASSERT_TRUE(screen);
    const auto set = [&](const char* box, const char* text) {
        screen->findChild<TextBox*>(box)->setText(text);
    };
    EXPECT_EQ(screen->findChild<TextBox*>("txtFrom")->text(), "01/01/2026");
    set("txtTo", "13/31/2026");
    boxes.expect("Error!", "Invalid Date Value!");
    screen->PrintRecord();
    EXPECT_TRUE(screen->findChild<TextBox*>("txtTo")->hasFocus());
    set("txtTo", "01/01/2026");
    boxes.expect("Two Days Minimum!", "Please Make Audit Date to at least Two Days!");
    screen->PrintRecord();
    set("txtTo", "01/02/2026");
    boxes.expect("Nothing to Print!", "No Records to Print...");
    screen->PrintRecord();
    set("txtTo", "12/31/2026");
    screen->PrintRecord();
    EXPECT_TRUE(ScreenRegistry::instance().opened("prtAudit"));
}
}  // namespace
