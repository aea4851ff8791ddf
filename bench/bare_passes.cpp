#include "bench/bare_passes.h"

#include "bench/bare_costing.h"
#include "bench/bare_statement.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

using bare::costLedger, bare::costRows, bare::dayOf, bare::Row;
using bare::Count, bare::fromDouble, bare::product, bare::Statement, bare::toDouble;

namespace {
void run(sqlite3* engine, const char* statement) {
    if (sqlite3_exec(engine, statement, nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
}

// Commits as often as the program's long passes do.
class Units {
  public:
    explicit Units(sqlite3* engine) : engine_(engine) { begin(); }
    ~Units() { run(engine_, "COMMIT"); }
    void breathe() {
        if (std::chrono::steady_clock::now() - started_ < std::chrono::milliseconds(120)) return;
        run(engine_, "COMMIT");
        begin();
    }

  private:
    void begin() {
        run(engine_, "BEGIN IMMEDIATE");
        started_ = std::chrono::steady_clock::now();
    }
    sqlite3* engine_;
    std::chrono::steady_clock::time_point started_;
};

constexpr const char* rowColumns = "ZevRef, BookID, StockIn, InPrice, StockOut, Balance, SalesCost";

Row readRow(const Statement& rows) {
    return {rows.number(0),
            rows.text(1) == "P",
            rows.number(2),
            rows.number(3),
            rows.number(4),
            rows.number(5),
            rows.number(6),
            0,
            0};
}

void writeRow(Statement& write, const Row& row) {
    write.bind(1, row.newBalance).bind(2, row.newCost).bind(3, row.key).run();
}

constexpr const char* writeRowText =
    "UPDATE tblStockValuation SET Balance = ?, SalesCost = ? WHERE ZevRef = ?";

using Sums = std::unordered_map<std::string, Count>;

void addUp(sqlite3* engine, const char* query, Count sign, Sums& sums) {
    std::string key;
    for (Statement rows(engine, query); rows.next();) sums[key.assign(rows.text(0))] += sign * rows.number(1);
}

// Base less paid for each row of a master: its key, balance, own amount and row.
void storeBalances(sqlite3* engine, const char* query, const char* update, const Sums& sums, bool absolute) {
    Statement rows(engine, query);
    Statement write(engine, update);
    std::string key;
    std::vector<std::pair<Count, Count>> stale;
    while (rows.next()) {
        const auto found = sums.find(key.assign(rows.text(0)));
        const Count sum = found == sums.end() ? 0 : found->second;
        const Count balance = rows.number(2) - (absolute ? std::abs(sum) : sum);
        if (balance != rows.number(1)) stale.emplace_back(rows.number(3), balance);
    }
    for (const auto& [row, balance] : stale) write.bind(1, balance).bind(2, row).run();
}

std::vector<Row> readLedger(sqlite3* engine) {
    const std::string query =
        std::string("SELECT ") + rowColumns + ", ItemCode, TransDate FROM tblStockValuation ORDER BY ZevRef";
    std::vector<Row> rows;
    std::unordered_map<std::string, int> items;
    std::string code;
    for (Statement ledger(engine, query.c_str()); ledger.next();) {
        rows.push_back(readRow(ledger));
        rows.back().item =
            items.emplace(code.assign(ledger.text(7)), static_cast<int>(items.size())).first->second;
        rows.back().date = dayOf(ledger.text(8));
    }
    return rows;
}

}  // namespace

void bareRead(sqlite3* engine) {
    if (readLedger(engine).empty()) std::abort();
}

// Each page is read once and written once: rows in their order, the costing in memory between.
void bareRevaluation(sqlite3* engine) {
    std::vector<Row> rows = readLedger(engine);
    costLedger(rows);
    Units units(engine);
    Statement write(engine, writeRowText);
    for (const Row& row : rows) {
        if (row.newBalance == row.balance && row.newCost == row.cost) continue;
        writeRow(write, row);
        units.breathe();
    }
}

// One pass over each table, summed up by hash, all in one unit.
void bareBalances(sqlite3* engine) {
    run(engine, "BEGIN IMMEDIATE");
    Sums stock;
    addUp(engine, "SELECT ItemID, Delivered FROM tblPurchaseDetails", -1, stock);
    addUp(engine, "SELECT ItemID, Served FROM tblSalesDetails", 1, stock);
    storeBalances(engine, "SELECT ItemCode, Balance, 0, RowNo FROM tblItemMaster",
                  "UPDATE tblItemMaster SET Balance = ? WHERE RowNo = ?", stock, false);
    Sums paid;
    addUp(engine, "SELECT PuchaseID, PayAmount FROM tblDisbursementDetails WHERE DirectPayment = 0", 1, paid);
    storeBalances(engine, "SELECT PurchaseNo, Balance, PurchaseAmount, RowNo FROM tblPurchaseMaster",
                  "UPDATE tblPurchaseMaster SET Balance = ? WHERE RowNo = ?", paid, false);
    Sums received;
    addUp(engine, "SELECT Reference, Amount + DiscountAmount FROM tblReceiptDetails", 1, received);
    storeBalances(engine, "SELECT RefNo, Balance, TotalAmount, RowNo FROM tblSalesMaster",
                  "UPDATE tblSalesMaster SET Balance = ? WHERE RowNo = ?", received, true);
    run(engine, "COMMIT");
}

namespace {
struct Document {
    std::string book, reference, date, name;
};

class BareEndOfDay {
  public:
    explicit BareEndOfDay(sqlite3* engine) : engine_(engine) {}
    void run();

  private:
    void post(const Document& document);
    void cost(const std::string& item);
    Count valuation(const std::string& item);

    sqlite3* engine_;
    Statement removeStock_{engine_, "DELETE FROM tblStockValuation WHERE BookID = ? AND Reference = ?"};
    Statement contact_{engine_, "SELECT ContactID FROM tblContactMaster WHERE ContactName = ?"};
    Statement sales_{engine_,
                     "SELECT ItemID, Served, UnitPrice, Discount FROM tblSalesDetails WHERE Reference = ?"};
    Statement purchases_{
        engine_, "SELECT ItemID, Delivered, UnitPrice, Discount FROM tblPurchaseDetails WHERE Reference = ?"};
    Statement key_{engine_, "SELECT Server FROM tblStockKey"};
    Statement storeKey_{engine_, "UPDATE tblStockKey SET Server = CAST(? AS TEXT)"};
    Statement addOut_{
        engine_,
        "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, StockOut, "
        "OutPrice) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"};
    Statement addIn_{
        engine_,
        "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, StockIn, "
        "InPrice) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"};
    Statement leave_{engine_, "DELETE FROM tblForPosting WHERE BookID = ? AND Reference = ?"};
    Statement rows_{engine_, (std::string("SELECT ") + rowColumns +
                              " FROM tblStockValuation WHERE ItemCode = ? ORDER BY TransDate, BookID, ZevRef")
                                 .c_str()};
    Statement write_{engine_, writeRowText};
    Statement newest_{
        engine_,
        "SELECT StockIn, InPrice, Balance FROM tblStockValuation WHERE ItemCode = ? AND TransDate BETWEEN "
        "? AND ? ORDER BY TransDate DESC, BookID DESC, ZevRef DESC"};
    Statement dates_{
        engine_,
        "SELECT MIN((SELECT MIN(RefDate) FROM tblSalesMaster), (SELECT MIN(PurchaseDate) FROM "
        "tblPurchaseMaster)), MAX((SELECT MAX(RefDate) FROM tblSalesMaster), (SELECT MAX(PurchaseDate) FROM "
        "tblPurchaseMaster))"};
    Statement delivered_{engine_, "SELECT SUM(Delivered) FROM tblPurchaseDetails WHERE ItemID = ?"};
    Statement served_{engine_, "SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = ?"};
    Statement costPrice_{engine_, "UPDATE tblItemMaster SET CostPrice = ? WHERE ItemCode = ?"};
    Statement leaveItem_{engine_, "DELETE FROM tblForPostingItem WHERE ItemID = ?"};
};

void BareEndOfDay::post(const Document& document) {
    const bool purchase = document.book == "P";
    Statement& lines = purchase ? purchases_ : sales_;
    Statement& add = purchase ? addIn_ : addOut_;
    removeStock_.bind(1, document.book).bind(2, document.reference).run();
    std::string contact;
    for (contact_.bind(1, document.name); contact_.next();) contact = contact_.text(0);
    Count key = key_.value();
    for (lines.bind(1, document.reference); lines.next();) {
        const double off =
            lines.number(3) == 0 ? 0 : toDouble(lines.number(2)) * (toDouble(lines.number(3)) / 100);
        add.bind(1, ++key).bind(2, document.book).bind(3, document.reference).bind(4, contact);
        add.bind(5, lines.text(0)).bind(6, document.date).bind(7, lines.number(1));
        add.bind(8, lines.number(2) - std::abs(fromDouble(off))).run();
    }
    storeKey_.bind(1, key).run();
    leave_.bind(1, document.book).bind(2, document.reference).run();
}

Count BareEndOfDay::valuation(const std::string& item) {
    std::string from, to;
    for (; dates_.next(); to = dates_.text(1)) from = dates_.text(0);
    Count value = 0;
    Count remaining = 0;
    bool first = true;
    for (newest_.bind(1, item).bind(2, from).bind(3, to); newest_.next(); first = false) {
        if (first) remaining = newest_.number(2);
        const Count taken = std::min(remaining, newest_.number(0));
        if (remaining <= 0) continue;
        value += product(taken, newest_.number(1));
        remaining -= taken;
    }
    return value;
}

void BareEndOfDay::cost(const std::string& item) {
    std::vector<Row> rows;
    for (rows_.bind(1, item); rows_.next();) rows.push_back(readRow(rows_));
    costRows(rows);
    for (const Row& row : rows)
        if (row.newBalance != row.balance || row.newCost != row.cost) writeRow(write_, row);
    const Count value = valuation(item);
    const Count quantity = delivered_.bind(1, item).value() - served_.bind(1, item).value();
    costPrice_.bind(1, quantity == 0 ? 0 : fromDouble(toDouble(value) / toDouble(quantity)))
        .bind(2, item)
        .run();
    leaveItem_.bind(1, item).run();
}

void BareEndOfDay::run() {
    std::vector<Document> documents;
    for (Statement queue(
             engine_,
             "SELECT q.BookID, q.Reference, q.TransDate, c.ContactName FROM tblForPosting q LEFT JOIN "
             "tblContactMaster c ON c.ContactID = q.Contact ORDER BY q.BookID, q.TransDate");
         queue.next();)
        documents.push_back({std::string(queue.text(0)), std::string(queue.text(1)),
                             std::string(queue.text(2)), std::string(queue.text(3))});
    std::vector<std::string> items;
    for (Statement queue(engine_, "SELECT ItemID FROM tblForPostingItem"); queue.next();)
        items.emplace_back(queue.text(0));
    Units units(engine_);
    for (const Document& document : documents) {
        post(document);
        units.breathe();
    }
    for (const std::string& item : items) {
        cost(item);
        units.breathe();
    }
}
}  // namespace

void bareEndOfDay(sqlite3* engine) { BareEndOfDay(engine).run(); }
