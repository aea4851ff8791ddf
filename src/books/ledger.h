#pragma once
#include "books/costing.h"
#include "platform/store/bulk.h"

// The rows of tblStockValuation as the costing takes them, and their figures on the way back.
namespace ledger {

// The columns that readRow expects, from the table of this alias.
inline constexpr const char* columns =
    "v.ZevRef, v.BookID, v.StockIn, v.InPrice, v.StockOut, v.Balance, v.SalesCost";
// Within one item, purchases of a day stand before its sales.
inline constexpr const char* order = "v.TransDate, v.BookID, v.ZevRef";

Movement movementOf(QByteArrayView bookId);
StockRow readRow(const BulkReader& reader);
// Of a reader whose row's movement is known.
StockRow readRow(const BulkReader& reader, Movement movement);

// Writes the rows that changed.
class Writer {
  public:
    explicit Writer(Connection& store, BulkWriter::Refused refused = BulkWriter::Thrown);
    void write(const ItemCosting& item);
    void write(qint64 zevRef, const StockFigures& figures);
    void flush() { figures_.flush(); }

  private:
    BulkWriter figures_;
};

}  // namespace ledger
