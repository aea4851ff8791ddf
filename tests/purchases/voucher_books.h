#pragma once
#include "documents/order_books.h"
#include "purchases/voucher_document.h"

// The small firm with two purchase orders of Nena's to pay, of 1,000.00 and of 50.00, and a second supplier.
class VoucherBooks : public OrderBooks {
  protected:
    void SetUp() override {
        OrderBooks::SetUp();
        addContact(store, {.id = "C2", .name = "Rosa"});
        order1_ = saved(purchaseOrders, {line("I1", "100", "100", "10")}, "3/1/2026");
        order2_ = saved(purchaseOrders, {line("I2", "5", "5", "10")}, "3/2/2026");
    }

    static PaymentLine paid(const QString& reference, const char* figure,
                            PaymentKind kind = PaymentKind::Payable) {
        return makePayment(kind, reference, QDate(2026, 3, 1), money(figure), "by hand");
    }
    static CheckLine check(const char* number, const char* figure, bool crossed = false) {
        return makeCheck(number, QDate(2026, 3, 15), money(figure), "Nena", crossed);
    }

    VoucherDocument voucher(const QList<PaymentLine>& payments, const QList<CheckLine>& checks) {
        VoucherDocument document = newVoucher(store);
        document.contactName = "Nena";
        document.payments = payments;
        document.checks = checks;
        document.cash = checks.isEmpty();
        return document;
    }
    QString savedVoucher(const QList<PaymentLine>& payments, const QList<CheckLine>& checks) {
        const VoucherDocument document = voucher(payments, checks);
        EXPECT_EQ(said(saveVoucher(store, document)), "done");
        return document.code;
    }

    Currency owed(const QString& purchaseNo) {
        return store.execute({"SELECT Balance FROM tblPurchaseMaster WHERE PurchaseNo = ?", {purchaseNo}})
            .currency("Balance");
    }
    std::vector<std::string> checkRows() {
        return rows("SELECT * FROM tblChecks ORDER BY ZevRef",
                    {"VoucherID", "ZevRef", "CheckNo", "CheckDate", "CheckAmount", "ContactNo", "CheckStatus",
                     "Negotiated", "CrossCheck", "Printed", "Released"});
    }
    // Every row of every table that a save or a deletion may touch.
    std::vector<std::string> everything() {
        std::vector<std::string> all = checkRows();
        const std::pair<const char*, QStringList> tables[]{
            {"tblDisbursementMaster",
             {"VoucherNo", "VoucherDate", "VoucherAmount", "ContactNo", "Remarks", "Printed", "RecordLock",
              "MonthGroup", "UpdatedBy", "DateUpdate"}},
            {"tblDisbursementDetails",
             {"VoucherID", "PuchaseID", "PurchaseDate", "PayAmount", "Particulars", "DirectPayment"}},
            {"tblPurchaseMaster", {"PurchaseNo", "Balance"}},
            {"tblDisbursementKey", {"Server"}},
            {"tblChecksZev", {"Server"}}};
        for (const auto& [table, columns] : tables)
            for (const std::string& row : rows(QString("SELECT * FROM %1").arg(table), columns))
                all.push_back(std::string(table) + ": " + row);
        return all;
    }

    QString order1_, order2_;
};
