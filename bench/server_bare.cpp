#include "bench/server_bare.h"

#include "bench/bare_costing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unordered_map>
#include <utility>

namespace bare {
namespace {
const QByteArray beginAndLock = "BEGIN; SELECT pg_advisory_xact_lock(1517842977)";

// The columns of a row of COPY.
class Columns {
  public:
    explicit Columns(char* row) : next_(row) {}
    std::string_view text() {
        const size_t length = std::strcspn(next_, "\t\n");
        return {std::exchange(next_, next_ + length + 1), length};
    }
    Count number() { return std::strtoll(text().data(), nullptr, 10); }

  private:
    const char* next_;
};

class Ledger {
  public:
    void read(Server& server, const QByteArray& joined) {
        server.copyOut(
            "COPY (SELECT v.ZevRef, v.BookID, v.StockIn, v.InPrice, v.StockOut, v.Balance, v.SalesCost, "
            "v.ItemCode, v.TransDate FROM tblStockValuation v " +
                joined + ") TO STDOUT",
            [this](char* row) { take(Columns(row)); });
        costLedger(rows);
    }
    void write(Server& server) const {
        QByteArray changed;
        for (const Row& row : rows)
            if (row.newBalance != row.balance || row.newCost != row.cost)
                changed += QByteArray::number(row.key) + '\t' + QByteArray::number(row.newBalance) + '\t' +
                           QByteArray::number(row.newCost) + '\n';
        server.run("CREATE TEMP TABLE cost (k bigint, balance bigint, cost bigint) ON COMMIT DROP");
        server.copyIn("COPY cost FROM STDIN", changed);
        server.run(
            "ANALYZE cost; UPDATE tblStockValuation v SET Balance = c.balance, SalesCost = c.cost FROM cost "
            "c "
            "WHERE v.ZevRef = c.k");
    }
    std::vector<Row> rows;
    std::vector<std::string> codes;

  private:
    void take(Columns columns) {
        Row row{};
        row.key = columns.number();
        row.purchase = columns.text() == "P";
        row.in = columns.number();
        row.price = columns.number();
        row.out = columns.number();
        row.balance = columns.number();
        row.cost = columns.number();
        const std::string code(columns.text());
        const auto [found, isNew] = items_.emplace(code, static_cast<int>(items_.size()));
        if (isNew) codes.push_back(code);
        row.item = found->second;
        row.date = dayOf(columns.text());
        rows.push_back(row);
    }
    std::unordered_map<std::string, int> items_;
};

// The newest layers that are on hand after the last row.
Count valueOf(std::vector<Row>::const_reverse_iterator row, std::vector<Row>::const_reverse_iterator end) {
    Count value = 0;
    for (Count left = row == end ? 0 : row->newBalance; row != end && left > 0; ++row) {
        const Count taken = std::min(left, row->in);
        value += product(taken, row->price);
        left -= taken;
    }
    return value;
}

Count costPrice(Count value, Count quantity) {
    if (quantity == 0) return 0;
    return static_cast<Count>(
        std::nearbyint(static_cast<double>(value) / static_cast<double>(quantity) * 10000.0));
}

// The last balance of an item is what was delivered less what was served.
QByteArray costPrices(Ledger& ledger) {
    std::ranges::sort(ledger.rows, {},
                      [](const Row& row) { return std::tuple(row.item, row.date, !row.purchase, row.key); });
    QByteArray prices;
    for (auto last = ledger.rows.crbegin(); last != ledger.rows.crend();) {
        const auto first =
            std::find_if(last, ledger.rows.crend(), [&](const Row& row) { return row.item != last->item; });
        prices += QByteArray::fromStdString(ledger.codes[static_cast<size_t>(last->item)]) + '\t' +
                  QByteArray::number(costPrice(valueOf(last, first), last->newBalance)) + '\n';
        last = first;
    }
    return prices;
}

// The queued documents of one book, on their way into the ledger.
QByteArray postStatement(const char* book, const char* details, const char* quantity, const char* columns) {
    return QByteArray(
               "INSERT INTO tblStockValuation (ZevRef, BookID, Reference, Contact, ItemCode, TransDate, ") +
           columns +
           ") SELECT (SELECT Server::bigint FROM tblStockKey) + row_number() OVER (ORDER BY q.TransDate, "
           "q.RowNo, d.RowNo), q.BookID, q.Reference, q.Contact, d.ItemID, q.TransDate, d." +
           quantity +
           ", d.UnitPrice - abs(round(d.UnitPrice / 10000.0::float8 * (d.Discount / 10000.0::float8 / 100) * "
           "10000)) FROM tblForPosting q JOIN " +
           details + " d ON d.Reference = q.Reference WHERE q.BookID = '" + book +
           "'; UPDATE tblStockKey SET Server = (SELECT MAX(ZevRef) FROM tblStockValuation)";
}
}  // namespace

void revaluation(Server& server) {
    server.run(beginAndLock);
    Ledger ledger;
    ledger.read(server, "ORDER BY v.ZevRef");
    ledger.write(server);
    server.run("COMMIT");
}

void balances(Server& server) {
    server.run(beginAndLock);
    server.run(
        "UPDATE tblItemMaster i SET Balance = s.n FROM (SELECT ItemID, SUM(n)::bigint AS n FROM (SELECT "
        "ItemID, "
        "Delivered AS n FROM tblPurchaseDetails UNION ALL SELECT ItemID, -Served FROM tblSalesDetails) l "
        "GROUP "
        "BY ItemID) s WHERE s.ItemID = i.ItemCode AND i.Balance <> s.n");
    server.run(
        "UPDATE tblPurchaseMaster p SET Balance = p.PurchaseAmount - COALESCE(s.n, 0) FROM tblPurchaseMaster "
        "o "
        "LEFT JOIN (SELECT PuchaseID, SUM(PayAmount)::bigint AS n FROM tblDisbursementDetails WHERE "
        "DirectPayment = 0 GROUP BY PuchaseID) s ON s.PuchaseID = o.PurchaseNo WHERE o.RowNo = p.RowNo AND "
        "p.Balance <> p.PurchaseAmount - COALESCE(s.n, 0)");
    server.run(
        "UPDATE tblSalesMaster p SET Balance = p.TotalAmount - ABS(COALESCE(s.n, 0)) FROM tblSalesMaster o "
        "LEFT "
        "JOIN (SELECT Reference, SUM(Amount + DiscountAmount)::bigint AS n FROM tblReceiptDetails GROUP BY "
        "Reference) s ON s.Reference = o.RefNo WHERE o.RowNo = p.RowNo AND p.Balance <> p.TotalAmount - "
        "ABS(COALESCE(s.n, 0))");
    server.run("COMMIT");
}

void endOfDay(Server& server) {
    server.run(beginAndLock);
    server.run(
        "DELETE FROM tblStockValuation v USING tblForPosting q WHERE v.BookID = q.BookID AND v.Reference = "
        "q.Reference");
    server.run(postStatement("P", "tblPurchaseDetails", "Delivered", "StockIn, InPrice"));
    server.run(postStatement("S", "tblSalesDetails", "Served", "StockOut, OutPrice"));
    Ledger ledger;
    ledger.read(server, "JOIN tblForPostingItem q ON q.ItemID = v.ItemCode");
    ledger.write(server);
    server.run("CREATE TEMP TABLE price (item citext, price bigint) ON COMMIT DROP");
    server.copyIn("COPY price FROM STDIN", costPrices(ledger));
    server.run("UPDATE tblItemMaster i SET CostPrice = p.price FROM price p WHERE i.ItemCode = p.item");
    server.run("DELETE FROM tblForPosting; DELETE FROM tblForPostingItem; COMMIT");
}

// ---- saves

namespace {
QByteArray list(const QByteArrayList& values) { return '{' + values.join(',') + '}'; }

// Under the lock: whether the number is free, and the contact.
QByteArray contactOf(Server& server, const char* isFree, const FiveLines& document) {
    server.add(isFree, {document.number});
    server.add("contact", {document.contactName});
    return server.sendAll();
}

QByteArray five(const QByteArray& amount) { return QByteArray::number(5 * amount.toLongLong()); }
}  // namespace

void prepareSaves(Server& server) {
    const std::pair<const char*, const char*> statements[] = {
        {"contact", "SELECT ContactID FROM tblContactMaster WHERE ContactName = $1"},
        {"commit", "COMMIT"},
        {"sale free", "SELECT 1 FROM tblSalesMaster WHERE RefNo = $1"},
        {"sale",
         "INSERT INTO tblSalesMaster (RefNo, RefDate, ContactNo, TotalAmount, Remarks, Printed, RecordLock, "
         "Balance, UpdatedBy, DateUpdate) VALUES ($1, $2, $3, $4, '', 0, 0, $4, 'ADMIN', $2)"},
        {"sale counter", "UPDATE tblSalesKey SET Server = $1"},
        {"queue",
         "INSERT INTO tblForPosting (BookID, Reference, Contact, TransDate) VALUES ('S', $1, $2, $3)"},
        {"lines",
         "INSERT INTO tblSalesDetails (Reference, ItemID, Ordered, Served, Unit, UnitPrice, Discount, Total) "
         "SELECT $1, item, 10000, 10000, 'PC', $3::bigint, 0, $3::bigint FROM unnest($2::text[]) item"},
        {"queue items",
         "INSERT INTO tblForPostingItem (ItemID) SELECT item FROM unnest($1::citext[]) item WHERE NOT EXISTS "
         "(SELECT 1 FROM tblForPostingItem WHERE ItemID = item)"},
        {"prices",
         "UPDATE tblItemMaster SET SellingPrice = $2 WHERE ItemCode = ANY($1::citext[]) AND SellingPrice <> "
         "$2"},
        {"stock",
         "UPDATE tblItemMaster i SET Balance = COALESCE((SELECT SUM(Delivered) FROM tblPurchaseDetails WHERE "
         "ItemID = i.ItemCode), 0) - COALESCE((SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = "
         "i.ItemCode), 0) WHERE ItemCode = ANY($1::citext[])"},
        {"on hand",
         "SELECT ItemCode, (SELECT SUM(d.Delivered) FROM tblPurchaseDetails d JOIN tblPurchaseMaster m ON "
         "m.PurchaseNo = d.Reference WHERE d.ItemID = i.ItemCode AND m.PurchaseDate <= $2), (SELECT "
         "SUM(d.Served) FROM tblSalesDetails d JOIN tblSalesMaster m ON m.RefNo = d.Reference WHERE d.ItemID "
         "= "
         "i.ItemCode AND m.RefDate <= $2) FROM tblItemMaster i WHERE ItemCode = ANY($1::citext[])"},
        {"receipt free", "SELECT 1 FROM tblReceiptMaster WHERE PayNo = $1"},
        {"receipt",
         "INSERT INTO tblReceiptMaster (PayNo, CustomerNo, PaymentDate, PaymentAmount, TotalDiscAmount, "
         "PayRemarks, Printed, RecordLock, UpdatedBy, DateUpdate) VALUES ($1, $2, $3, $4, 0, '', 0, 0, "
         "'ADMIN', "
         "$3)"},
        {"receipt lines",
         "INSERT INTO tblReceiptDetails (ZevRef, PayCode, Reference, Discount, DiscountAmount, Amount, "
         "CheckStatus, Negotiated) SELECT (SELECT Server::bigint FROM tblReceiptZev) + number, $1, item, 0, "
         "0, "
         "$3::bigint, 'Cash', -1 FROM unnest($2::text[]) WITH ORDINALITY AS line (item, number)"},
        {"receipt keys", "UPDATE tblReceiptZev SET Server = Server::bigint + 5"},
        {"received",
         "UPDATE tblSalesMaster o SET Balance = TotalAmount - ABS(COALESCE((SELECT SUM(Amount + "
         "DiscountAmount) "
         "FROM tblReceiptDetails WHERE Reference = o.RefNo), 0)) WHERE RefNo = ANY($1::citext[])"},
        {"voucher free", "SELECT 1 FROM tblDisbursementMaster WHERE VoucherNo = $1"},
        {"voucher",
         "INSERT INTO tblDisbursementMaster (VoucherNo, VoucherDate, VoucherAmount, ContactNo, Remarks, "
         "Printed, "
         "RecordLock, MonthGroup, UpdatedBy, DateUpdate) VALUES ($1, $2, $3, $4, '', 0, 0, '01', 'ADMIN', "
         "$2)"},
        {"voucher counter", "UPDATE tblDisbursementKey SET Server = $1"},
        {"voucher lines",
         "INSERT INTO tblDisbursementDetails (VoucherID, PuchaseID, PurchaseDate, PayAmount, Particulars, "
         "DirectPayment) SELECT $1, item, $4, $3::bigint, '', 0 FROM unnest($2::text[]) item"},
        {"check",
         "INSERT INTO tblChecks (ZevRef, VoucherID, CheckNo, CheckDate, CheckAmount, ContactNo, CheckStatus, "
         "Negotiated, CrossCheck, Printed, Released) SELECT (SELECT Server::bigint FROM tblChecksZev) + 1, "
         "$1, $1, $2, $3, $4, 'Pending', 0, 0, 0, 0"},
        {"check keys", "UPDATE tblChecksZev SET Server = Server::bigint + 1"},
        {"paid",
         "UPDATE tblPurchaseMaster o SET Balance = PurchaseAmount - COALESCE((SELECT SUM(PayAmount) FROM "
         "tblDisbursementDetails WHERE PuchaseID = o.PurchaseNo AND DirectPayment = 0), 0) WHERE PurchaseNo "
         "= "
         "ANY($1::citext[])"},
    };
    for (const auto& [name, statement] : statements) server.prepare(name, statement);
}

static const QByteArray day = "2026-11-23";

void saveSale(Server& server, const FiveLines& sale) {
    const QByteArray items = list(sale.keys);
    server.run(beginAndLock);
    server.add("on hand", {items, day});
    const QByteArray contact = contactOf(server, "sale free", sale);
    server.add("sale", {sale.number, day, contact, five(sale.amount)});
    server.add("sale counter", {sale.number.split('-').value(1)});
    server.add("queue", {sale.number, contact, day});
    server.add("lines", {sale.number, items, sale.amount});
    server.add("queue items", {items});
    server.add("prices", {items, sale.amount});
    server.add("stock", {items});
    server.add("received", {list({sale.number})});
    server.add("commit");
    server.sendAll();
}

void saveReceipt(Server& server, const FiveLines& receipt) {
    server.run(beginAndLock);
    const QByteArray contact = contactOf(server, "receipt free", receipt);
    const QByteArray orders = list(receipt.keys);
    server.add("receipt", {receipt.number, contact, day, five(receipt.amount)});
    server.add("receipt lines", {receipt.number, orders, receipt.amount});
    server.add("receipt keys");
    server.add("received", {orders});
    server.add("commit");
    server.sendAll();
}

void saveVoucher(Server& server, const FiveLines& voucher) {
    server.run(beginAndLock);
    const QByteArray contact = contactOf(server, "voucher free", voucher);
    const QByteArray orders = list(voucher.keys);
    server.add("voucher", {voucher.number, day, five(voucher.amount), contact});
    server.add("voucher counter", {voucher.number.split('-').value(1)});
    server.add("voucher lines", {voucher.number, orders, voucher.amount, day});
    server.add("check", {voucher.number, day, five(voucher.amount), contact});
    server.add("check keys");
    server.add("paid", {orders});
    server.add("commit");
    server.sendAll();
}
}  // namespace bare
