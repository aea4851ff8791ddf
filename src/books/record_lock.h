#pragma once
#include "platform/store/connection.h"

// The RecordLock of a document, tested and set by one statement.
struct LockableBook {
    const char* table;
    const char* key;
};
inline constexpr LockableBook salesBook{"tblSalesMaster", "RefNo"};
inline constexpr LockableBook purchaseBook{"tblPurchaseMaster", "PurchaseNo"};
inline constexpr LockableBook receiptBook{"tblReceiptMaster", "PayNo"};
inline constexpr LockableBook disbursementBook{"tblDisbursementMaster", "VoucherNo"};

enum class LockResult { Taken, Locked, Gone };
LockResult takeRecordLock(Connection& store, const LockableBook& book, const QString& key);
void setRecordLock(Connection& store, const LockableBook& book, const QString& key, bool locked);
