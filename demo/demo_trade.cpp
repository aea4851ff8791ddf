#include "demo/demo_trade.h"

#include "platform/parsing.h"

#include <QFile>

// The tables lie in a static library, whose resources must be asked for.
static void needTables() { Q_INIT_RESOURCE(firm); }

namespace {
QList<QStringList> table(const QString& path) {
    needTables();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("the demo firm's table %s is missing", qPrintable(path));
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#')) rows += line.split('|');
    return rows;
}

DemoContact contactOf(const QStringList& row) {
    const QString& kind = row[7];
    return {row[0], row[1], row[2], row[3], row[4], row[5], row[6], row[8], kind != "S", kind != "C"};
}

DemoItem itemOf(const QStringList& row) {
    return {row[0],
            row[1],
            row[2],
            row[3],
            numberOrZero(row[4]),
            numberOrZero(row[5]),
            numberOrZero(row[6]),
            row[7].toInt(),
            row[8].toInt()};
}
}  // namespace

QList<DemoContact> demoContacts() {
    QList<DemoContact> contacts;
    for (const QStringList& row : table(":/demo/firm/contacts.txt")) contacts += contactOf(row);
    return contacts;
}

QList<DemoItem> demoItems() {
    QList<DemoItem> items;
    for (const QStringList& row : table(":/demo/firm/items.txt")) items += itemOf(row);
    return items;
}

DemoTrade::DemoTrade(QList<DemoContact> contacts, QList<DemoItem> items, const QDate& lastDay)
    : contacts_(std::move(contacts)), items_(std::move(items)), stock_(items_.size(), 0), lastDay_(lastDay) {
    firstDay_ = day_ = lastDay_.addDays(-364);
    for (const DemoContact& contact : contacts_) {
        if (contact.isSupplier && !itemsOf(contact.name).isEmpty()) suppliers_ += contact.name;
        if (contact.isCustomer) customers_ += contact;
    }
}

QList<int> DemoTrade::itemsOf(const QString& supplier) const {
    QList<int> found;
    for (int item = 0; item < items_.size(); ++item)
        if (items_[item].supplier == supplier) found += item;
    return found;
}

// Prices rise by about three in a thousand each month, to the next 25 centavos.
Currency DemoTrade::priceOn(Currency base) const {
    constexpr qint64 quarter = 2500;
    const qint64 months = firstDay_.daysTo(day_) / 30;
    const qint64 risen = base.tenThousandths() * (1000 + 3 * months) / 1000;
    return Currency::fromTenThousandths(months == 0 ? risen : (risen + quarter - 1) / quarter * quarter);
}

void DemoTrade::purchase(const QString& supplier, const QList<int>& items) {
    DemoDocument document{false, day_, supplier, false, {}};
    for (const int item : items) {
        const int quantity = std::max(2, items_[item].reorderLevel * (2 + dice_.below(3)) / 4);
        const int delivered = dice_.below(25) == 0 ? quantity / 2 : quantity;
        document.lines += DemoLine{item, quantity, delivered, priceOn(items_[item].cost)};
        stock_[item] += delivered;
    }
    documents_ += document;
}

void DemoTrade::stockUp() {
    for (const QString& supplier : suppliers_) purchase(supplier, itemsOf(supplier));
}

// How far an item is under its order level, in percent of it; negative above it.
int DemoTrade::shortness(int item) const {
    return 100 - 100 * stock_[item] / std::max(1, items_[item].reorderLevel);
}

bool DemoTrade::runsShort(int item) const { return stock_[item] < items_[item].reorderLevel; }

void DemoTrade::purchaseShortItems() {
    QList<int> order(items_.size());
    for (int item = 0; item < order.size(); ++item) order[item] = item;
    std::stable_sort(order.begin(), order.end(),
                     [this](int a, int b) { return shortness(a) > shortness(b); });
    const QString supplier = items_[order.first()].supplier;
    QList<int> wanted;
    for (const int item : order)
        if (items_[item].supplier == supplier && (wanted.isEmpty() || runsShort(item))) wanted += item;
    purchase(supplier, wanted);
}

int DemoTrade::quantityToSell(int item) {
    const int usual = items_[item].usualSale;
    return std::min(stock_[item], std::max(1, usual * (30 + dice_.below(140)) / 100));
}

void DemoTrade::sell() {
    const DemoContact customer = customers_[dice_.below(static_cast<int>(customers_.size()))];
    DemoDocument document{true, day_, customer.name, customer.buysWholesale(), {}};
    const int lines = 1 + dice_.below(6);
    QList<int> taken;
    for (int tries = 0; document.lines.size() < lines && tries < 60; ++tries) {
        const int item = dice_.below(static_cast<int>(items_.size()));
        const int quantity = quantityToSell(item);
        if (quantity < 1 || taken.contains(item)) continue;
        const int served = dice_.below(40) == 0 ? quantity / 2 : quantity;
        const DemoItem& goods = items_[item];
        document.lines +=
            DemoLine{item, quantity, served, priceOn(document.wholesale ? goods.wholesale : goods.selling)};
        stock_[item] -= served;
        taken += item;
    }
    if (document.lines.isEmpty()) qFatal("the demo firm has nothing left to sell");
    documents_ += document;
}

QList<DemoDocument> DemoTrade::documents() {
    stockUp();
    const int opening = static_cast<int>(suppliers_.size());
    const qint64 days = firstDay_.daysTo(lastDay_);
    int purchases = opening, sales = 0;
    for (qint64 number = 0; number <= days; ++number) {
        day_ = firstDay_.addDays(number);
        // The day of rest is counted back from the last day, so that the trade is the same whatever weekday
        // that is.
        if ((days - number) % 7 == 3) continue;
        while (purchases - opening < (purchaseCount - opening) * number / days)
            purchaseShortItems(), ++purchases;
        while (sales < saleCount * number / days) sell(), ++sales;
    }
    return documents_;
}
