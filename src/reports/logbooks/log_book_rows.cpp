#include "reports/logbooks/log_book_rows.h"

#include "books/key_numbers.h"
#include "platform/store/bulk.h"
#include "reports/frame/worked_rows.h"

#include <algorithm>

namespace {
struct LogContact {
    QString id, name, address, phone;
    Currency terms;
};

struct LogDocument {
    int contact;
    QByteArray number, date, remarks;
    Currency amount, granted;
};

struct LogPayment {
    int document;
    Currency amount;
    QByteArray texts[2];
    QByteArray date, key;
    qint64 place;
};

struct LogRow {
    int document;
    int payment;  // -1: it has none
};

class LogBookData {
  public:
    LogBookData(Connection& store, const LogBookTables& tables, const Sql& contacts, const Sql& documents);
    std::vector<LogRow> rows() const;

    const LogDocument& document(const LogRow& row) const {
        return documents_[static_cast<size_t>(row.document)];
    }
    const LogContact& contact(const LogRow& row) const {
        return contacts_[static_cast<size_t>(document(row).contact)];
    }
    const LogPayment* payment(const LogRow& row) const {
        return row.payment < 0 ? nullptr : &payments_[static_cast<size_t>(row.payment)];
    }

  private:
    void readContacts(Connection& store, const Sql& condition);
    void readDocuments(Connection& store, const LogBookTables& tables, const Sql& condition);
    void readPayments(Connection& store, const LogBookTables& tables, const Sql& documents);

    KeyNumbers ids_, numbers_;
    std::vector<LogContact> contacts_;  // in their order
    std::vector<LogDocument> documents_;
    std::vector<LogPayment> payments_;  // by document
};

LogBookData::LogBookData(Connection& store, const LogBookTables& tables, const Sql& contacts,
                         const Sql& documents) {
    readContacts(store, contacts);
    readDocuments(store, tables, documents);
    readPayments(store, tables, documents);
}

void LogBookData::readContacts(Connection& store, const Sql& condition) {
    for (BulkReader row(store,
                        Sql("SELECT ContactID, ContactName, Address, TelNo, Terms FROM tblContactMaster") +
                            condition + " ORDER BY ContactName, ContactID");
         row.next();) {
        ids_.add(row.bytes(0));
        contacts_.push_back({row.text(0), row.text(1), row.text(2), row.text(3), row.currency(4)});
    }
}

// Those of contacts that the master has.
void LogBookData::readDocuments(Connection& store, const LogBookTables& tables, const Sql& condition) {
    const QString columns = "SELECT ContactNo, %1, %2, Remarks, %3 FROM %4";
    for (BulkReader row(
             store, Sql(columns.arg(tables.number, tables.date, tables.amount, tables.master)) + condition);
         row.next();)
        if (const int contact = ids_.find(row.bytes(0)); contact >= 0)
            documents_.push_back({contact,
                                  row.bytes(1).toByteArray(),
                                  row.bytes(2).toByteArray(),
                                  row.bytes(3).toByteArray(),
                                  row.currency(4),
                                  {}});
    std::ranges::sort(documents_, [](const LogDocument& a, const LogDocument& b) {
        if (a.contact != b.contact) return a.contact < b.contact;
        return a.date != b.date ? a.date < b.date : comesBefore(a.number, b.number);
    });
    for (const LogDocument& document : documents_) numbers_.add(document.number);
}

Sql paymentsOf(const LogBookTables& tables, const Sql& documents) {
    Sql payments(tables.payments);
    const Sql filter(tables.paymentFilter);
    if (!filter.isEmpty()) payments += Sql(" WHERE ") + filter;
    if (documents.isEmpty()) return payments;
    const QString some = "%1 IN (SELECT %2 FROM %3";
    return payments + Sql(filter.isEmpty() ? " WHERE " : " AND ") +
           Sql(some.arg(tables.paidNumber, tables.number, tables.master)) + documents + Sql(")");
}

bool comesBefore(const LogPayment& a, const LogPayment& b) {
    if (a.document != b.document) return a.document < b.document;
    if (a.date != b.date) return a.date < b.date;
    if (const int keys = compareKeys(a.key, b.key)) return keys < 0;
    if (a.place != b.place) return a.place < b.place;
    return compareKeys(a.texts[0], b.texts[0]) < 0;
}

void LogBookData::readPayments(Connection& store, const LogBookTables& tables, const Sql& documents) {
    for (BulkReader row(store, paymentsOf(tables, documents)); row.next();) {
        const int document = numbers_.find(row.bytes(0));
        if (document < 0) continue;
        payments_.push_back({document,
                             row.currency(1),
                             {row.bytes(3).toByteArray(), row.bytes(4).toByteArray()},
                             row.bytes(5).toByteArray(),
                             row.bytes(6).toByteArray(),
                             row.integer(7)});
        documents_[static_cast<size_t>(document)].granted += row.currency(2);
    }
    std::ranges::sort(payments_, [](const LogPayment& a, const LogPayment& b) { return comesBefore(a, b); });
}

std::vector<LogRow> LogBookData::rows() const {
    std::vector<LogRow> rows;
    int payment = 0;
    const auto isOf = [&](int document) {
        return payment < static_cast<int>(payments_.size()) &&
               payments_[static_cast<size_t>(payment)].document == document;
    };
    for (int document = 0; document < static_cast<int>(documents_.size()); ++document) {
        if (!isOf(document)) rows.push_back({document, -1});
        for (; isOf(document); ++payment) rows.push_back({document, payment});
    }
    return rows;
}

using Rows = WorkedRows<LogRow>;
using Columns = std::vector<Rows::Column>;
using Data = std::shared_ptr<const LogBookData>;

Columns contactColumns(const Data& data) {
    return {{"ContactID", [data](const LogRow& row) { return data->contact(row).id; }},
            {"ContactName", [data](const LogRow& row) { return data->contact(row).name; }},
            {"Address", [data](const LogRow& row) { return data->contact(row).address; }},
            {"TelNo", [data](const LogRow& row) { return data->contact(row).phone; }},
            {"Terms", [data](const LogRow& row) { return data->contact(row).terms; }}};
}

QDate dayOf(const QByteArray& stored) {
    return QDate::fromString(QString::fromLatin1(stored.left(10)), Qt::ISODate);
}

Columns documentColumns(const Data& data, const LogBookTables& tables) {
    return {
        {tables.number, [data](const LogRow& row) { return QString::fromUtf8(data->document(row).number); }},
        {tables.date, [data](const LogRow& row) { return dayOf(data->document(row).date); }},
        {"Remarks", [data](const LogRow& row) { return QString::fromUtf8(data->document(row).remarks); }},
        {tables.amount, [data](const LogRow& row) { return data->document(row).amount; }},
        {"Granted", [data](const LogRow& row) { return data->document(row).granted; }}};
}

Columns paymentColumns(const Data& data, const LogBookTables& tables) {
    const auto text = [data](int which) {
        return [data, which](const LogRow& row) -> Rows::Cell {
            const LogPayment* payment = data->payment(row);
            if (!payment) return {};
            return QString::fromUtf8(payment->texts[which]);
        };
    };
    return {{tables.payment,
             [data](const LogRow& row) -> Rows::Cell {
                 const LogPayment* payment = data->payment(row);
                 if (!payment) return {};
                 return payment->amount;
             }},
            {tables.texts[0], text(0)},
            {tables.texts[1], text(1)}};
}

void append(Columns& columns, Columns more) {
    for (Rows::Column& column : more) columns.push_back(std::move(column));
}
}  // namespace

std::unique_ptr<ReportSource> logBookRows(Connection& store, const LogBookTables& tables, const Sql& contacts,
                                          const Sql& documents) {
    const auto data = std::make_shared<const LogBookData>(store, tables, contacts, documents);
    std::vector<LogRow> rows = data->rows();
    if (rows.empty()) return nullptr;
    Columns columns = paymentColumns(data, tables);
    append(columns, documentColumns(data, tables));
    append(columns, contactColumns(data));
    return std::make_unique<Rows>(std::move(rows), std::move(columns));
}
