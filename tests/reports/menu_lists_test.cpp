#include "reports/menu_lists.h"

#include "platform/ui/screen_registry.h"
#include "reports/frame/report_preview.h"
#include "support/box_script.h"
#include "support/test_store.h"

using MenuLists = SessionTest;

TEST_F(MenuLists, PrintWhatThereIsAndSayWhenThereIsNothing) {
    registerMenuLists();
    ScreenRegistry& screens = ScreenRegistry::instance();
    const QStringList names{"prtReceivableDueChecks", "prtPayableDueChecks", "prtContactList"};
    {
        BoxScript boxes;
        for (const QString& name : names) {
            boxes.expect("Nothing to Print!", "No Records to Print...");
            screens.open(name);
        }
    }
    addContact(store(), {.id = "1", .name = "Rizal Mill"});
    store().run("INSERT INTO tblReceiptMaster (PayNo, CustomerNo) VALUES (7, '1')");
    store().run(
        "INSERT INTO tblReceiptDetails (ZevRef, PayCode, CheckNo, CheckDate, Amount, Negotiated) VALUES"
        " (1, 7, 'A1', '2020-01-02', 50000, 0)");
    store().run(
        "INSERT INTO tblChecks (ZevRef, ContactNo, CheckNo, CheckDate, CheckAmount, Negotiated) VALUES"
        " (1, '1', 'B2', '2020-01-02', 60000, 0)");
    for (const QString& name : names + QStringList{"prtDiscrepancy"}) {
        screens.open(name);
        ASSERT_EQ(screens.openScreens().size(), 1) << qPrintable(name);
        auto* paper = qobject_cast<ReportPreview*>(screens.openScreens().first());
        ASSERT_TRUE(paper);
        EXPECT_EQ(paper->objectName(), name);
        paper->unload();
    }
}
