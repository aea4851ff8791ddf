#include "books/numbering.h"

#include "books/passed_over.h"
#include "platform/parsing.h"

#include <optional>

namespace numbering {

static constexpr qint64 firstSerial = 1001;

// What a counter table holds: no row, a row without a number, or a number.
struct CounterState {
    bool empty = true;
    std::optional<Currency> number;
};

static CounterState readCounter(Connection& store, const char* table) {
    const Recordset row = store.execute(QString("SELECT Server FROM %1").arg(table));
    if (row.eof()) return {};
    return {false, parseNumber(row.text("Server"))};
}

static void writeCounter(Connection& store, const char* table, const QString& number) {
    store.runLater({QString("UPDATE %1 SET Server = ?").arg(table), {number}});
    store.runLater(
        {QString("INSERT INTO %1 (Server) SELECT ? WHERE NOT EXISTS (SELECT 1 FROM %1)").arg(table),
         {number}});
}

static qint64 wholeNumber(Currency number) { return number.tenThousandths() / 10000; }

static QString serialAfter(const CounterState& counter) {
    if (counter.empty) return QString::number(firstSerial);
    if (!counter.number) return "0";
    try {
        return (*counter.number + Currency::fromInteger(1)).toPlainText();
    } catch (const OverflowError&) {
        return "0";
    }
}

QString nextSerial(Connection& store, const SerialCounter& counter) {
    QString serial = "0";
    passOverRead([&] { serial = serialAfter(readCounter(store, counter.counterTable)); });
    return serial;
}

void storeSerial(Connection& store, const SerialCounter& counter, const QString& serial) {
    passOverRead([&] { writeCounter(store, counter.counterTable, serial); });
}

QString documentNumber(const QString& month, const QString& serial, const QString& year) {
    return month + u'-' + serial + u'-' + year;
}

qint64 nextKey(Connection& store, const RowKey& key) { return takeKeys(store, key, 1); }

qint64 lastKey(Connection& store, const RowKey& key) {
    qint64 next = 0;
    passOverRead([&] {
        const Recordset highest =
            store.execute(QString("SELECT MAX(%1) AS Highest FROM %2").arg(key.column, key.table));
        next = highest.isNull("Highest") ? key.first : highest.integer("Highest") + 1;
    });
    return next;
}

// The first of the keys that come after the counter; 0 for a counter that holds no number.
static qint64 firstFree(Connection& store, const RowKey& key) {
    const CounterState counter = readCounter(store, key.counterTable);
    if (counter.empty) return lastKey(store, key);
    return counter.number ? wholeNumber(*counter.number) + 1 : 0;
}

qint64 takeKeys(Connection& store, const RowKey& key, qint64 count) {
    qint64 first = 0;
    const bool taken = passOverWrite(store, [&] {
        first = firstFree(store, key);
        if (first > 0 && count > 0) writeCounter(store, key.counterTable, QString::number(first + count - 1));
    });
    return taken ? first : 0;
}

void resetKey(Connection& store, const RowKey& key) {
    passOverWrite(store,
                  [&] { writeCounter(store, key.counterTable, QString::number(lastKey(store, key))); });
}

}  // namespace numbering
