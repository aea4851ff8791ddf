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

void WholeLedger::take(const BulkReader& reader) {
    constexpr int bookColumn = 1, codeColumn = 7, dateColumn = 8;
    lastKey_ = reader.integer(0);
    const size_t code = static_cast<size_t>(codes_.numberOf(reader.bytes(codeColumn)));
    if (code == itemOfCode_.size()) itemOfCode_.push_back(itemOf(reader.bytes(codeColumn)));
    if (itemOfCode_[code] < 0) return;
    rows_.push_back({ledger::readRow(reader), itemOfCode_[code], dates_.numberOf(reader.bytes(dateColumn)),
                     books_.numberOf(reader.bytes(bookColumn))});
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

void WholeLedger::costItem(ItemCosting& item, const quint32* first, const quint32* last) {
    item.clear();
    for (const quint32* at = first; at != last; ++at) item.add(rows_[*at].row);
    costPassingOver(item);
    for (const StockRow& row : item.rows()) rows_[*first++].row.figures = row.figures;
}

void WholeLedger::cost() {
    const std::vector<size_t> starts = startsOfItems();
    const std::vector<quint32> order = rowsByItem(starts);
    ItemCosting item;
    for (size_t at = 0; at + 1 < starts.size(); ++at)
        costItem(item, order.data() + starts[at], order.data() + starts[at + 1]);
    for (const Row& row : std::exchange(rows_, {}))
        if (row.row.figures != row.row.stored)
            changes_.push_back({row.row.zevRef, row.item, row.row.figures});
}
