#include "books/ledger.h"

namespace ledger {

Movement movementOf(QByteArrayView bookId) {
    const QByteArrayView letter = bookId.trimmed();
    if (letter.compare("P", Qt::CaseInsensitive) == 0) return Movement::Purchase;
    if (letter.compare("S", Qt::CaseInsensitive) == 0) return Movement::Sale;
    return Movement::Other;
}

StockRow readRow(const BulkReader& reader) { return readRow(reader, movementOf(reader.bytes(1))); }

StockRow readRow(const BulkReader& reader, Movement movement) {
    StockRow row;
    row.zevRef = reader.integer(0);
    row.movement = movement;
    row.stockIn = reader.currency(2);
    row.inPrice = reader.currency(3);
    row.stockOut = reader.currency(4);
    row.stored = {reader.currency(5), reader.currency(6)};
    row.figures = row.stored;
    return row;
}

Writer::Writer(Connection& store, BulkWriter::Refused refused)
    : figures_(store, "UPDATE tblStockValuation SET Balance = ?, SalesCost = ? WHERE ZevRef = ?", refused) {}

void Writer::write(qint64 zevRef, const StockFigures& figures) {
    figures_.bind(1, figures.balance);
    figures_.bind(2, figures.salesCost);
    figures_.bind(3, zevRef);
    figures_.step();
}

void Writer::write(const ItemCosting& item) {
    for (const StockRow& row : item.rows())
        if (row.figures != row.stored) write(row.zevRef, row.figures);
}

}  // namespace ledger
