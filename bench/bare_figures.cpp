#include "bench/bare_figures.h"

#include "bench/bare_statement.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace bare {
namespace {
// Numbers from 0 for keys, as they come; a key that comes again at once is not looked up again.
class Keys {
  public:
    size_t add(std::string_view key) {
        if (last_ < words_.size() && words_[last_] == key) return last_;
        const auto known = numbers_.find(key);
        if (known != numbers_.end()) return last_ = known->second;
        words_.emplace_back(key);
        numbers_.emplace(words_.back(), words_.size() - 1);
        return last_ = words_.size() - 1;
    }
    // size() for one that is not there.
    size_t find(std::string_view key) {
        if (last_ < words_.size() && words_[last_] == key) return last_;
        const auto known = numbers_.find(key);
        return known == numbers_.end() ? size() : last_ = known->second;
    }
    size_t size() const { return words_.size(); }
    // The place of each key in their order.
    std::vector<size_t> places() const {
        std::vector<size_t> order(size()), places(size());
        for (size_t at = 0; at < size(); ++at) order[at] = at;
        std::ranges::sort(order, {}, [this](size_t at) -> const std::string& { return words_[at]; });
        for (size_t at = 0; at < size(); ++at) places[order[at]] = at;
        return places;
    }

  private:
    struct Hash {
        using is_transparent = void;
        size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
    };
    std::unordered_map<std::string, size_t, Hash, std::equal_to<>> numbers_;
    std::vector<std::string> words_;
    size_t last_ = static_cast<size_t>(-1);
};

// A figure for each key; 0 where none was given.
class Figures {
  public:
    Count& operator[](size_t key) {
        if (key >= figures_.size()) figures_.resize(std::max(key + 1, 2 * figures_.size()));
        return figures_[key];
    }
    Count of(size_t key) const { return key < figures_.size() ? figures_[key] : 0; }

  private:
    std::vector<Count> figures_;
};

Count percentOf(Count percent, Count amount) {
    return fromDouble(toDouble(amount) * (toDouble(percent) / 100.0));
}
Count netOf(Count percent, Count amount) { return amount - std::abs(percentOf(percent, amount)); }
Count perUnit(Count amount, Count quantity) {
    return quantity == 0 ? 0 : fromDouble(toDouble(amount) / toDouble(quantity));
}

// What a line shows beside its figures.
void readTexts(const Statement& row, int first, int last) {
    for (int column = first; column <= last; ++column) static_cast<void>(row.text(column));
}

Keys keysOf(sqlite3* engine, const char* query) {
    Keys keys;
    for (Statement row(engine, query); row.next();) keys.add(row.text(0));
    return keys;
}

Keys contactsByName(sqlite3* engine) {
    return keysOf(engine,
                  "SELECT ContactID, ContactName FROM tblContactMaster ORDER BY ContactName, ContactID");
}

// The percent of the first payment of each sale.
Figures firstPercents(sqlite3* engine, Keys& sales) {
    Figures percents;
    Figures isKnown;
    for (Statement paid(engine, "SELECT Reference, Discount FROM tblReceiptDetails ORDER BY ZevRef");
         paid.next();) {
        const size_t sale = sales.add(paid.text(0));
        if (std::exchange(isKnown[sale], 1) == 0) percents[sale] = paid.number(1);
    }
    return percents;
}

Count lineDiscount(Count percent, Count price, Count discount, Count served) {
    return percent == 0 ? 0 : product(percentOf(percent, price - percentOf(discount, price)), served);
}

Figures discountsOfSales(sqlite3* engine, Keys& sales) {
    const Figures percents = firstPercents(engine, sales);
    Figures discounts;
    for (Statement line(engine, "SELECT Reference, UnitPrice, Discount, Served FROM tblSalesDetails");
         line.next();) {
        const size_t sale = sales.add(line.text(0));
        if (const Count percent = percents.of(sale))
            discounts[sale] += lineDiscount(percent, line.number(1), line.number(2), line.number(3));
    }
    return discounts;
}

Figures costsOfSales(sqlite3* engine, Keys& sales) {
    Figures costs;
    for (Statement row(engine, "SELECT Reference, SalesCost FROM tblStockValuation WHERE BookID = 'S'");
         row.next();)
        costs[sales.add(row.text(0))] += row.number(1);
    return costs;
}

constexpr const char* salesByDay =
    "SELECT RefNo, RefDate, TotalAmount, ContactNo, Remarks FROM tblSalesMaster ORDER BY RefDate, RefNo";

void addUp(sqlite3* engine, const char* query, Keys& keys, Figures& sums) {
    for (Statement row(engine, query); row.next();) sums[keys.add(row.text(0))] += row.number(1);
}

// What each contact owes: sold, less paid and granted.
Figures receivables(sqlite3* engine, Keys& contacts) {
    Figures balances, paid;
    addUp(engine, "SELECT ContactNo, TotalAmount FROM tblSalesMaster ORDER BY ContactNo", contacts, balances);
    addUp(engine,
          "SELECT CustomerNo, PaymentAmount + TotalDiscAmount FROM tblReceiptMaster ORDER BY CustomerNo",
          contacts, paid);
    for (size_t at = 0; at < contacts.size(); ++at) balances[at] -= std::abs(paid.of(at));
    return balances;
}

Figures payables(sqlite3* engine, Keys& contacts) {
    Keys vouchers;
    Figures paid, balances;
    addUp(
        engine,
        "SELECT VoucherID, PayAmount FROM tblDisbursementDetails WHERE DirectPayment = 0 ORDER BY VoucherID",
        vouchers, paid);
    addUp(engine, "SELECT ContactNo, PurchaseAmount FROM tblPurchaseMaster ORDER BY ContactNo", contacts,
          balances);
    for (Statement row(engine, "SELECT VoucherNo, ContactNo FROM tblDisbursementMaster"); row.next();)
        balances[contacts.add(row.text(1))] -= paid.of(vouchers.find(row.text(0)));
    return balances;
}
}  // namespace

Printed salesSummary(sqlite3* engine) {
    Printed printed;
    Keys sales, contacts = contactsByName(engine);
    const Figures discounts = discountsOfSales(engine, sales);
    Count total = 0;
    for (Statement row(engine, salesByDay); row.next();) {
        if (contacts.find(row.text(3)) == contacts.size()) continue;
        const Count net = row.number(2) - discounts.of(sales.find(row.text(0)));
        readTexts(row, 4, 4);
        printed.band({net});
        total += net;
    }
    printed.band({total});
    return printed;
}

Printed salesDetails(sqlite3* engine) {
    struct Sum {
        Count quantity = 0, gross = 0;
    };
    Printed printed;
    Keys sales, items, units;
    Keys known = keysOf(engine, "SELECT RefNo FROM tblSalesMaster");
    Keys described = keysOf(engine, "SELECT ItemCode, Description FROM tblItemMaster");
    const Figures percents = firstPercents(engine, sales);
    Figures discounts;
    std::vector<std::vector<Sum>> sums;  // by item and unit
    for (Statement line(
             engine,
             "SELECT Reference, ItemID, Unit, Served, Total, UnitPrice, Discount FROM tblSalesDetails");
         line.next();) {
        const size_t item = items.add(line.text(1)), unit = units.add(line.text(2));
        if (const Count percent = percents.of(sales.find(line.text(0))))
            discounts[item] += lineDiscount(percent, line.number(5), line.number(6), line.number(3));
        if (known.find(line.text(0)) == known.size()) continue;
        if (item >= sums.size()) sums.resize(item + 1);
        if (unit >= sums[item].size()) sums[item].resize(unit + 1);
        sums[item][unit].quantity += line.number(3);
        sums[item][unit].gross += line.number(4);
    }
    const std::vector<size_t> places = items.places();
    std::vector<size_t> order(items.size());
    for (size_t item = 0; item < items.size(); ++item) order[places[item]] = item;
    Count gross = 0, discounted = 0;
    for (const size_t item : order)
        for (const Sum& sum : sums[item]) {
            const Count discount = discounts.of(item);
            printed.band({sum.quantity, sum.gross, discount, sum.gross - discount});
            gross += sum.gross;
            discounted += discount;
        }
    printed.band({gross, discounted, gross - discounted});
    return printed;
}

Printed profitSummary(sqlite3* engine) {
    Printed printed;
    Keys sales, contacts = contactsByName(engine);
    const Figures discounts = discountsOfSales(engine, sales), costs = costsOfSales(engine, sales);
    Count gross = 0, allCosts = 0;
    for (Statement row(engine, salesByDay); row.next();) {
        if (contacts.find(row.text(3)) == contacts.size()) continue;
        const size_t sale = sales.find(row.text(0));
        const Count net = row.number(2) - discounts.of(sale), cost = costs.of(sale);
        readTexts(row, 4, 4);
        printed.band({net, cost, net - cost});
        gross += net;
        allCosts += cost;
    }
    printed.band({gross, allCosts, gross - allCosts});
    return printed;
}

Printed profitDetails(sqlite3* engine) {
    struct Line {
        size_t item, sale;
        Count served, price, discount, cost;
    };
    Printed printed;
    Keys sales, items;
    std::vector<Count> totals;
    for (Statement row(engine, salesByDay); row.next(); totals.push_back(row.number(2)))
        sales.add(row.text(0));
    const size_t known = sales.size();
    Figures granted;
    addUp(engine, "SELECT Reference, DiscountAmount FROM tblReceiptDetails WHERE DiscountAmount <> 0", sales,
          granted);
    // Its first row in the ledger gives the cost of an item of a sale.
    std::vector<std::vector<std::pair<size_t, Count>>> costs(known);
    for (Statement row(
             engine,
             "SELECT Reference, ItemCode, SalesCost FROM tblStockValuation WHERE BookID = 'S' ORDER BY "
             "ZevRef");
         row.next();)
        if (const size_t sale = sales.find(row.text(0)); sale < known)
            costs[sale].emplace_back(items.add(row.text(1)), row.number(2));
    std::vector<Line> lines;
    for (Statement row(engine, "SELECT Reference, ItemID, Served, UnitPrice, Discount FROM tblSalesDetails");
         row.next();) {
        const size_t item = items.add(row.text(1)), sale = sales.find(row.text(0));
        if (sale >= known) continue;
        const auto cost = std::ranges::find(costs[sale], item, &std::pair<size_t, Count>::first);
        lines.push_back({item, sale, row.number(2), row.number(3), row.number(4),
                         cost == costs[sale].end() ? 0 : cost->second});
    }
    const std::vector<size_t> places = items.places();
    std::ranges::sort(lines, {}, [&](const Line& line) { return std::pair(places[line.item], line.sale); });
    Count sums[3] = {}, all[3] = {};
    for (size_t at = 0; at < lines.size(); ++at) {
        const Line& line = lines[at];
        const Count percent = perUnit(product(granted.of(line.sale), 1000000), totals[line.sale]);
        const Count net = netOf(percent, netOf(line.discount, line.price));
        const Count cost = perUnit(line.cost, line.served);
        const Count gross = product(line.price, line.served), netTotal = product(net, line.served),
                    profit = product(net - cost, line.served);
        printed.band({line.served, line.price, line.discount, percent, net, gross, netTotal, cost, net - cost,
                      profit});
        sums[0] += gross, sums[1] += netTotal, sums[2] += profit;
        if (at + 1 < lines.size() && lines[at + 1].item == line.item) continue;
        printed.band(sums);
        for (int sum = 0; sum < 3; ++sum) all[sum] += std::exchange(sums[sum], 0);
    }
    printed.band(all);
    return printed;
}

Printed itemList(sqlite3* engine) {
    struct Item {
        std::tuple<size_t, bool, Count> last = {};  // day, sale, row
        bool hasRow = false;
        Count balance = 0;
        std::vector<std::tuple<size_t, Count, Count, Count>> layers = {};  // day, row, in, price
    };
    Printed printed;
    Keys items, days;
    std::vector<Item> stock;
    for (Statement row(
             engine,
             "SELECT ItemCode, TransDate, BookID, StockIn, InPrice, Balance, ZevRef FROM tblStockValuation "
             "ORDER BY ZevRef");
         row.next();) {
        const size_t at = items.add(row.text(0)), day = days.add(row.text(1));
        const bool isSale = row.text(2) != "P";
        if (at >= stock.size()) stock.resize(at + 1);
        Item& item = stock[at];
        if (!isSale) item.layers.emplace_back(day, row.number(6), row.number(3), row.number(4));
        // Days come in their order.
        if (const auto place = std::tuple(day, isSale, row.number(6)); !item.hasRow || place > item.last) {
            item.last = place;
            item.hasRow = true;
            item.balance = row.number(5);
        }
    }
    Count total = 0;
    for (Statement row(engine,
                       "SELECT ItemCode, Description, Unit, DateAquired, CostPrice, OrderLevel, Balance FROM "
                       "tblItemMaster ORDER BY DateAquired, ItemCode");
         row.next();) {
        Count value = 0;
        readTexts(row, 1, 3);
        if (const size_t at = items.find(row.text(0)); at < stock.size()) {
            Item& item = stock[at];
            std::ranges::sort(item.layers);
            Count left = item.balance;
            for (auto layer = item.layers.rbegin(); layer != item.layers.rend() && left > 0; ++layer) {
                const auto& [day, key, in, price] = *layer;
                const Count taken = std::min(left, in);
                value += product(taken, price);
                left -= taken;
            }
        }
        printed.band({row.number(4), row.number(5), row.number(6), value});
        total += value;
    }
    printed.band({total});
    return printed;
}

Printed contactList(sqlite3* engine) {
    Printed printed;
    Keys contacts;
    const Figures receivable = receivables(engine, contacts), payable = payables(engine, contacts);
    for (Statement row(engine,
                       "SELECT ContactID, ContactName, Address, TelNo, eMail, Terms, CreditLimit FROM "
                       "tblContactMaster ORDER BY ContactName");
         row.next();) {
        const size_t contact = contacts.find(row.text(0));
        readTexts(row, 1, 4);
        printed.band({row.number(6), receivable.of(contact), payable.of(contact)});
    }
    return printed;
}

Printed stockCard(sqlite3* engine, std::string_view item) {
    Printed printed;
    Keys sales;
    Figures charged, isKnown, isPaid;
    Statement lines(engine, "SELECT Reference, Total FROM tblSalesDetails WHERE ItemID = ?");
    for (lines.bind(1, item); lines.next();) {
        const size_t sale = sales.add(lines.text(0));
        if (std::exchange(isKnown[sale], 1) == 0) charged[sale] = lines.number(1);
    }
    Statement paid(
        engine,
        "SELECT Reference, Discount FROM tblReceiptDetails WHERE Reference IN (SELECT Reference FROM "
        "tblSalesDetails WHERE ItemID = ?) ORDER BY ZevRef");
    for (paid.bind(1, item); paid.next();) {
        const size_t sale = sales.find(paid.text(0));
        if (std::exchange(isPaid[sale], 1) == 0) charged[sale] = netOf(paid.number(1), charged[sale]);
    }
    Keys contacts = keysOf(engine, "SELECT ContactID, ContactName FROM tblContactMaster");
    Statement rows(
        engine,
        "SELECT Reference, BookID, StockIn, StockOut, Balance, InPrice, OutPrice, SalesCost, Contact, "
        "TransDate FROM tblStockValuation WHERE ItemCode = ? ORDER BY TransDate, BookID, ZevRef");
    Count totalCost = 0, totalSelling = 0, costOfGoods = 0, balance = 0;
    std::vector<std::pair<Count, Count>> layers;
    for (rows.bind(1, item); rows.next();) {
        const size_t sale = sales.find(rows.text(0));
        const Count in = rows.number(2), out = rows.number(3), price = rows.number(5);
        const bool isSale = rows.text(1) == "S";
        const Count selling = isSale && isKnown.of(sale) ? perUnit(charged.of(sale), out) : rows.number(6);
        const Count cost = product(in, price), sold = product(out, selling);
        contacts.find(rows.text(8));
        balance = rows.number(4);
        printed.band({in, out, balance, price, selling, cost, sold});
        totalCost += cost, totalSelling += sold, costOfGoods += rows.number(7);
        if (!isSale) layers.emplace_back(in, price);
    }
    Count value = 0, left = balance;
    for (auto layer = layers.rbegin(); layer != layers.rend() && left > 0; ++layer) {
        const Count taken = std::min(left, layer->first);
        value += product(taken, layer->second);
        left -= taken;
    }
    printed.band({totalCost, totalSelling, balance, value, costOfGoods});
    return printed;
}

namespace {
struct Payment {
    size_t next = 0;  // place + 1 of the one before it
    Count amount = 0;
};

struct Document {
    size_t contact, day;
    std::string number;
    size_t key;
    Count amount;
};

// By contact, day and number.
std::vector<Document> documentsOf(sqlite3* engine, const char* query, Keys& contacts, Keys& numbers) {
    std::vector<Document> documents;
    Keys days;
    const size_t known = contacts.size();
    for (Statement row(engine, query); row.next();) {
        const size_t contact = contacts.find(row.text(2));
        if (contact >= known) continue;
        readTexts(row, 3, 3);
        documents.push_back({contact, days.add(row.text(1)), std::string(row.text(0)),
                             numbers.add(row.text(0)), row.number(4)});
    }
    const std::vector<size_t> places = days.places();
    std::ranges::sort(documents, [&](const Document& a, const Document& b) {
        return std::tie(a.contact, places[a.day], a.number) < std::tie(b.contact, places[b.day], b.number);
    });
    return documents;
}

// The payments of documents, as chains from the last to the first.
struct Payments {
    std::vector<Payment> all;
    std::vector<size_t> last;  // by document; 0: none
    void add(size_t document, Count amount) {
        if (document >= last.size()) last.resize(std::max(document + 1, 2 * last.size()));
        all.push_back({last[document], amount});
        last[document] = all.size();
    }
    size_t first(size_t document) const { return document < last.size() ? last[document] : 0; }
};

Printed logBook(const std::vector<Document>& documents, const Payments& payments, const Figures& granted,
                const Figures& outstanding, const std::vector<size_t>& balanceOf) {
    Printed printed;
    Count net = 0, paid = 0;
    for (size_t at = 0; at < documents.size(); ++at) {
        const Document& document = documents[at];
        const Count amount = document.amount - granted.of(document.key);
        printed.band({amount});
        Count sum = 0;
        size_t payment = payments.first(document.key);
        if (payment == 0) printed.band({0});
        for (; payment != 0; payment = payments.all[payment - 1].next) {
            printed.band({payments.all[payment - 1].amount});
            sum += payments.all[payment - 1].amount;
        }
        printed.band({amount, sum, amount - sum});
        net += amount, paid += sum;
        if (at + 1 < documents.size() && documents[at + 1].contact == document.contact) continue;
        printed.band({net, paid, net - paid, outstanding.of(balanceOf[document.contact])});
        net = paid = 0;
    }
    return printed;
}

// The number that a contact has among the balances.
std::vector<size_t> placesIn(Keys& balances, sqlite3* engine) {
    std::vector<size_t> places;
    for (Statement row(engine, "SELECT ContactID FROM tblContactMaster ORDER BY ContactName, ContactID");
         row.next();)
        places.push_back(balances.find(row.text(0)));
    return places;
}
}  // namespace

Printed receivableLogBook(sqlite3* engine) {
    Keys contacts = contactsByName(engine), numbers, owing;
    const std::vector<Document> documents =
        documentsOf(engine, "SELECT RefNo, RefDate, ContactNo, Remarks, TotalAmount FROM tblSalesMaster",
                    contacts, numbers);
    Keys masters = keysOf(engine, "SELECT PayNo, PayRemarks FROM tblReceiptMaster");
    Payments payments;
    Figures granted;
    for (Statement row(
             engine,
             "SELECT Reference, Amount, DiscountAmount, CheckNo, PayCode FROM tblReceiptDetails ORDER BY "
             "ZevRef");
         row.next();) {
        const size_t document = numbers.find(row.text(0));
        if (document == numbers.size()) continue;
        payments.add(document, row.number(1));
        granted[document] += row.number(2);
        readTexts(row, 3, 3);
        masters.find(row.text(4));
    }
    const Figures outstanding = receivables(engine, owing);
    return logBook(documents, payments, granted, outstanding, placesIn(owing, engine));
}

Printed payableLogBook(sqlite3* engine) {
    Keys contacts = contactsByName(engine), numbers, owed;
    const std::vector<Document> documents = documentsOf(
        engine, "SELECT PurchaseNo, PurchaseDate, ContactNo, Remarks, PurchaseAmount FROM tblPurchaseMaster",
        contacts, numbers);
    Keys vouchers = keysOf(engine, "SELECT VoucherNo, VoucherDate FROM tblDisbursementMaster");
    Payments payments;
    for (Statement row(
             engine,
             "SELECT PuchaseID, PayAmount, Particulars, VoucherID FROM tblDisbursementDetails WHERE "
             "DirectPayment = 0");
         row.next();) {
        const size_t document = numbers.find(row.text(0));
        if (document == numbers.size()) continue;
        payments.add(document, row.number(1));
        readTexts(row, 2, 2);
        vouchers.find(row.text(3));
    }
    const Figures outstanding = payables(engine, owed);
    return logBook(documents, payments, {}, outstanding, placesIn(owed, engine));
}

namespace {
Printed openDocuments(sqlite3* engine, const char* query) {
    Printed printed;
    Keys contacts = keysOf(engine, "SELECT ContactID, ContactName FROM tblContactMaster");
    Count total = 0;
    for (Statement row(engine, query); row.next();) {
        if (contacts.find(row.text(2)) == contacts.size()) continue;
        printed.band({row.number(3)});
        total += row.number(3);
    }
    printed.band({total});
    return printed;
}

// One line for contacts of one name, terms, telephone number and limit.
Printed openContacts(sqlite3* engine, const char* query) {
    struct Line {
        std::string name;
        Count limit, sum = 0;
        bool isOpen = false;
    };
    Printed printed;
    Keys contacts, alike;
    std::vector<size_t> lineOf;
    std::vector<Line> lines;
    for (Statement row(engine,
                       "SELECT ContactID, ContactName, TelNo, Terms, CreditLimit FROM tblContactMaster");
         row.next();) {
        contacts.add(row.text(0));
        std::string all;
        for (int column = 1; column <= 4; ++column) all.append(row.text(column)) += '\n';
        lineOf.push_back(alike.add(all));
        if (lineOf.back() == lines.size()) lines.push_back({std::string(row.text(1)), row.number(4)});
    }
    for (Statement row(engine, query); row.next();)
        if (const size_t contact = contacts.find(row.text(0)); contact < lineOf.size()) {
            lines[lineOf[contact]].sum += row.number(1);
            lines[lineOf[contact]].isOpen = true;
        }
    std::ranges::sort(lines, {}, &Line::name);
    Count total = 0;
    for (const Line& line : lines) {
        if (!line.isOpen) continue;
        printed.band({line.limit, line.sum});
        total += line.sum;
    }
    printed.band({total});
    return printed;
}
}  // namespace

Printed receivableDocuments(sqlite3* engine) {
    return openDocuments(
        engine,
        "SELECT RefNo, RefDate, ContactNo, Balance FROM tblSalesMaster WHERE Balance <> 0 ORDER BY "
        "RefDate, RefNo");
}

Printed payableDocuments(sqlite3* engine) {
    return openDocuments(
        engine,
        "SELECT PurchaseNo, PurchaseDate, ContactNo, Balance FROM tblPurchaseMaster WHERE Balance <> "
        "0 ORDER BY PurchaseDate, PurchaseNo");
}

Printed receivableContacts(sqlite3* engine) {
    return openContacts(engine, "SELECT ContactNo, Balance FROM tblSalesMaster WHERE Balance <> 0");
}

Printed payableContacts(sqlite3* engine) {
    return openContacts(engine, "SELECT ContactNo, Balance FROM tblPurchaseMaster WHERE Balance <> 0");
}

Printed salesQuota(sqlite3* engine) {
    struct Line {
        size_t contact, item;
        Count quantity, sales;
    };
    Printed printed;
    Keys contacts, names, sales, items;
    std::vector<size_t> nameOf, nameOfSale;
    for (Statement row(engine, "SELECT ContactID, ContactName FROM tblContactMaster ORDER BY ContactName");
         row.next();) {
        contacts.add(row.text(0));
        nameOf.push_back(names.add(row.text(1)));
    }
    for (Statement row(engine, "SELECT RefNo, ContactNo FROM tblSalesMaster"); row.next();) {
        const size_t contact = contacts.find(row.text(1));
        if (contact == contacts.size()) continue;
        sales.add(row.text(0));
        nameOfSale.push_back(nameOf[contact]);
    }
    for (Statement row(engine, "SELECT ItemCode, Description, Unit FROM tblItemMaster"); row.next();)
        items.add(row.text(0));
    std::vector<Line> lines;
    for (Statement row(engine, "SELECT Reference, ItemID, Served, Total FROM tblSalesDetails"); row.next();)
        if (const size_t sale = sales.find(row.text(0)); sale < nameOfSale.size())
            lines.push_back({nameOfSale[sale], items.add(row.text(1)), row.number(2), row.number(3)});
    const std::vector<size_t> places = items.places();
    std::ranges::sort(lines, {},
                      [&](const Line& line) { return std::pair(line.contact, places[line.item]); });
    for (size_t at = 0; at < lines.size();) {
        Line sum = lines[at];
        while (++at < lines.size() && lines[at].contact == sum.contact && lines[at].item == sum.item) {
            sum.quantity += lines[at].quantity;
            sum.sales += lines[at].sales;
        }
        printed.band({sum.quantity, sum.sales});
    }
    return printed;
}
}  // namespace bare
