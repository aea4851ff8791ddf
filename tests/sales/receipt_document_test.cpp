#include "foundation/store_place.h"
#include "sales/frmReceiptGrid.h"
#include "sales/receipts.h"
#include "support/crash_runner.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {
TEST_F(Receipts, AreStoredColumnByColumn) {
    ReceiptDocument document =
        receipt({pays(1, "900", "10", "BPI 7"), pays(2, "200"), pays(3, "0.01", "12.345")});
    document.date = "3/2/26";
    document.remarks = " by Tess ";
    ASSERT_EQ(said(saveReceipt(store, document)), "done");
    EXPECT_THAT(everything(), ElementsAre("1 | C1 | 2026-03-02 | 11000100 | 2235000 | by Tess | 0 | ADMIN",
                                          "1 | 1 | 03-1001-2026 | 100000 | 1000000 | 9000000 | BPI 7 | "
                                          "2026-03-20 | Pending | 0",
                                          "2 | 1 | 03-1002-2026 | 0 | 0 | 2000000 |  |  | Cash | -1",
                                          "3 | 1 | 03-1003-2026 | 123500 | 1235012 | 100 |  |  | Cash | -1",
                                          "03-1001-2026 | 0", "03-1002-2026 | 3000000",
                                          "03-1003-2026 | 8764988", "03-1004-2026 | 700000"));
    EXPECT_TRUE(store.execute("SELECT CheckNo FROM tblReceiptDetails WHERE ZevRef = 2").isNull("CheckNo"));
    EXPECT_EQ(loadReceipt(store, "1").document.lines, document.lines);
    EXPECT_EQ(newReceipt(store).code, "2") << "the number was taken when it was proposed";
    EXPECT_EQ(newReceipt(store).code, "3");
}

TEST_F(Receipts, AreCheckedInTheirOrder) {
    ASSERT_EQ(said(post({pays(1, "1")})), "done");
    ReceiptDocument document;
    document.contactName = " ";
    const struct {
        std::function<void()> mend;
        const char *text, *focus;
    } steps[]{
        {[] {}, "No Code!: Please Enter Payment No.!", "txtCode"},
        {[&] { document.code = "1"; }, "Error!: Invalid Payment Date Value!", "txtPayDate"},
        {[&] { document.date = "3/3/2026"; }, "No Customer!: Please Select Customer!", "cboCustomer"},
        {[&] { document.contactName = "Nobody"; },
         "Does not exist!: Customer Does Not Exist, Please Add This To Customer Master File...",
         "cboCustomer"},
        {[&] { document.contactName = "nena "; }, "Duplicate!: Duplicate Payment No.! Please Assign Another!",
         "txtCode"},
        {[&] { document.code = "2"; },
         "Error!: There is No Payment Made for this Record! Please Add D.R. to Post Payment!", "cmdAdd"},
        {[&] { document.lines = {pays(1, "0", "5")}; }, "Error!: Total Amount is Less Than or Equal Zero!",
         "lvwItems"},
        {[&] { document.lines += pays(2, "1"); }, "done", ""}};
    for (const auto& step : steps) {
        step.mend();
        const Outcome outcome = saveReceipt(store, document);
        EXPECT_EQ(said(outcome), step.text);
        EXPECT_EQ(focusOf(outcome), step.focus) << step.text;
    }
}

// Of two clerks who have the same order on their screens the second is told so, and nothing of his is stored.
TEST_F(Receipts, OfTwoClerksAreTestedAgainWhenTheyAreSaved) {
    const struct {
        ReceiptLine first, second;
        const char* text;
    } cases[]{{pays(1, "600"), pays(1, "400.01"), "is only 400.00. System Detected Over Payment of -0.01"},
              {pays(1, "1000"), pays(1, "0"), "03-1001-2026 had already been Paid!"},
              {pays(1, "1", "1"), pays(1, "1"), "You Have Already Posted a Payment Discount"}};
    for (const auto& row : cases) {
        const ReceiptDocument first = receipt({row.first});
        const ReceiptDocument second = receipt({pays(2, "5", "1"), row.second});
        ASSERT_EQ(said(saveReceipt(store, first)), "done");
        const auto before = everything();
        EXPECT_THAT(said(saveReceipt(store, second)), HasSubstr(row.text));
        EXPECT_EQ(everything(), before);
        store.run("DELETE FROM tblReceiptDetails");
    }
}

TEST_F(Receipts, ThatAreSavedAgainReplaceTheirLines) {
    ASSERT_EQ(said(post({pays(1, "1000")})), "done");
    ReceiptDocument again = loadReceipt(store, "1").document;
    again.lines[0] = pays(1, "900", "10");
    ASSERT_EQ(said(saveReceipt(store, again)), "done");
    EXPECT_EQ(CountRecords(store, "tblReceiptDetails"), 1);
    EXPECT_EQ(balance(1), "0");
}

// Killed at any statement, a save or a deletion leaves the books as before it or, once it is done, as after
// it.
TEST_F(Receipts, SurviveASuddenEndAtEveryStatement) {
    ASSERT_EQ(said(post({pays(1, "300"), pays(2, "200", "0", "BPI 1")})), "done");
    ReceiptDocument edited = loadReceipt(store, "1").document;
    edited.lines[0] = pays(1, "100", "10");
    QList<std::function<void(Connection&)>> actions;
    for (const ReceiptDocument& document : {receipt({pays(1, "100"), pays(2, "250", "10")}), edited})
        actions.append([document](Connection& own) { EXPECT_EQ(said(saveReceipt(own, document)), "done"); });
    actions.append([](Connection& own) { deleteDocument(own, receiptJournal().deletion, "1"); });
    for (const auto& action : actions) {
        const auto before = everything();
        store.close();
        const int statements = crashAtEveryStatement(action, [&](Connection&, const CrashPoint& at) {
            EXPECT_EQ(everything() != before, at.acknowledged) << "at " << at.statement;
            if (!at.acknowledged) action(store);
            const auto kept = everything();
            RecomputeReceivableBalances(store, Progress::none());
            EXPECT_EQ(everything(), kept) << "the balances are those of the payments";
        });
        EXPECT_GT(statements, 4);
        store.open(storePlace(), passwordFor(storePlace()));
    }
}
}  // namespace
