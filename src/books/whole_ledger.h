#pragma once
#include "books/costing.h"
#include "books/long_pass.h"
#include "books/word_numbers.h"

class BulkReader;

// The ledger of all items of the master in memory: read in the order of its rows, costed item by item, and
// what changed given back in the order of its keys, so that the engine reads and writes each page once.
class WholeLedger {
  public:
    explicit WholeLedger(Connection& store);

    // Reads on from where it stopped; false when all is read.
    bool readOn(const UnitClock& clock);
    qint64 lastKey() const { return lastKey_; }
    // A figure beyond the range ends its own pass over its item, no other.
    void cost();

    struct Change {
        qint64 zevRef;
        int item;
        StockFigures figures;
    };
    const std::vector<Change>& changes() const { return changes_; }
    int itemCount() const { return itemCount_; }
    // -1 for one that the master does not have.
    int itemOf(QByteArrayView code) const { return items_.value(foldedKey(code), -1); }

  private:
    struct Row {
        StockRow row;
        int item;
        int date;
        int book;
    };
    void take(const BulkReader& reader);
    int takeBook(QByteArrayView bookId);
    int takeItem(QByteArrayView code);
    std::vector<size_t> startsOfItems() const;
    std::vector<quint32> rowsByItem(std::vector<size_t> starts) const;
    void costItem(ItemCosting& costing, const quint32* first, const quint32* last);

    Connection& store_;
    QHash<QByteArray, int> items_;
    int itemCount_ = 0;
    WordNumbers codes_, dates_, books_;
    std::vector<int> itemOfCode_;       // by the number of the code
    std::vector<Movement> movementOf_;  // by the number of the book
    std::vector<Row> rows_;
    std::vector<Change> changes_;
    qint64 lastKey_ = std::numeric_limits<qint64>::min();
};
