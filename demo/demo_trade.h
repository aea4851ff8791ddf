#pragma once
#include "demo/demo_dice.h"
#include "platform/currency.h"

#include <QDate>
#include <QList>
#include <QString>

// The demo firm's goods and contacts, as its tables tell them.
struct DemoContact {
    QString name, address, telephone, email, terms, creditLimit, discount, remarks;
    bool isCustomer = false;
    bool isSupplier = false;
    bool buysWholesale() const { return remarks.contains("wholesale"); }
};

struct DemoItem {
    QString description, unit, locator, supplier;
    Currency cost, wholesale, selling;
    int reorderLevel = 0;
    int usualSale = 0;
};

QList<DemoContact> demoContacts();
QList<DemoItem> demoItems();

// One line of a document of the demo firm: which item (by its place in demoItems), how much, at what price.
struct DemoLine {
    int item;
    int ordered;
    int moved;  // served, or delivered
    Currency price;
};

struct DemoDocument {
    bool isSale;
    QDate date;
    QString contact;
    bool wholesale = false;
    QList<DemoLine> lines;
};

// Twelve months of trade that end on the given day: the same documents each time but for their dates. No
// document takes more than the stock of its day.
class DemoTrade {
  public:
    static constexpr int purchaseCount = 400;
    static constexpr int saleCount = 1500;
    DemoTrade(QList<DemoContact> contacts, QList<DemoItem> items, const QDate& lastDay);
    QList<DemoDocument> documents();

  private:
    void stockUp();
    void purchase(const QString& supplier, const QList<int>& items);
    void purchaseShortItems();
    void sell();
    int quantityToSell(int item);
    Currency priceOn(Currency base) const;
    int shortness(int item) const;
    bool runsShort(int item) const;
    QList<int> itemsOf(const QString& supplier) const;

    QList<DemoContact> contacts_;
    QList<DemoItem> items_;
    QList<int> stock_;
    QList<QString> suppliers_;
    QList<DemoContact> customers_;
    QList<DemoDocument> documents_;
    QDate firstDay_, day_, lastDay_;
    DemoDice dice_{0x5DEECE66DULL};
};
