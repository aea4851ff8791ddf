#include "books/balances.h"
#include "foundation/shared_routines.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "purchases/frmDisbursementGrid.h"
#include "sales/frmReceiptGrid.h"
#include "support/box_script.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <QAbstractButton>

namespace {
// A sale and a purchase of 50.00, each paid with 20.00 by a document that is numbered like another.
class PaymentJournals : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {.id = "C1", .name = "Reyes Trading"});
        const DocumentRow order{"A", QDate(2026, 3, 3), "C1", {{"I1", amount(5), amount(10)}}};
        addSale(store(), order);
        addPurchase(store(), order);
        for (const int number : {7, 77}) {
            insertRow(store(), "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo, PaymentAmount",
                      {number, QDate(2026, 3, 4), "C1", bound(amount(20))});
            insertRow(store(), "tblReceiptDetails", "ZevRef, PayCode, Reference, Amount",
                      {number, number, number == 7 ? "A" : "B", bound(amount(20))});
            const QVariantList voucher{QString::number(number), QDate(2026, 3, 4), "C1", bound(amount(20))};
            insertRow(store(), "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo, VoucherAmount",
                      voucher);
            insertRow(store(), "tblDisbursementDetails", "VoucherID, PuchaseID, PayAmount",
                      {voucher[0], number == 7 ? "A" : "B", bound(amount(20))});
            insertRow(store(), "tblChecks", "ZevRef, VoucherID", {number, voucher[0]});
        }
        RecomputeReceivableBalances(store(), Progress::none());
        RecomputePayableBalances(store(), Progress::none());
    }
    void deleteRow(Journal& journal, const char* key) {
        journal.findChild<DataGrid*>()->selectKey(key, "7");
        boxes.expect("Confirm Delete", {}, BoxAnswer::Yes);
        journal.DeleteRecord();
    }
    QString left(const QString& from) {
        QStringList values;
        for (auto row = store().execute("SELECT " + from); !row.eof(); row.moveNext())
            values += row.textAt(0);
        return values.join(u',');
    }
    static void search(Journal& journal, const char* field, const char* text) {
        journal.findChild<ComboBox*>("cboSearch")->setText(field);
        journal.findChild<TextBox*>("txtSearch")->setText(text);
        journal.findChild<QAbstractButton*>("cmdSearch")->click();
    }

    BoxScript boxes;
};

TEST_F(PaymentJournals, ADeletionTakesItsOwnRowsAndBringsTheOrderBackToUnpaid) {
    EXPECT_EQ(left("Balance FROM tblSalesMaster") + left("Balance FROM tblPurchaseMaster"), "300000300000");
    frmReceiptGrid receipts;
    deleteRow(receipts, "PayNo");
    EXPECT_EQ(left("PayNo FROM tblReceiptMaster") + left("PayCode FROM tblReceiptDetails"), "7777");
    EXPECT_EQ(left("Balance FROM tblSalesMaster"), "500000");
    frmDisbursementGrid vouchers;
    deleteRow(vouchers, "VoucherNo");
    EXPECT_EQ(left("VoucherNo FROM tblDisbursementMaster") + left("VoucherID FROM tblDisbursementDetails") +
                  left("VoucherID FROM tblChecks"),
              "777777");
    EXPECT_EQ(left("Balance FROM tblPurchaseMaster"), "500000");
}

TEST_F(PaymentJournals, ReceiptsSayWhatDoesNotConvertAndFindTheirNumbers) {
    frmReceiptGrid receipts;
    const struct {
        const char *field, *text, *fault;
    } wrong[] = {{"Payment Date", "13/13/2026", "Invalid Search Date!"},
                 {"Discounts", "1.2.3", "Invalid Search Amount!"},
                 {"Payment Amount", ".", "Invalid Search Amount!"}};
    for (const auto& row : wrong) {
        boxes.expect("Error!", row.fault);
        search(receipts, row.field, row.text);
    }
    search(receipts, "Payment No.", "7");
    EXPECT_EQ(receipts.findChild<DataGrid*>()->recordCount(), 2);
    receipts.findChild<QAbstractButton*>("optExact")->click();
    search(receipts, "Payment No.", "7");
    EXPECT_EQ(receipts.findChild<DataGrid*>()->recordCount(), 1);
}

TEST_F(PaymentJournals, AReceiptAnnouncesWhatItsCustomerOwesUntilAKey) {
    frmReceiptGrid receipts;
    person::look(&receipts);
    for (const char* way : {"cmdRecompute", "Edit"}) {
        way == QString("Edit") ? receipts.EditRecord() : person::click(&receipts, way);
        ChildScreen* popup = ScreenRegistry::instance().opened("frmReceiptAnnouce");
        ASSERT_TRUE(popup) << way;
        EXPECT_EQ(person::read(popup, "lblCustomerName") + ' ' + person::read(popup, "lblCustomerBalance"),
                  "Reyes Trading 10.00");
        person::look(popup);
        person::press(Qt::Key_A);
        EXPECT_FALSE(ScreenRegistry::instance().opened("frmReceiptAnnouce")) << way;
        EXPECT_EQ(receipts.focusWidget()->objectName(), "dbgMyGrid");
    }
    search(receipts, "Customer Name", "nobody");
    boxes.expect("Error!", "Please Select Proper Record to Compute! There's Nothing to Compute!");
    receipts.EditRecord();
    boxes.expect("Nothing to Print!", "No Records to Print...");
    receipts.PrintRecord();
    frmDisbursementGrid vouchers;
    search(vouchers, "Payee Name", "nobody");
    boxes.expect("Error!", "Please Select a Payment Voucher First!");
    vouchers.PrintRecord();
}
}  // namespace
