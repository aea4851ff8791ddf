#include "books/posting_queue.h"

#include "books/passed_over.h"

void QueueBookForPosting(Connection& store, const QString& bookId, const QString& reference,
                         const QString& contact, const QDate& date) {
    store.runLater({"INSERT INTO tblForPosting (BookID, Reference, Contact, TransDate) VALUES (?, ?, ?, ?)",
                    {bookId, reference, contact, date}});
}

void QueueItemForPosting(Connection& store, const QString& itemCode) {
    store.runLater(
        {"INSERT INTO tblForPostingItem (ItemID) SELECT ? WHERE NOT EXISTS"
         " (SELECT 1 FROM tblForPostingItem WHERE ItemID = ?)",
         {itemCode, itemCode}});
}

void RemoveForPosting(Connection& store, const QString& bookId, const QString& reference) {
    store.runLater({"DELETE FROM tblForPosting WHERE (BookID = ?) AND (Reference = ?)", {bookId, reference}});
}

void RemoveItemForPosting(Connection& store, const QString& itemCode) {
    store.runLater(
        {"DELETE FROM tblForPostingItem WHERE ItemID = ? AND NOT EXISTS (SELECT 1 FROM tblForPosting q WHERE"
         " CASE WHEN q.BookID = 'P' THEN EXISTS (SELECT 1 FROM tblPurchaseDetails d WHERE d.ItemID = ?"
         " AND d.Reference = q.Reference) ELSE EXISTS (SELECT 1 FROM tblSalesDetails d WHERE d.ItemID = ?"
         " AND d.Reference = q.Reference) END)",
         {itemCode, itemCode, itemCode}});
}

static bool hasRows(Connection& store, const char* statement) {
    bool found = false;
    passOverRead([&] { found = !store.execute(statement).eof(); });
    return found;
}

bool HasPendingPosting(Connection& store) {
    return hasRows(store, "SELECT 1 FROM tblForPosting LIMIT 1") ||
           hasRows(store, "SELECT 1 FROM tblForPostingItem LIMIT 1");
}
