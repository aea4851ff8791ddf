#pragma once
#include "documents/order_books.h"
#include "purchases/issued_checks.h"
#include "sales/received_checks.h"

// Checks of both sides over the small firm's books: of Nena, each with its number, status and date.
class CheckBooks : public OrderBooks {
  protected:
    struct Row {
        qint64 key;
        QVariant number;
        const char* status;
        bool negotiated;
        QDate date = QDate(2026, 3, 20);
    };
    void SetUp() override {
        OrderBooks::SetUp();
        insertRow(store, "tblReceiptMaster", "PayNo, CustomerNo", {77, "C1"});
        insertRow(store, "tblDisbursementMaster", "VoucherNo, VoucherDate", {"V77", QDate(2026, 3, 1)});
    }
    void add(const CheckBook& book, const Row& row) {
        const QVariant settled = row.negotiated;
        if (&book == &receivedChecks)
            insertRow(store, "tblReceiptDetails",
                      "ZevRef, PayCode, Reference, Amount, CheckNo, CheckDate, CheckStatus, Negotiated",
                      {row.key, 77, "DR1", bound(money("1250")), row.number, row.date, row.status, settled});
        else
            insertRow(
                store, "tblChecks",
                "ZevRef, VoucherID, ContactNo, CheckAmount, CheckNo, CheckDate, CheckStatus, Negotiated",
                {row.key, "V77", "C1", bound(money("1250")), row.number, row.date, row.status, settled});
    }
    // "number status negotiated" of each check, by key.
    std::vector<std::string> stored(const CheckBook& book) {
        return rows(QString("SELECT * FROM %1 ORDER BY ZevRef").arg(book.table),
                    {"CheckNo", "CheckStatus", "Negotiated"});
    }
};
