#pragma once
#include "platform/currency.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QStringList>
#include <optional>
#include <vector>

// Small books full of what goes wrong in real ones: documents out of order, ties, lines of nothing or less,
// more sold than bought, codes in either case, items without a master, nulls among the payments.
struct Books {
    struct Line {
        QString item;
        Currency quantity, price, discount;
    };
    struct Document {
        QString bookId;  // "S" or "P"
        QString number;
        QDate date;
        QString contact;
        Currency total;
        std::vector<Line> lines;
    };
    struct Payment {
        std::optional<Currency> paid, granted;
    };
    struct ReceiptLine {
        QString reference;
        Payment payment;
    };
    struct Receipt {
        QString customer;
        Payment payment;
        std::vector<ReceiptLine> lines;
    };
    struct VoucherLine {
        QString purchase;
        Currency paid;
        bool direct;
    };
    struct Voucher {
        QString number, contact;
        std::vector<VoucherLine> lines;
    };
    QStringList items, contacts;
    std::vector<Document> documents;
    std::vector<Receipt> receipts;
    std::vector<Voucher> vouchers;
};

Books makeBooks(unsigned seed);
// Straight into the tables, the documents and items queued for the end of day.
void writeBooks(Connection& store, const Books& books);
