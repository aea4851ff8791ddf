#include "books/touched_items.h"

#include "books/passed_over.h"

// What a pass that was broken off has left is cleared away a day later.
TouchedItems::TouchedItems(Connection& store) : store_(store) {
    Transaction unit(store_);
    const QDate today = QDate::currentDate();
    store_.run({"DELETE FROM StockPass WHERE Began < ?", {today.addDays(-1)}});
    store_.run("DELETE FROM StockTouched WHERE Pass NOT IN (SELECT Nr FROM StockPass)");
    store_.run({"INSERT INTO StockPass (Began) VALUES (?)", {today}});
    pass_ = store_.execute("SELECT MAX(Nr) AS Nr FROM StockPass").integer("Nr");
    unit.commit();
}

TouchedItems::~TouchedItems() {
    try {
        passOverWrite(store_, [this] {
            store_.run({"DELETE FROM StockPass WHERE Nr = ?", {pass_}});
            store_.run({"DELETE FROM StockTouched WHERE Pass = ?", {pass_}});
        });
    } catch (const StoreError&) {  // a busy store: a later pass clears it away
    }
}

QStringList TouchedItems::codes() const {
    QStringList codes;
    auto row = store_.execute({"SELECT ItemCode FROM StockTouched WHERE Pass = ?", {pass_}});
    for (; !row.eof(); row.moveNext()) codes += row.textAt(0);
    return codes;
}
