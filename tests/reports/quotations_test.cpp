#include "platform/clock.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/quotations/prtQuotation.h"
#include "reports/quotations/prtSalesQuota.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/screen_tour.h"
#include "support/statement_count.h"
#include "support/test_store.h"

#include <set>

namespace {
class Quotations : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        Clock::freeze(QDateTime(QDate(2026, 3, 9), QTime(14, 5, 6)));
        addContact(store(), {"C1", "Reyes Trading"});
        addContact(store(), {.id = "C2", .name = "Reyes Supply", .customer = false});
        store().run("UPDATE tblContactMaster SET Address = '12 Mabini Street'");
        store().run("UPDATE tblSystemProfile SET CompanyName = 'Talisay Mercantile', Approved = 'T. Lim'");
        addItem(store(), {.code = "W1", .description = "Copper wire", .selling = amount(12.5), .unit = "M"});
        addItem(store(), {.code = "N1", .description = "Wire nail", .selling = amount(1234.565)});
        addItem(store(), {.code = "A1", .description = "Barbed wire", .selling = amount(900)});
        addItem(store(), {.code = "S1", .description = "Saw"});
    }
    void TearDown() override {
        closeOpenScreens();
        SessionTest::TearDown();
    }
    QString quoted(const PrintRequest& request) {
        auto report = quotationReport(store(), request);
        return report ? reportOutput::plainText(runReport(*report)) : QString("nothing\n");
    }
};

TEST_F(Quotations, ListTheItemsInTheirOrders) {
    QString text;
    for (const char* order : {"Item Code", "Description", "Selling Price"})
        text += quoted({.selection = order, .contact = "Reyes Trading", .description = "wire"});
    text += quoted({.selection = "typed", .contact = "Reyes Trading"});
    EXPECT_EQ(quoted({.contact = "Reyes Trading", .description = "100%"}), "nothing\n");
    compareWithGolden("quotation.txt", text);
}

bool check(QWidget* screen) {
    bool found = false;
    QMetaObject::invokeMethod(screen, "CheckContact", Q_RETURN_ARG(bool, found));
    return found;
}

// The picker lists the customers with what is typed in their names; a name that is there goes on by itself.
TEST_F(Quotations, AreMadeOutToACustomer) {
    registerReportScreens();
    BoxScript boxes;
    QWidget* screen = openRegistered("frmPrintQuotation");
    EXPECT_EQ(person::read(screen, "cboSort"), "Item Code");
    boxes.expect("Error!", "Please Select a Customer for this Quotation!");
    person::click(screen, "cmdOK");
    boxes.expect("Blank", "Please Enter Customer...");
    EXPECT_FALSE(check(screen));
    person::fill(screen, "cboCustomer", "re'yes");
    EXPECT_FALSE(check(screen));
    EXPECT_EQ(person::read(screen, "cboCustomer"), "reyes");
    boxes.expect("Does not exist!", "Customer Does Not Exist, Please Add This To Customer Master File...");
    person::click(screen, "cmdOK");
    EXPECT_EQ(person::focusName(), "cboCustomer");
    person::press(Qt::Key_Return);
    person::screen("frmContactFound");
    person::press(Qt::Key_Return);
    person::waitFor([] { return person::focusName() == "txtDescription"; }, "the pick");
    EXPECT_EQ(person::read(screen, "cboCustomer"), "Reyes Trading");
    EXPECT_TRUE(check(screen));
    person::fill(screen, "cboCustomer", "reyes trading ");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::focusName(), "txtDescription");
    person::type("axe");
    boxes.expect("Nothing to Print!", "No Records to Print...");
    person::click(screen, "cmdOK");
    person::fill(screen, "txtDescription", "");
    person::click(screen, "cmdOK");
    EXPECT_TRUE(ScreenRegistry::instance().opened("prtQuotation"));
}

// Two customers and a supplier who buys, of three items, one of which has gone since.
void sell(Connection& store) {
    const struct {
        const char *number, *contact, *item;
        int day;
        double quantity;
    } sales[] = {{"1", "C1", "N1", 5, 2},      {"2", "C1", "N1", 6, 3},   {"3", "C1", "W1", 12, 8},
                 {"4", "C1", "GONE", 31, 1.5}, {"5", "C2", "W1", 31, 10}, {"6", "C2", "N1", 10, 4},
                 {"7", "LOST", "N1", 10, 7}};
    for (const auto& sale : sales)
        addSale(store, {sale.number,
                        QDate(2026, 1, sale.day),
                        sale.contact,
                        {{sale.item, amount(sale.quantity), amount(100.005)}}});
}

// Each of the three conditions alone, with the others, and none; no more statements for more lines.
TEST_F(Quotations, QuotasOfACustomerAnItemAndAPeriod) {
    sell(store());
    std::set<int> counts;
    QString text;
    for (const int asked : {0, 1, 2, 3, 4, 5, 6, 7}) {
        PrintRequest request{.allDays = !(asked & 4), .from = "1/2/2026", .to = "1/30/2026"};
        if (asked & 1) request.description = "wire nail";
        if (asked & 2) request.contact = "reyes trading";
        EXPECT_FALSE(salesQuotaFault(store(), request));
        const int statements = statementsOf(store(), [&] {
            auto report = salesQuotaReport(store(), request);
            text += reportOutput::plainText(runReport(*report));
        });
        counts.insert(statements - (asked & 1));  // one for the code of the item
    }
    EXPECT_EQ(counts.size(), 1) << "as many for each, however many lines it has";
    compareWithGolden("sales_quota.txt", text);
}

TEST_F(Quotations, QuotasOfWhatIsNotThereAreRefused) {
    const auto refusal = [this](const PrintRequest& request) {
        const Fault fault = salesQuotaFault(store(), request).value();
        return fault.focus + ": " + fault.box.text;
    };
    EXPECT_EQ(refusal({.allDays = true, .contact = "Nobody"}),
              "cboCustomer: Customer Does Not Exist, Please Select Proper Customer to Generate Report...");
    EXPECT_EQ(refusal({.allDays = true, .description = "wire"}),
              "txtDescription: Product Does Not Exist, Please Select Proper Product to Generate Report...");
    EXPECT_EQ(refusal({.from = "1/2/2026", .to = "13/1/2026"}), "txtTo: Invalid Date Value!");
}
}  // namespace
