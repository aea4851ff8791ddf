#include "reports/journals/document_lines.h"

#include "platform/store/bulk.h"

namespace {
struct Tables {
    const char* master;
    const char* number;
    const char* date;
    const char* total;
    const char* details;
    const char* quantity;
};

const Tables& tablesOf(DocumentLines::Side side) {
    static constexpr Tables sales{"tblSalesMaster", "RefNo",           "RefDate",
                                  "TotalAmount",    "tblSalesDetails", "Served"};
    static constexpr Tables purchases{"tblPurchaseMaster", "PurchaseNo",         "PurchaseDate",
                                      "PurchaseAmount",    "tblPurchaseDetails", "Delivered"};
    return side == DocumentLines::Side::Sales ? sales : purchases;
}

Sql documentsOf(const Tables& tables, const Sql& condition) {
    return Sql(QString("SELECT %1, ContactNo, %2, %3 FROM %4")
                   .arg(tables.number, tables.date, tables.total, tables.master)) +
           condition + Sql(QString(" ORDER BY %1, %2").arg(tables.date, tables.number));
}

// Of some documents by the index of their reference; of all in the order in which they lie.
Sql linesOf(const Tables& tables, const Sql& documents, const Sql& lines) {
    Sql statement(QString("SELECT Reference, ItemID, Unit, %1, UnitPrice, Discount, Total FROM %2")
                      .arg(tables.quantity, tables.details));
    if (!documents.isEmpty())
        statement +=
            Sql(QString(" WHERE Reference IN (SELECT %1 FROM %2").arg(tables.number, tables.master)) +
            documents + Sql(")");
    if (!lines.isEmpty()) statement += Sql(documents.isEmpty() ? " WHERE " : " AND ") + lines;
    return statement;
}
}  // namespace

DocumentLines::DocumentLines(Connection& store, Side side, const Sql& documents, const Sql& lines) {
    const Tables& tables = tablesOf(side);
    for (BulkReader row(store, documentsOf(tables, documents)); row.next();) {
        numbers_.add(row.bytes(0));
        documents_.push_back({row.bytes(1).toByteArray(), row.bytes(2).toByteArray(), row.currency(3)});
    }
    readLines(store, linesOf(tables, documents, lines));
}

void DocumentLines::readLines(Connection& store, const Sql& statement) {
    for (BulkReader row(store, statement); row.next();)
        if (const int document = numbers_.find(row.bytes(0)); document >= 0)
            lines_.push_back({document, items_.add(row.bytes(1)), units_.add(row.bytes(2)), row.currency(3),
                              row.currency(4), row.currency(5), row.currency(6)});
}

QDate DocumentLines::date(int number) const {
    return QDate::fromString(QString::fromLatin1(document(number).date.left(10)), Qt::ISODate);
}

std::vector<ItemNames> namesOf(Connection& store, const KeyNumbers& items) {
    std::vector<ItemNames> names(static_cast<size_t>(items.size()));
    for (BulkReader row(store, "SELECT ItemCode, Description, Unit FROM tblItemMaster"); row.next();)
        if (const int item = items.find(row.bytes(0)); item >= 0)
            names[static_cast<size_t>(item)] = {true, row.text(1), row.text(2)};
    return names;
}
