#include "foundation/store_place.h"
#include "purchases/frmDisbursementGrid.h"
#include "purchases/voucher_books.h"
#include "support/crash_runner.h"

using ::testing::ElementsAre;

namespace {
class Voucher : public VoucherBooks {
  protected:
    // A new voucher of two payments and two checks, and a stored one that pays another order by a check now.
    QList<VoucherDocument> freshAndEdited() {
        const QString key = savedVoucher({paid(order1_, "30")}, {});
        VoucherDocument edited = loadVoucher(store, key).document;
        edited.payments = {paid(order2_, "20")};
        edited.checks = {check("77", "20")};
        edited.cash = false;
        return {voucher({paid(order1_, "10"), paid(order2_, "5.5")}, {check("1", "15"), check("2", "0.5")}),
                edited};
    }
};

TEST_F(Voucher, IsCheckedInItsOrder) {
    savedVoucher({paid(order1_, "1")}, {});
    VoucherDocument document;
    document.code = " ";
    document.contactName = " ";
    document.date = "2/30/2026";
    const struct {
        std::function<void()> mend;
        const char* focus;
        const char* text;
    } steps[]{
        {[] {}, "txtCode", "No Code!: Please enter Voucher No.!"},
        {[&] { document.code = "03-1001-2026 "; }, "txtSerialCode",
         "Error!: Duplicate Voucher No., Please Assign Another!"},
        {[&] { document.code = "03-1002-2026"; }, "txtSerialCode",
         "Error!: Invalid Serial No.! Please Enter a Number of up to Nine Digits!"},
        {[&] { document.serial = "1002"; }, "cboCustomer", "No Payee Name!: Please Select Payee Name!"},
        {[&] { document.contactName = "Nobody"; }, "lvwItems",
         "Net Amount!: Amount is Less Than or Equal to Zero! Please Enter Net Amount!"},
        {[&] {
             document.payments = {paid(order1_, "1000"), paid("RENT", "0", PaymentKind::Direct)};
         },
         "txtRefDate", "Error!: Invalid Date Value!"},
        {[&] { document.date = "3/4/26"; }, "cboCustomer",
         "Does not exist!: Payee does not exist, please add this to Contact Master File First..."},
        {[&] { document.contactName = "nena "; }, "lvwItems",
         "Error!: You Cannot Combine Direct Payment and Accounts Payable in One Payment Voucher!"},
        {[&] { document.payments = {paid(order1_, "1000")}; }, "lvwCheck",
         "Error!: You Have Indicated this as Check Disbursement. Payment Details Total Does Not Tally with "
         "Checks Amount Issued!"},
        {[&] {
             document.checks = {check("1", "600"), check("2", "399.99")};
         },
         "lvwCheck",
         "Error!: You Have Indicated this as Check Disbursement. Payment Details Total Does Not Tally with "
         "Checks Amount Issued!"},
        {[&] { document.checks[1].amount = "400.00"; }, "", "done"}};
    for (const auto& step : steps) {
        step.mend();
        const Outcome outcome = saveVoucher(store, document);
        EXPECT_EQ(said(outcome), step.text);
        EXPECT_EQ(focusOf(outcome), step.focus) << step.text;
    }
}

TEST(Payments, AreOfOneKind) {
    const auto kinds = [](const QStringList& cells) {
        QList<PaymentLine> payments;
        for (const QString& cell : cells) payments.append({"R", "", "1", "", cell});
        return PaymentsAreOfOneKind(payments);
    };
    EXPECT_TRUE(kinds({}) && kinds({"0"}) && kinds({"0", "0"}) && kinds({"1", "1"}));
    EXPECT_FALSE(kinds({""}) || kinds({"0", " "}) || kinds({"0", "1"}) || kinds({"1", "1", "0"}));
}

TEST_F(Voucher, IsStoredColumnByColumnAndReadBack) {
    VoucherDocument document =
        voucher({paid(order1_, "600"), paid(order2_, "60")}, {check("A1", "600", true), check("A2", "60")});
    document.checks[1].payee = "Rosa";
    document.remarks = " by Nena's boy ";
    document.date = "3/2/26";
    ASSERT_EQ(said(saveVoucher(store, document)), "done");
    EXPECT_EQ(rows("SELECT * FROM tblDisbursementMaster",
                   {"VoucherNo", "VoucherDate", "VoucherAmount", "ContactNo", "Remarks", "Printed",
                    "RecordLock", "MonthGroup", "UpdatedBy", "DateUpdate"}),
              (std::vector<std::string>{"03-1001-2026 | 2026-03-02 | 6600000 | C1 | by Nena's boy | 0 | 0 | "
                                        "03 | ADMIN | 2026-03-03"}));
    EXPECT_THAT(rows("SELECT * FROM tblDisbursementDetails",
                     {"VoucherID", "PuchaseID", "PurchaseDate", "PayAmount", "Particulars", "DirectPayment"}),
                ElementsAre("03-1001-2026 | 03-1001-2026 | 2026-03-01 | 6000000 | by hand | 0",
                            "03-1001-2026 | 03-1002-2026 | 2026-03-01 | 600000 | by hand | 0"));
    EXPECT_THAT(checkRows(),
                ElementsAre("03-1001-2026 | 1000000001 | A1 | 2026-03-15 | 6000000 | C1 | Pending | 0 | -1 | "
                            "0 | 0",
                            "03-1001-2026 | 1000000002 | A2 | 2026-03-15 | 600000 | C2 | Pending | 0 | 0 | 0 "
                            "| 0"));
    EXPECT_EQ(owed(order1_), money("400"));
    EXPECT_EQ(owed(order2_), money("-10")) << "an overpayment passes";
    EXPECT_EQ(newVoucher(store).code, "03-1002-2026");

    const LoadedVoucher loaded = loadVoucher(store, document.code + " ");
    EXPECT_EQ(loaded.document.payments, document.payments);
    EXPECT_EQ(loaded.document.checks, document.checks);
    EXPECT_EQ((QStringList{loaded.document.date, loaded.document.contactName, loaded.document.remarks,
                           loaded.contact.balance, loaded.updatedBy, loaded.lastUpdate}),
              (QStringList{"03/02/2026", "Nena", "by Nena's boy", "390.00", "ADMIN", "03/03/2026"}));
    EXPECT_FALSE(loaded.document.addMode || loaded.document.cash);
    EXPECT_THROW(loadVoucher(store, "none"), StoreError);
}

TEST_F(Voucher, PaidInCashHasOneSettledRow) {
    const QString key = savedVoucher({paid("RENT", "1500.25", PaymentKind::Direct)}, {});
    EXPECT_THAT(checkRows(),
                ElementsAre("03-1001-2026 | 1000000001 | Cash | 2026-03-03 | 15002500 | C1 | Cash | -1 | 0 | "
                            "0 | 0"));
    const VoucherDocument loaded = loadVoucher(store, key).document;
    EXPECT_TRUE(loaded.cash);
    EXPECT_EQ(loaded.checks.value(0).texts(),
              QStringList({"Cash", "03/03/2026", "1,500.25", "None", "Nena"}));
    EXPECT_EQ(loaded.payments.value(0).direct, "1");
    EXPECT_EQ(owed(order1_), money("1000")) << "an expense pays no order";
}

TEST_F(Voucher, SavedAgainStartsItsChecksAnew) {
    const QString key = savedVoucher({paid(order1_, "100"), paid(order2_, "50")}, {check("1", "150")});
    store.run("UPDATE tblChecks SET CheckStatus = 'Cleared', Negotiated = True, Printed = True");
    store.run("UPDATE tblDisbursementMaster SET RecordLock = True, Printed = True");
    VoucherDocument again = loadVoucher(store, key).document;
    again.payments.removeLast();
    again.checks = {check("1", "40"), check("", "60")};
    ASSERT_EQ(said(saveVoucher(store, again)), "done");
    EXPECT_THAT(
        checkRows(),
        ElementsAre("03-1001-2026 | 1000000002 | 1 | 2026-03-15 | 400000 | C1 | Pending | 0 | 0 | 0 | 0",
                    "03-1001-2026 | 1000000003 |  |  | 600000 | C1 | Cash | -1 | 0 | 0 | 0"));
    EXPECT_THAT(rows("SELECT * FROM tblDisbursementMaster", {"RecordLock", "Printed"}), ElementsAre("0 | 0"));
    EXPECT_EQ(owed(order2_), money("0")) << "a dropped order waits for the next recompute";
    EXPECT_EQ(newVoucher(store).serial, "1002") << "an old one leaves the counter";
}

TEST_F(Voucher, IsSavedWholeOrNotAtAll) {
    for (const VoucherDocument& document : freshAndEdited()) {
        const auto before = everything();
        int refused = 0;
        for (;; ++refused) {
            int left = refused;
            Connection::setStatementHook([&left](const QString&) {
                if (left-- == 0) throw StoreError(StoreError::busy, "Held.");
            });
            const Outcome outcome = saveVoucher(store, document);
            Connection::setStatementHook({});
            if (isDone(outcome)) break;
            EXPECT_EQ(said(outcome), "Error...: Held.");
            EXPECT_EQ(everything(), before) << "refused at statement " << refused;
            ASSERT_LT(refused, 200);
        }
        EXPECT_GT(refused, 6);
        EXPECT_NE(everything(), before);
    }
    VoucherDocument gone = loadVoucher(store, "03-1001-2026").document;
    store.run("DELETE FROM tblDisbursementMaster");
    const auto before = everything();
    EXPECT_FALSE(isDone(saveVoucher(store, gone)));
    EXPECT_EQ(everything(), before);
}

TEST_F(Voucher, SurvivesASuddenEndAtEveryStatement) {
    QList<std::function<void(Connection&)>> actions;
    for (const VoucherDocument& document : freshAndEdited())
        actions.append([document](Connection& own) { EXPECT_TRUE(isDone(saveVoucher(own, document))); });
    actions.append(
        [](Connection& own) { deleteDocument(own, disbursementJournal().deletion, "03-1001-2026"); });
    for (const auto& action : actions) {
        const auto before = everything();
        store.close();
        const int statements = crashAtEveryStatement(action, [&](Connection& own, const CrashPoint& point) {
            EXPECT_EQ(everything() != before, point.acknowledged) << "at " << point.statement;
            if (!point.acknowledged) action(own);
            EXPECT_NE(everything(), before) << "a second try goes through";
        });
        EXPECT_GT(statements, 4);
        store.open(storePlace(), passwordFor(storePlace()));
    }
}

TEST_F(Voucher, IsDeletedWithItsChecksAndWhatItPaid) {
    const QString kept = savedVoucher({paid(order1_, "100")}, {check("1", "100")});
    const QString key = savedVoucher({paid(order1_, "300"), paid(order2_, "50")}, {});
    VoucherDocument edited = loadVoucher(store, key).document;
    edited.payments.removeLast();
    ASSERT_EQ(said(saveVoucher(store, edited)), "done");
    deleteDocument(store, disbursementJournal().deletion, key);
    EXPECT_EQ(owed(order1_), money("900"));
    EXPECT_EQ(owed(order2_), money("50")) << "the recompute takes in what the edit had dropped";
    for (const char* table : {"tblDisbursementMaster", "tblDisbursementDetails", "tblChecks"})
        EXPECT_EQ(CountRecords(store, table), 1) << table;
    EXPECT_EQ(loadVoucher(store, kept).document.checks.size(), 1);
}

TEST_F(Voucher, TakesAPaymentAfterItsChecks) {
    QString entered;
    VoucherPaymentEntry entry{PaymentKind::Payable, " ", "", "ten", ""};
    const struct {
        std::function<void()> mend;
        const char* focus;
        std::string text;
    } steps[]{
        {[] {}, "cboCode", "Error!: Please Enter Reference for This Payment!"},
        {[&] { entry.code = "no order"; }, "txtAmount", "Error!: Invalid Amount Entered!"},
        {[&] { entry.amount = "-1,000.5"; }, "txtDate", "Error!: Invalid Date Entered!"},
        {[&] { entry.date = "3-1-26"; }, "cboCode",
         "Error!: This Purchase Order No. Does Not Exist! Please Select Proper P.O. to Post!"},
        {[&] { entry.code = order1_; }, "cboCode", "Error!: 03-1001-2026 does not belong to Rosa!"},
        {[&] { entry.kind = PaymentKind::Direct; }, "cboCode",
         "Error!: You cannot use this Reference No. for your Direct Expense, it is being used by Accounts "
         "Payable Module! Please Assign Another!"},
        {[&] { entered = entry.code = "RENT"; }, "cboCode",
         "Error!: Reference Had Already Been Entered Below!"},
        {[&] { entered.clear(); }, "", "done"}};
    for (const auto& step : steps) {
        step.mend();
        const Outcome outcome =
            checkPayment(store, {"C2", "Rosa"}, entry, [&](const QString& code) { return code == entered; });
        EXPECT_EQ(said(outcome), step.text);
        EXPECT_EQ(focusOf(outcome), step.focus) << step.text;
    }
    EXPECT_EQ(lineOf(entry).texts(), QStringList({"RENT", "03/01/2026", "-1,000.50", "", "1"}));
    VoucherPaymentEntry looked;
    looked.code = order1_.toLower() + " ";
    EXPECT_TRUE(CheckCode(store, looked));
    EXPECT_EQ(lineOf(looked).texts(), QStringList({order1_, "03/01/2026", "1,000.00", "", "0"}));
    looked.code = "none";
    EXPECT_FALSE(CheckCode(store, looked));
    EXPECT_EQ(looked.amount, "1,000.00");
    looked.code = "";
    EXPECT_FALSE(CheckCode(store, looked));
    EXPECT_EQ(looked.date + looked.amount, "0.00");
}

TEST_F(Voucher, TakesACheckAfterItsChecks) {
    CheckEntry entry = newCheck();
    EXPECT_EQ(entry.date, "03/03/2026");
    entry.date = "never";
    entry.amount = "much";
    const struct {
        std::function<void()> mend;
        const char* focus;
        const char* text;
    } steps[]{{[] {}, "txtCheckNo", "Error!: Please Enter Check No.!"},
              {[&] { entry.number = "cAsh"; }, "txtCheckNo",
               "Error!: You Cannot Enter the word 'Cash' as Your Check No.!"},
              {[&] { entry.number = "CASHIER"; }, "txtCheckAmount", "Error!: Invalid Check Amount Entered!"},
              {[&] { entry.amount = "600"; }, "txtDate", "Error!: Invalid Check Date Entered!"},
              {[&] { entry.date = "3/15/26"; }, "txtPayee",
               "Error!: Payee Not Found! Please Enter Payee to Contact Master File!"},
              {[&] { entry.payee = "rosa "; }, "txtCheckNo", "Error!: Check No. Already Been Used Below!"},
              {[&] { entry.number = "CASHIER2"; }, "", "done"}};
    for (const auto& step : steps) {
        step.mend();
        const Outcome outcome =
            checkIssued(store, entry, [](const QString& number) { return number == "CASHIER"; });
        EXPECT_EQ(said(outcome), step.text);
        EXPECT_EQ(focusOf(outcome), step.focus) << step.text;
    }
    EXPECT_EQ(lineOf(entry).texts(), QStringList({"CASHIER2", "03/15/2026", "600.00", "None", "rosa"}));
    EXPECT_TRUE(entryOf(makeCheck("1", QDate(2026, 3, 15), money("1"), "Rosa", true)).crossed);
}
}  // namespace
