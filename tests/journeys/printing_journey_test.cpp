#include "journeys/journey.h"

#include "foundation/shared_routines.h"
#include "platform/ui/screen_registry.h"
#include "support/program_driver.h"

namespace {
constexpr const char* salesJournal = "mnuTransactionItem_2";

bool isFlagged(const QString& number, const char* flag) {
    return FlagFieldSet(StoreConnection(), "tblSalesMaster", "RefNo", number, flag);
}

class PrintingJourney : public Journey {
  protected:
    QString sale() {
        return play(
                   "log in ADMIN admin\npurchase from Rizal Mill\n  50 x RICE at 5\n"
                   "sale to Cora Store\n  10 x RICE\n")
            .last();
    }
    void closePaper(const QString& paper) {
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return !person::isOpen(paper); }, "the paper to close");
    }
};

// From the journal: tagged without a question, and locked from then on.
TEST_F(PrintingJourney, APrintedSaleCannotBeChanged) {
    const QString number = sale();
    journalAt(salesJournal, "RefNo", number);
    person::choose("tbrMain_Print");
    person::screen("prtDelivery");
    person::waitFor([&] { return isFlagged(number, "Printed"); }, "the sale to be tagged");
    EXPECT_TRUE(isFlagged(number, "RecordLock"));
    closePaper("prtDelivery");
    person::screen("frmSalesGrid");
    BoxScript boxes;
    boxes.expect("Record Lock!");
    person::press(Qt::Key_E, Qt::ControlModifier);
}

// From the hub in the menu: each paper that is looked at asks when it closes.
TEST_F(PrintingJourney, MarkedSalesAreLookedAtOneAfterAnother) {
    const QString first = sale();
    const QString second = play("sale to Cora Store\n  3 x RICE\n").last();
    person::choose("mnuReportItem_3");
    QWidget* hub = person::screen("frmPrint");
    person::pushButton(hub, "imgMark");
    person::pushButton(hub, "optPreview");
    person::choose("tbrMain_Print");
    person::waitFor([] { return ScreenRegistry::instance().openScreens().size() == 3; }, "both papers");
    BoxScript boxes;
    const char* question = "Do you want to Tag this Sales Order as Printed?";
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No}) {
        boxes.expect("Printed?", question, answer);
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return boxes.allShown(); }, "the question of a paper");
    }
    person::screen("frmPrint");
    EXPECT_FALSE(isFlagged(first, "Printed")) << "the last paper stood in front";
    EXPECT_TRUE(isFlagged(second, "Printed") && isFlagged(second, "RecordLock"));
}
}  // namespace
