#include "books/stock_valuation.h"

#include "books/balances.h"
#include "books/item_costs.h"
#include "books/key_numbers.h"
#include "books/numbering.h"
#include "books/passed_over.h"
#include "books/stock_rows.h"
#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"
#include "platform/store/read_ahead.h"

#include <algorithm>
#include <tuple>

static QString stockInsert(const char* quantity, const char* price) {
    return QString(
               "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, %1, "
               "%2)"
               " VALUES (?, ?, ?, ?, ?, ?, ?, ?)")
        .arg(quantity, price);
}

void addStockRow(Connection& store, qint64 zevRef, const StockMovement& movement) {
    static const QString in = stockInsert("StockIn", "InPrice");
    static const QString out = stockInsert("StockOut", "OutPrice");
    BulkWriter row(store, movement.bookId.compare("P", Qt::CaseInsensitive) == 0 ? in : out);
    row.bind(1, zevRef);
    row.bind(2, movement.bookId);
    row.bind(3, movement.reference);
    row.bind(4, movement.contact);
    row.bind(5, movement.itemCode);
    if (movement.date.isValid()) row.bind(6, movement.date.toString(Qt::ISODate));
    row.bind(7, movement.quantity);
    row.bind(8, movement.price);
    row.step();
}

void AddStockValuation(Connection& store, const QString& bookId, const QString& reference,
                       const QString& contact, const QString& itemCode, const QDate& date, Currency quantity,
                       Currency price) {
    Transaction unit(store);
    addStockRow(store, NextStockKey(store), {bookId, reference, contact, itemCode, date, quantity, price});
    unit.commit();
}

void RemoveStockValuation(Connection& store, const QString& bookId, const QString& reference) {
    store.runLater(
        {"DELETE FROM tblStockValuation WHERE (BookID = ?) AND (Reference = ?)", {bookId, reference}});
}

namespace {
// The walk backwards over the rows of one item: its newest layers are on hand, as far as the balance after
// the last row goes.
class LayersOnHand {
  public:
    explicit LayersOnHand(Currency balance) : remaining_(balance) {}
    void take(Currency stockIn, Currency price) {
        if (remaining_ > Currency()) value_ += valueOfRow(stockIn, price);
    }
    bool isCovered() const { return remaining_ <= Currency(); }
    Currency value() const { return value_; }

  private:
    Currency valueOfRow(Currency stockIn, Currency price) {
        if (remaining_ <= stockIn) return std::exchange(remaining_, Currency()) * price;
        remaining_ -= stockIn.abs();
        return price * stockIn;
    }
    Currency remaining_, value_;
};
}  // namespace

static Sql layersQuery(const QDate& from, const QDate& to, const QString& itemCode) {
    return {
        "SELECT v.StockIn, v.InPrice, v.Balance FROM tblStockValuation v"
        " WHERE (v.ItemCode = ?) AND (v.TransDate BETWEEN ? AND ?)"
        " ORDER BY v.TransDate DESC, v.BookID DESC, v.ZevRef DESC",
        {itemCode, from, to}};
}

static Currency layersValue(Connection& store, const QDate& from, const QDate& to, const QString& itemCode) {
    BulkReader row(store, layersQuery(from, to, itemCode));
    if (!row.next()) return {};
    LayersOnHand layers(row.currency(2));
    for (bool more = true; more && !layers.isCovered(); more = row.next())
        layers.take(row.currency(0), row.currency(1));
    return layers.value();
}

// A figure whose failure is told, and counts 0.
static Currency toldFigure(Boxes& boxes, const std::function<Currency()>& figure) {
    try {
        return figure();
    } catch (const StoreError& error) {
        if (error.number() == StoreError::busy) throw;
        boxes += exclamation("Error!", error.text());
    } catch (const OverflowError& error) {
        boxes += exclamation("Error!", error.what());
    }
    return {};
}

Currency ValuationCost(Connection& store, const QDate& from, const QDate& to, const QString& itemCode,
                       Boxes& boxes) {
    return toldFigure(boxes, [&] { return layersValue(store, from, to, itemCode); });
}

namespace {
// A row of the ledger, by numbers: all of them are read as they lie, which takes a third of the time that the
// engine takes to bring them in their order.
struct LedgerRow {
    int item, date, book;
    qint64 key;
    Currency stockIn, price, balance;
};

struct LedgerRows {
    KeyNumbers items, dates, books;
    std::vector<LedgerRow> rows;
};
}  // namespace

static LedgerRows ledgerOf(Connection& store, const QDate& from, const QDate& to) {
    LedgerRows ledger;
    for (BulkReader row(store,
                        {"SELECT v.ItemCode, v.TransDate, v.BookID, v.ZevRef, v.StockIn, v.InPrice, "
                         "v.Balance FROM tblStockValuation v WHERE v.TransDate BETWEEN ? AND ? ORDER BY "
                         "v.ZevRef",
                         {from, to}});
         row.next();)
        ledger.rows.push_back({ledger.items.add(row.bytes(0)), ledger.dates.add(row.bytes(1)),
                               ledger.books.add(row.bytes(2)), row.integer(3), row.currency(4),
                               row.currency(5), row.currency(6)});
    return ledger;
}

// Item by item, the newest row first.
static void sortBackwards(LedgerRows& ledger) {
    const std::vector<int> dates = ledger.dates.places(), books = ledger.books.places();
    for (LedgerRow& row : ledger.rows) {
        row.date = dates[static_cast<size_t>(row.date)];
        row.book = books[static_cast<size_t>(row.book)];
    }
    std::ranges::sort(ledger.rows, std::ranges::greater(),
                      [](const LedgerRow& row) { return std::tuple(row.item, row.date, row.book, row.key); });
}

// From the last row of an item to its first; the end of it is the last row of the next.
using LedgerPlace = std::vector<LedgerRow>::const_iterator;
static Currency valueOfItem(LedgerPlace& row, LedgerPlace end, Boxes& boxes) {
    LayersOnHand layers(row->balance);
    for (const int item = row->item; row != end && row->item == item; ++row) try {
            layers.take(row->stockIn, row->price);
        } catch (const OverflowError& error) {
            boxes += exclamation("Error!", error.what());
            layers = LayersOnHand({});
        }
    return layers.value();
}

KeyedFigures ValuationCosts(Connection& store, const QDate& from, const QDate& to, Boxes& boxes) {
    LedgerRows ledger = ledgerOf(store, from, to);
    sortBackwards(ledger);
    KeyedFigures values;
    for (LedgerPlace row = ledger.rows.cbegin(); row != ledger.rows.cend();) {
        const QByteArray& item = ledger.items.at(row->item);
        values[item] = valueOfItem(row, ledger.rows.cend(), boxes);
    }
    return values;
}

Currency PeriodSalesCost(Connection& store, const QDate& from, const QDate& to, const QString& itemCode,
                         Boxes& boxes) {
    return toldFigure(boxes, [&] {
        const Recordset row =
            store.execute({"SELECT SUM(SalesCost) AS Puhunan FROM tblStockValuation"
                           " WHERE (ItemCode = ?) AND (TransDate BETWEEN ? AND ?)",
                           {itemCode, from, to}});
        if (row.isNull("Puhunan")) throw StoreError(StoreError::general, "Invalid use of Null");
        return row.currency("Puhunan");
    });
}

static std::pair<QDate, QDate> allDays(Connection& store) {
    std::pair<QDate, QDate> days;
    passOverRead([&] {
        days = {std::min(GetFirstSalesDate(store), GetFirstPurchaseDate(store)),
                std::max(GetLastSalesDate(store), GetLastPurchaseDate(store))};
    });
    return days;
}

Currency StockValue(Connection& store, const QString& itemCode, Boxes& boxes) {
    const auto [from, to] = allDays(store);
    return ValuationCost(store, from, to, itemCode, boxes);
}

Currency StockValueAt(Connection& store, const QDate& day, const QString& itemCode, Boxes& boxes) {
    return ValuationCost(store, allDays(store).first, day, itemCode, boxes);
}

KeyedFigures StockValues(Connection& store, Boxes& boxes) {
    const auto [from, to] = allDays(store);
    return ValuationCosts(store, from, to, boxes);
}

static Currency averageCost(Currency value, Currency quantity) {
    try {
        return divide(value, quantity);
    } catch (const OverflowError&) {
        return {};
    }
}

static Sql itemQuery(const QString& itemCode) {
    return {"SELECT 1 FROM tblItemMaster WHERE ItemCode = ?", {itemCode}};
}

void StoreCostPrices(Connection& store, const QStringList& itemCodes, Boxes& boxes) {
    const auto [from, to] = allDays(store);
    std::vector<Sql> reads;
    for (const QString& code : itemCodes)
        for (const Sql& read : {layersQuery(from, to, code), ItemBalanceSums(code), itemQuery(code)})
            reads.push_back(read);
    const ReadAhead ahead(store, reads, ReadAhead::End);
    for (const QString& code : itemCodes) {
        const Currency value = ValuationCost(store, from, to, code, boxes);
        const Currency cost = averageCost(value, ItemBalance(store, code));
        if (store.execute(itemQuery(code)).eof())
            boxes += exclamation("Error!", "Inventory Balance could not be Updated! Item Not Found!");
        passOverRead([&] {
            store.runLater(
                {"UPDATE tblItemMaster SET CostPrice = ? WHERE ItemCode = ?", {bound(cost), code}});
        });
    }
}

const char* priceColumn(PriceKind kind) {
    switch (kind) {
        case PriceKind::Cost:
            return "CostPrice";
        case PriceKind::Sell:
            return "SellingPrice";
        case PriceKind::Whole:
            return "WholesalePrice";
    }
    Q_UNREACHABLE();
}

void UpdateItemPrice(Connection& store, const QString& itemCode, PriceKind kind, Currency price) {
    const QString update = QString("UPDATE tblItemMaster SET %1 = ? WHERE ItemCode = ? AND %1 <> ?");
    passOverRead([&] {
        store.runLater({update.arg(priceColumn(kind)), {bound(price), itemCode, bound(price)}});
    });
}
