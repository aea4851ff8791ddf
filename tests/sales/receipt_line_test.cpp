#include "sales/receipts.h"

using ::testing::ElementsAre;

namespace {
class PaymentLine : public Receipts {
  protected:
    PaymentEntry entry(int which, const char* payment, const char* discount = "0") {
        PaymentEntry typed;
        typed.orderNo = orderNo(which);
        typed.discount = discount;
        EXPECT_TRUE(CheckCode(store, "Nena", typed).known);
        typed.payment = payment;
        return typed;
    }
    std::string checked(const PaymentEntry& typed, const char* customer = "Nena") {
        const auto fault =
            ValidateLine(store, customer, typed, [this](const QString& no) { return entered == no; });
        return fault ? said(fault->box) + " @" + fault->focus.toStdString() : "done";
    }
    QString entered;
};

// Each row mends the fault of the row before, so each text shows that its check comes first.
TEST_F(PaymentLine, IsCheckedInItsOrder) {
    ASSERT_EQ(said(post({pays(2, "300", "10"), pays(1, "1000")})), "done");
    PaymentEntry typed;
    typed.discount = typed.totalDiscount = typed.payment = "x";
    typed.required = "0.00";
    const char* customer = "Pedro";
    const struct {
        std::function<void()> mend;
        std::string text;
    } steps[]{
        {[] {}, "Error!: Please Enter Reference No.! @txtSANo"},
        {[&] { typed.orderNo = "99"; },
         "Error!: Sales Reference No. or Delivery Receipt Not Found! @txtSANo"},
        {[&] { typed.orderNo = entered = orderNo(1); },
         "Error!: Reference No. Already Been Entered Below! @txtSANo"},
        {[&] { entered.clear(); },
         "Error!: Cannot Save Payment! Sales Order No. 03-1001-2026 had already been Paid! @txtSANo"},
        {[&] {
             typed.orderNo = orderNo(2);
             typed.payment = "200";
         },
         "Error!: System Does Not Allow Over Payment! Balance of Sales Order No. 03-1002-2026 is only 0.00. "
         "System Detected Over Payment of -50 @txtPayment"},
        {[&] { typed.payment = "y"; },
         "Error!: This Sales Order No. 03-1002-2026 does not belong to Pedro! @txtSANo"},
        {[&] { customer = "nena"; }, "Error!: Invalid Discount Percentage! @txtDiscount"},
        {[&] { typed.discount = "0"; }, "Error!: Invalid Total Discount! @txtDiscount"},
        {[&] { typed.totalDiscount = "0.00"; }, "Error!: Invalid Payment Amount! @txtPayment"},
        {[&] { typed.payment = "150"; },
         "Error!: You Have Already Posted a Payment Discount on This Delivery Receipt! You Cannot Anymore "
         "Post "
         "Additional Discount! @txtDiscount"},
        {[&] {
             typed = entry(3, "500");
             typed.checkNo = "Cash ";
             typed.balance = "499.99";
         },
         "Error!: You Cannot Enter 'CASH' as your Check No.! If this is a cash payment you may want to check "
         "Cash Payment Option or Leave Check No. Blank! @txtCheckNo"},
        {[&] { typed.checkNo = "BPI 1"; },
         "Error!: Invalid Check Date! You have entered a Check No. so you must also Enter a Check Date! "
         "@txtCheckDate"},
        {[&] { typed.checkDate = "3/20/26"; },
         "Error!: Invalid Payment Amount! Payment is Greater Than the Sales Order Balance Amount! "
         "@txtPayment"},
        {[&] { typed.addMode = false; }, "done"}};
    for (const auto& step : steps) {
        step.mend();
        EXPECT_EQ(checked(typed, customer), step.text);
    }
}

// The discount is a percent of the whole order, whatever is paid already; its centavos are rounded as shown.
TEST_F(PaymentLine, RequiresTheBalanceLessTheDiscount) {
    ASSERT_EQ(said(post({pays(2, "300")})), "done");
    const struct {
        int order;
        const char *discount, *totalDiscount, *required;
        const char* tooMuch;
    } cases[]{{1, "10", "100.00", "900.00", "900.01"},
              {2, "10", "50.00", "150.00", "150.01"},
              {3, "12.35", "123.50", "876.51", "876.52"},
              {3, "0", "0.00", "1,000.01", "1,000.02"}};
    for (const auto& row : cases) {
        PaymentEntry typed = entry(row.order, row.required, row.discount);
        if (row.order == 3) typed = entry(3, "0", row.discount), typed.payment = row.required;
        EXPECT_EQ(typed.totalDiscount, row.totalDiscount);
        EXPECT_EQ(typed.required, row.required);
        EXPECT_EQ(checked(typed), "done") << "it settles the order";
        typed.payment = row.tooMuch;
        EXPECT_THAT(checked(typed), ::testing::HasSubstr("System Detected Over Payment of -0.01"));
    }
    EXPECT_EQ(discountAmount(pays(3, "0", "12.345")), money("123.5012"))
        << "12.35 percent, as the list shows it";
    EXPECT_EQ(receiptDiscount({pays(3, "0", "12.345"), pays(3, "0", "12.345"), pays(3, "0", "12.345")}),
              money("370.5"));
}

TEST_F(PaymentLine, IsLookedUpByItsOrder) {
    ASSERT_EQ(said(post({pays(1, "1000")})), "done");
    const struct {
        QString orderNo;
        bool addMode;
        std::string box, amounts;
    } cases[]{
        {"99", true, "unknown", "0.00 9.00 0.00"},
        {orderNo(4), true, "Error!: Journal No. 03-1004-2026 does not belong to Nena!", "8.00 9.00 7.00"},
        {orderNo(1), true, "Error!: Journal No.03-1001-2026 had already been Paid!", "1,000.00 0.00 7.00"},
        {orderNo(1), false, "", "1,000.00 0.00 7.00"},
        {orderNo(3) + " ", true, "", "1,000.01 1,000.01 7.00"}};
    for (const auto& row : cases) {
        PaymentEntry typed;
        typed.addMode = row.addMode;
        typed.orderNo = row.orderNo;
        typed.journalAmount = "8.00";
        typed.balance = "9.00";
        typed.payment = "7.00";
        const OrderLookup found = CheckCode(store, "Nena", typed);
        const std::string box = found.boxes.isEmpty() ? (found.known ? "" : "unknown") : said(found.boxes[0]);
        EXPECT_EQ(box, row.box);
        EXPECT_EQ((typed.journalAmount + ' ' + typed.balance + ' ' + typed.payment).toStdString(),
                  row.amounts);
    }
}
}  // namespace
