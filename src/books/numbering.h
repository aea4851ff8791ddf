#pragma once
#include "platform/currency.h"
#include "platform/store/connection.h"

#include <QString>

// Numbers of documents and rows. Two policies: a document's serial is peeked and stored when the document is
// saved; a row key is taken when it is read, and lost if not used. No error leaves these routines: a failed
// read gives 0 or leaves the counter. (A busy store is no such error: it is thrown.)
namespace numbering {

// The serials of documents, each with its counter table.
struct SerialCounter {
    const char* counterTable;
};
inline constexpr SerialCounter sales{"tblSalesKey"};
inline constexpr SerialCounter purchase{"tblPurchaseKey"};
inline constexpr SerialCounter disbursement{"tblDisbursementKey"};

// The row keys, each with its counter table and the column that it feeds.
struct RowKey {
    const char* counterTable;
    const char* table;
    const char* column;
    qint64 first;
};
inline constexpr RowKey payment{"tblReceiptKey", "tblReceiptMaster", "PayNo", 1};
inline constexpr RowKey receipt{"tblReceiptZev", "tblReceiptDetails", "ZevRef", 1};
inline constexpr RowKey check{"tblChecksZev", "tblChecks", "ZevRef", 1000000001};
inline constexpr RowKey stock{"tblStockKey", "tblStockValuation", "ZevRef", 1};

// The next serial: 1001 for an empty counter, its number plus 1, 0 for a counter that holds no number.
QString nextSerial(Connection& store, const SerialCounter& counter);
// Replaces the counter's row by what was typed.
void storeSerial(Connection& store, const SerialCounter& counter, const QString& serial);
// "11-1001-2026"
QString documentNumber(const QString& month, const QString& serial, const QString& year);

// Takes a key: the counter plus 1, or lastKey for an empty counter.
qint64 nextKey(Connection& store, const RowKey& key);
// The highest key of the table plus 1, or the first one.
qint64 lastKey(Connection& store, const RowKey& key);
// Takes count keys at once; returns the first.
qint64 takeKeys(Connection& store, const RowKey& key, qint64 count);
// Sets the counter to lastKey.
void resetKey(Connection& store, const RowKey& key);

}  // namespace numbering

inline QString NextSalesSerial(Connection& store) { return numbering::nextSerial(store, numbering::sales); }
inline QString NextPurchaseSerial(Connection& store) {
    return numbering::nextSerial(store, numbering::purchase);
}
inline void StoreSalesSerial(Connection& store, const QString& serial) {
    numbering::storeSerial(store, numbering::sales, serial);
}
inline void StorePurchaseSerial(Connection& store, const QString& serial) {
    numbering::storeSerial(store, numbering::purchase, serial);
}
inline qint64 NextStockKey(Connection& store) { return numbering::nextKey(store, numbering::stock); }
inline qint64 LastStockKey(Connection& store) { return numbering::lastKey(store, numbering::stock); }
inline void ResetStockKey(Connection& store) { numbering::resetKey(store, numbering::stock); }
