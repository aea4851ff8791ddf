#include "books/books_check.h"

#include "books/cached_balance.h"

static QStringList faultsOf(Connection& store, const CachedBalance& cached) {
    QStringList faults;
    auto row = store.execute(
        QString("SELECT %1 AS Code, Balance FROM %2 ORDER BY %1").arg(cached.key, cached.table));
    for (; !row.eof(); row.moveNext()) {
        const QString key = row.text("Code");
        const Currency balance = cached.compute(store, key);
        if (row.isNull("Balance") || row.currency("Balance") != balance)
            faults +=
                QString("%1 %2 has the balance %3, recomputed %4")
                    .arg(cached.table, key, row.currency("Balance").toPlainText(), balance.toPlainText());
    }
    return faults;
}

QStringList balanceFaults(Connection& store) {
    QStringList faults;
    for (const CachedBalance* cached : {&inventoryBalance, &payableBalance, &receivableBalance})
        faults += faultsOf(store, *cached);
    return faults;
}
