#pragma once
#include "documents/line_check.h"
#include "documents/order_book.h"

#include <QList>
#include <QStringList>
#include <functional>

// One line of an order. The total is the amount as it is shown and printed, in two decimals.
struct OrderLine {
    QString itemCode;
    QString description;
    QString unit;
    Currency ordered;
    Currency served;  // delivered, on a purchase
    Currency unitPrice;
    Currency discount;  // in percent
    Currency netPrice;
    Currency total;
    std::optional<Currency> tested = {};  // the stock that it was tested against; none: it was not

    // The columns of the list, in order.
    enum Column { Code, Description, Ordered, Served, Unit, UnitPrice, Discount, NetPrice, Total };
    // As the list shows it: quantities in plain digits, prices and the discount with four decimals.
    QStringList texts() const;
    // Not tested. Throws StoreError for a figure that is none.
    static OrderLine fromTexts(const QStringList& texts);
    bool operator==(const OrderLine&) const = default;
};

// An amount as it is shown: in two decimals, halves away from zero.
Currency asShown(Currency amount);

// A line of these figures, with its net price and total as the dialog makes them. Nothing is checked.
OrderLine makeOrderLine(const QString& itemCode, const QString& description, const QString& unit,
                        Currency ordered, Currency served, Currency unitPrice, Currency discount);

// The sum of the totals. Throws OverflowError.
Currency orderTotal(const QList<OrderLine>& lines);

// What the line dialog holds, as typed.
struct LineEntry {
    bool addMode = true;  // a line being added; else one being changed
    QString itemCode;
    QString description;
    QString unit;
    QString cost = "0.0000";
    QString discount = "0.0000";
    QString netPrice = "0.0000";
    QString order = "0";
    QString serve = "0";
    QString total = "0.00";
    QString inventory = "0";
    std::optional<Currency> tested = {};  // the stock that the checks have found
};
LineEntry entryOf(const OrderLine& line);
OrderLine lineOf(const LineEntry& entry);

// The order that a line belongs to, as its screen shows it.
struct LineOrder {
    QString code;
    QString date;
    QString contactName;
    bool wholesale = false;
};

// Looks the code up and fills the entry; false, with nothing filled, when there is no such item. A line being
// added gets the item's price and the contact's discount; a line being changed loses its discount.
bool CheckCode(Connection& store, const OrderBook& book, const LineOrder& order, LineEntry& entry);

// The stock of an item, as the dialog shows it; "0" of one that is not there.
QString inventoryOf(Connection& store, const QString& itemCode);

// With no discount the net price is the cost's text as it stands.
void computeNetPrice(LineEntry& entry);
// Net price x served. A quantity that is no number is a fault of its field.
std::optional<Fault> computeLineTotal(LineEntry& entry);
// What leaving the discount and the cost does to them.
std::optional<Fault> leaveDiscount(LineEntry& entry);
void leaveCost(LineEntry& entry);

// The checks of a line, in their order. Done: the entry may become a line of the list. The answers are those
// to the questions asked before; a question's key is "price". An item that stands in the list already closes
// the popup.
using IsEntered = std::function<bool(const QString& itemCode)>;
LineCheck checkLine(Connection& store, const OrderBook& book, const LineOrder& order, LineEntry& entry,
                    const IsEntered& isEntered, const Answers& answers = {});

// What another clerk, or another date, may have overtaken since: a line whose stock is less than it was
// tested against, and less than it serves.
std::optional<Fault> overtakenLine(Connection& store, const LineOrder& order, const OrderLine& line);
// What it asks of the store for these lines, to be read ahead.
std::vector<Sql> overtakenReads(const LineOrder& order, const QList<OrderLine>& lines);

// The quick change of one quantity: the value as typed goes into the line's served quantity and total. A
// question's key is "quantity".
Outcome changeServed(Connection& store, const OrderBook& book, const LineOrder& order, OrderLine& line,
                     QString& value, const Answers& answers = {});
