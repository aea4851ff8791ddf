#pragma once
#include "foundation/stored_state.h"

// The RecordLock of a document, tested and set by one statement.
using LockableBook = KeyedTable;
inline constexpr LockableBook salesBook{"tblSalesMaster", "RefNo"};
inline constexpr LockableBook purchaseBook{"tblPurchaseMaster", "PurchaseNo"};
inline constexpr LockableBook receiptBook{"tblReceiptMaster", "PayNo"};
inline constexpr LockableBook disbursementBook{"tblDisbursementMaster", "VoucherNo"};

enum class LockResult { Taken, Locked, Gone };
LockResult takeRecordLock(Connection& store, const LockableBook& book, const QString& key);

// A lock that was taken for a screen, and whether the document had been printed by then.
struct HeldLock {
    QString key = {};  // empty: none is held
    bool wasPrinted = false;
};
HeldLock heldLock(Connection& store, const LockableBook& book, const QString& key);
// Gives it back. A print that came meanwhile has locked the document for good: that lock stays.
void releaseRecordLock(Connection& store, const LockableBook& book, const HeldLock& lock);

// Locks or releases it, whoever holds it.
void setRecordLock(Connection& store, const LockableBook& book, const QString& key, bool locked);
