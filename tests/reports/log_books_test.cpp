#include "platform/clock.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/logbooks/frmPrintLogBook.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/register.h"
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/screen_tour.h"
#include "support/statement_count.h"
#include "support/test_store.h"

namespace {
void addPayment(Connection& store, int number, const QString& customer, const QString& sale, double paid,
                double granted = 0, const char* check = nullptr) {
    insertRow(store, "tblReceiptMaster", "PayNo, CustomerNo, PaymentAmount, TotalDiscAmount, PayRemarks",
              {number, customer, bound(amount(paid)), bound(amount(granted)),
               number % 2 ? QVariant("By messenger") : QVariant()});
    insertRow(store, "tblReceiptDetails", "ZevRef, PayCode, Reference, Amount, DiscountAmount, CheckNo",
              {100 - number, number, sale, bound(amount(paid)), bound(amount(granted)),
               check ? QVariant(check) : QVariant()});
}

void addVoucher(Connection& store, const QString& number, const QString& supplier, const QString& purchase,
                double paid, bool direct = false) {
    insertRow(store, "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo",
              {number, QDate(2026, 5, 1), supplier});
    insertRow(store, "tblDisbursementDetails", "VoucherID, PuchaseID, PayAmount, Particulars, DirectPayment",
              {number, purchase, bound(amount(paid)), direct ? "Freight" : "Part payment", direct});
}

// Two contacts of one name and a third; a document that is paid in parts with discounts, one that nobody has
// paid, one that is overpaid, one of a time on the last day, and payments that fit none.
void trade(Connection& store) {
    addContact(store, {.id = "C2", .name = "Reyes Trading", .terms = amount(30)});
    addContact(store, {.id = "C10", .name = "Reyes Trading"});
    addContact(store, {.id = "C3", .name = "Abella Mill", .terms = amount(15)});
    store.run("UPDATE tblContactMaster SET Address = 'Cebu South Road', TelNo = '(032) 555-0100'");
    store.run("UPDATE tblSystemProfile SET Approved = 'Teresa Lim'");
    const struct {
        const char *number, *contact, *day;
        double total;
    } documents[] = {{"03-05", "C2", "2026-03-05", 1000},          {"03-01", "C2", "2026-03-01", 2500.5},
                     {"03-02", "C10", "2026-03-02", 800},          {"03-31", "C3", "2026-03-31", 450},
                     {"03-32", "C3", "2026-03-31 10:00:00", 4500}, {"04-01", "C3", "2026-04-01", 1234567.89}};
    for (const auto& each : documents) {
        const QVariant remarks = each.total > 900 ? QVariant("For the Lahug site") : QVariant();
        insertRow(store, "tblSalesMaster", "RefNo, RefDate, ContactNo, TotalAmount, Remarks",
                  {each.number, each.day, each.contact, bound(amount(each.total)), remarks});
        insertRow(store, "tblPurchaseMaster", "PurchaseNo, PurchaseDate, ContactNo, PurchaseAmount, Remarks",
                  {each.number, each.day, each.contact, bound(amount(each.total)), remarks});
    }
    addPayment(store, 1, "C2", "03-05", 400, 20, "100234");
    addPayment(store, 2, "C2", "03-05", 250.25, 30);
    addPayment(store, 3, "C3", "03-31", 500);
    addPayment(store, 4, "C3", "GONE", 77);
    addVoucher(store, "V1", "C2", "03-05", 400);
    addVoucher(store, "V2", "C2", "03-05", 350.25);
    addVoucher(store, "V3", "C2", "03-05", 99, true);
    addVoucher(store, "V4", "C3", "03-31", 500);
}

ReportPages pagesOf(Connection& store, const PrintRequest& request) {
    auto report = logBookReport(store, request);
    return report ? runReport(*report) : ReportPages();
}

class LogBooks : public ::testing::TestWithParam<const char*> {};

TEST_P(LogBooks, OfAPeriodAndOfOneName) {
    TestStore store;
    trade(store.connection());
    Clock::freeze(QDateTime(QDate(2026, 4, 9), QTime(14, 5, 6)));
    QString text;
    for (const PrintRequest& request :
         {PrintRequest{.kind = GetParam(), .from = "03/01/2026", .to = "03/31/2026"},
          PrintRequest{.kind = GetParam(), .allDays = true, .contact = "abella mill"}})
        text += reportOutput::plainText(pagesOf(store.connection(), request));
    Clock::unfreeze();
    compareWithGolden(QString("log_book_%1.txt").arg(GetParam()), text);
    EXPECT_FALSE(logBookReport(store.connection(), {.kind = GetParam(), .allDays = true, .contact = "Rey"}));
}

TEST_P(LogBooks, StatementsDoNotGrowWithRows) {
    TestStore store;
    trade(store.connection());
    const auto count = [&] {
        return statementsOf(store.connection(), [&] {
            EXPECT_FALSE(pagesOf(store.connection(), {.kind = GetParam(), .allDays = true}).pages.empty());
        });
    };
    const int few = count();
    for (int i = 1; i <= 50; ++i) {
        const QString id = QString("D%1").arg(i);
        addContact(store.connection(), {.id = id, .name = id});
        const DocumentRow document{id, QDate(2026, 3, 5), id, {}};
        addSale(store.connection(), document);
        addPurchase(store.connection(), document);
        addPayment(store.connection(), 100 + i, id, id, 1);
        addVoucher(store.connection(), id, id, id, 1);
    }
    EXPECT_EQ(count(), few);
}

INSTANTIATE_TEST_SUITE_P(Sides, LogBooks, ::testing::Values("R", "P"));

// Each customer's statement has pages of its own, with its name and counted from 1, and ends with the notes.
TEST(LogBook, AStatementIsASetOfPages) {
    TestStore store;
    const int documents[] = {1, 120, 17, 18, 19, 60};
    for (int contact = 0; contact < 6; ++contact) {
        const QString id = QString("C%1").arg(contact);
        addContact(store.connection(), {.id = id, .name = "Customer " + id});
        for (int i = 0; i < documents[contact]; ++i)
            addSale(store.connection(),
                    {QString("%1-%2").arg(id).arg(i), QDate(2026, 1, 1).addDays(i), id, {}});
    }
    const QStringList pages =
        reportOutput::plainText(pagesOf(store.connection(), {.kind = "R", .allDays = true})).split('\f');
    qsizetype at = 0;
    for (int contact = 0; contact < 6; ++contact) {
        const QRegularExpression number("Page: (\\d+) of  (\\d+)");
        const int count = number.match(pages.value(at)).captured(2).toInt();
        ASSERT_GE(count, 1);
        for (int page = 1; page <= count; ++page, ++at) {
            const QString& text = pages.value(at);
            EXPECT_EQ(number.match(text).captured(1).toInt(), page) << contact;
            EXPECT_TRUE(text.contains(QString("Customer C%1\n").arg(contact))) << qPrintable(text);
            for (int other = 0; other < 6; ++other)
                EXPECT_TRUE(other == contact || !text.contains(QString("C%1-").arg(other)))
                    << qPrintable(text);
            EXPECT_EQ(text.contains("IMPORTANT :"), page == count);
        }
    }
    EXPECT_EQ(at, pages.size());
}

TEST_F(SessionTest, LogBooksArePrintedOfThePeriodAndTheContact) {
    trade(store());
    registerReportScreens();
    BoxScript boxes;
    for (const auto& [kind, report] : {std::pair{"R", "prtReceivableLogBook"}, {"P", "prtPayableLogBook"}}) {
        ScreenArguments arguments;
        arguments.kind = kind;
        auto* screen =
            qobject_cast<frmPrintLogBook*>(ScreenRegistry::instance().open("frmPrintLogBook", arguments));
        ASSERT_TRUE(screen);
        person::look(screen);
        const auto set = [&](const char* name, const char* text) {
            screen->findChild<TextBox*>(name)->setText(text);
        };
        set("txtTo", "02/30/2026");
        boxes.expect("Error!", "Invalid Date Value Entered!");
        screen->PrintRecord();
        EXPECT_TRUE(screen->findChild<TextBox*>("txtTo")->hasFocus());
        const QString who = kind[0] == 'P' ? "Supplier" : "Customer";
        screen->findChild<ComboBox*>("cboContact")->setText("Nobody");
        boxes.expect("Does not exist!",
                     who + " Does Not Exist, Please Select Proper " + who + " to Generate Report...");
        screen->PrintRecord();
        set("txtFrom", "03/02/2026");
        set("txtTo", "03/02/2026");
        screen->findChild<ComboBox*>("cboContact")->setText("Abella Mill");
        boxes.expect("Nothing to Print!", "No Records to Print...");
        screen->PrintRecord();
        screen->findChild<ComboBox*>("cboContact")->setText("Reyes Trading");
        screen->PrintRecord();
        EXPECT_TRUE(ScreenRegistry::instance().opened(report));
        closeOpenScreens();
    }
}
}  // namespace
