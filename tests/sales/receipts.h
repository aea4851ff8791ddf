#pragma once
#include "documents/order_books.h"
#include "sales/receipt_document.h"

// Nena's three orders of 1,000.00, 500.00 and 1,000.01, one of another customer, and receipts over them.
class Receipts : public OrderBooks {
  protected:
    void SetUp() override {
        OrderBooks::SetUp();
        addContact(store, {.id = "C2", .name = "Pedro"});
        for (const char* total : {"1000", "500", "1000.01"})
            saved(salesOrders, {line("I1", "1", "1", total)});
        OrderDocument other = order(salesOrders, {line("I1", "1", "1", "70")});
        other.contactName = "Pedro";
        ASSERT_EQ(said(saveOrder(store, salesOrders, other)), "done");
    }

    static QString orderNo(int which) { return QString("03-%1-2026").arg(1000 + which); }

    ReceiptLine pays(int which, const char* payment, const char* discount = "0", const char* checkNo = "") {
        PaymentEntry entry;
        entry.orderNo = orderNo(which);
        entry.payment = payment;
        entry.discount = discount;
        entry.checkNo = checkNo;
        entry.checkDate = *checkNo ? "03/20/2026" : "";
        return lineOf(store, entry);
    }
    ReceiptDocument receipt(const QList<ReceiptLine>& lines) {
        ReceiptDocument document = newReceipt(store);
        document.contactName = "Nena";
        document.lines = lines;
        return document;
    }
    Outcome post(const QList<ReceiptLine>& lines) { return saveReceipt(store, receipt(lines)); }

    std::string balance(int which) {
        return valueOf(store, {"SELECT Balance FROM tblSalesMaster WHERE RefNo = ?", {orderNo(which)}})
            .toStdString();
    }
    // Every row that a receipt may touch.
    std::vector<std::string> everything() {
        std::vector<std::string> all = rows("SELECT * FROM tblReceiptMaster ORDER BY PayNo",
                                            {"PayNo", "CustomerNo", "PaymentDate", "PaymentAmount",
                                             "TotalDiscAmount", "PayRemarks", "Printed", "UpdatedBy"});
        for (const auto& [query, columns] : std::initializer_list<std::pair<const char*, QStringList>>{
                 {"SELECT * FROM tblReceiptDetails ORDER BY ZevRef",
                  {"ZevRef", "PayCode", "Reference", "Discount", "DiscountAmount", "Amount", "CheckNo",
                   "CheckDate", "CheckStatus", "Negotiated"}},
                 {"SELECT * FROM tblSalesMaster ORDER BY RefNo", {"RefNo", "Balance"}}})
            std::ranges::move(rows(query, columns), std::back_inserter(all));
        return all;
    }
};
