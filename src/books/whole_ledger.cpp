#include "books/whole_ledger.h"

#include "books/item_costs.h"
#include "books/ledger.h"
#include "platform/store/bulk.h"

WholeLedger::WholeLedger(Connection& store) : store_(store) {
    for (BulkReader item(store, "SELECT ItemCode FROM tblItemMaster"); item.next();)
        items_.insert(foldedKey(item.bytes(0)), itemCount_++);
}

bool WholeLedger::readOn(const UnitClock& clock) {
    constexpr int rowsBetweenLooks = 256;
    BulkReader reader(store_, {QString("SELECT %1, v.ItemCode, v.TransDate FROM tblStockValuation v"
                                       " WHERE v.ZevRef > ? ORDER BY v.ZevRef")
                                   .arg(ledger::columns),
                               {lastKey_}});
    for (int count = 1; reader.next(); ++count) {
        take(reader);
        if (count % rowsBetweenLooks == 0 && clock.isOver()) return true;
    }
    return false;
}

int WholeLedger::takeBook(QByteArrayView bookId) {
    const int book = books_.numberOf(bookId);
    if (static_cast<size_t>(book) == movementOf_.size()) movementOf_.push_back(ledger::movementOf(bookId));
    return book;
}

int WholeLedger::takeItem(QByteArrayView code) {
    const auto number = static_cast<size_t>(codes_.numberOf(code));
    if (number == itemOfCode_.size()) itemOfCode_.push_back(itemOf(code));
    return itemOfCode_[number];
}

void WholeLedger::take(const BulkReader& reader) {
    constexpr int bookColumn = 1, codeColumn = 7, dateColumn = 8;
    const int item = takeItem(reader.bytes(codeColumn));
    const int book = takeBook(reader.bytes(bookColumn));
    const StockRow row = ledger::readRow(reader, movementOf_[static_cast<size_t>(book)]);
    lastKey_ = row.zevRef;
    if (item >= 0) rows_.push_back({row, item, dates_.numberOf(reader.bytes(dateColumn)), book});
}

std::vector<size_t> WholeLedger::startsOfItems() const {
    std::vector<size_t> starts(static_cast<size_t>(itemCount_) + 1);
    for (const Row& row : rows_) ++starts[static_cast<size_t>(row.item) + 1];
    for (size_t item = 1; item < starts.size(); ++item) starts[item] += starts[item - 1];
    return starts;
}

// The rows of each item together, in the order of the ledger.
std::vector<quint32> WholeLedger::rowsByItem(std::vector<size_t> starts) const {
    std::vector<quint32> order(rows_.size());
    std::vector<size_t> free = starts;
    for (size_t at = 0; at < rows_.size(); ++at)
        order[free[static_cast<size_t>(rows_[at].item)]++] = static_cast<quint32>(at);
    const std::vector<int> dates = dates_.places();
    const std::vector<int> books = books_.places();
    const auto isBefore = [&](quint32 a, quint32 b) {
        const auto place = [&](const Row& row) {
            return std::pair(dates[static_cast<size_t>(row.date)], books[static_cast<size_t>(row.book)]);
        };
        return place(rows_[a]) < place(rows_[b]);
    };
    for (size_t item = 0; item + 1 < starts.size(); ++item) {
        const auto first = order.begin() + static_cast<qint64>(starts[item]);
        const auto last = order.begin() + static_cast<qint64>(starts[item + 1]);
        if (!std::is_sorted(first, last, isBefore)) std::stable_sort(first, last, isBefore);
    }
    return order;
}

void WholeLedger::costItem(ItemCosting& costing, const quint32* first, const quint32* last) {
    costing.clear();
    for (const quint32* at = first; at != last; ++at) costing.add(rows_[*at].row);
    costPassingOver(costing);
    const int item = first == last ? -1 : rows_[*first].item;
    for (const StockRow& row : costing.rows())
        if (row.figures != row.stored) changes_.push_back({row.zevRef, item, row.figures});
}

void WholeLedger::cost() {
    const std::vector<size_t> starts = startsOfItems();
    const std::vector<quint32> order = rowsByItem(starts);
    ItemCosting costing;
    for (size_t at = 0; at + 1 < starts.size(); ++at)
        costItem(costing, order.data() + starts[at], order.data() + starts[at + 1]);
    std::exchange(rows_, {});
    std::ranges::sort(changes_, {}, &Change::zevRef);
}
