#include "documents/order_line.h"

#include "books/balances.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"

namespace {
QString asPrice(Currency value) { return formatNumber(value, mask::price); }
QString asAmount(Currency value) { return formatNumber(value, mask::amount); }
QString asPercent(Currency value) { return formatNumber(value, mask::percent); }
bool isZero(const QString& text) { return numberOrZero(text).isZero(); }

Currency figure(const QString& text) {
    if (const auto value = parseNumber(text)) return *value;
    throw StoreError(StoreError::typeMismatch, "Type mismatch");
}

// The product as a text; empty, and so no number, when it leaves the range.
QString productText(const QString& price, const QString& quantity) {
    try {
        return asAmount(MultiplyAmounts(numberOrZero(price), numberOrZero(quantity)));
    } catch (const OverflowError&) {
        return {};
    }
}

Recordset itemRow(Connection& store, const QString& code) {
    return store.execute({"SELECT * FROM tblItemMaster WHERE ItemCode = ?", {trimRight(code)}});
}

Currency contactDiscount(Connection& store, const QString& name) {
    const Recordset row =
        store.execute({"SELECT Discount FROM tblContactMaster WHERE ContactName = ?", {trimRight(name)}});
    return row.eof() ? Currency() : row.currency("Discount");
}

// On hand for this order: as of its date, and with what it already served itself. A text that is no date
// covers no documents.
Currency availableStock(Connection& store, const LineOrder& order, const QString& code) {
    const auto date = parseDate(order.date);
    return date ? StockForOrder(store, code, *date, order.code) : ServedOnOrder(store, code, order.code);
}

// Steps of checkLine

std::optional<Fault> typedFault(const LineEntry& entry) {
    if (entry.description.isEmpty() || entry.itemCode.isEmpty())
        return Fault{information("Enter a Product!", "Please Enter a Product..."), "cboItemCode"};
    if (!isNumeric(entry.order) || !isNumeric(entry.serve) || !isNumeric(entry.total))
        return Fault{exclamation("Error...!", "Invalid Numeric Format!"), {}};
    if (isZero(entry.cost)) return errorFault("Please Enter Product Price!", "txtCost");
    if (isZero(entry.order)) return errorFault("Please Enter Your Order Quantity!", "txtOrder");
    return std::nullopt;
}

// Price against the other side's price, after the discount; equal prices pass.
std::optional<Question> priceQuestion(const OrderBook& book, const Recordset& item, const LineEntry& entry) {
    const Currency net = numberOrZero(entry.netPrice);
    const auto asked = [](const char* text) {
        return Question{"price", question("Low Selling Price!", text)};
    };
    if (book.sells && net < item.currency("CostPrice"))
        return asked(
            "Selling Price is Less than the Cost Price of this Product! Do you still want to Continue?");
    if (!book.sells && net > item.currency("SellingPrice"))
        return asked(
            "Cost Price is Greater than the Selling Price of this Product! Do you still want to Continue?");
    return std::nullopt;
}

Fault purchaseFirst(const QString& focus) {
    return errorFault(
        "Purchase This Item First! Inventory Balance For This Sales Period is Less Than your Served "
        "Item!",
        focus);
}

std::optional<Fault> stockFault(Connection& store, const LineOrder& order, LineEntry& entry) {
    const Currency available = availableStock(store, order, entry.itemCode);
    entry.inventory = available.toPlainText();
    entry.tested = available;
    if (available >= numberOrZero(entry.serve)) return std::nullopt;
    return purchaseFirst("txtServe");
}

// A question not answered yet is asked; No stops without a word, at the field.
std::optional<Outcome> settle(const Question& asked, const Answers& answers, const QString& focus) {
    if (!answers.contains(asked.key)) return asked;
    if (answers.value(asked.key) == BoxAnswer::Yes) return std::nullopt;
    return Fault{{}, focus};
}

Outcome againstStore(Connection& store, const OrderBook& book, const LineOrder& order, const Recordset& item,
                     LineEntry& entry, const Answers& answers) {
    if (auto asked = priceQuestion(book, item, entry))
        if (auto stop = settle(*asked, answers, "txtCost")) return *stop;
    if (!book.sells) return Done{};
    if (auto fault = stockFault(store, order, entry)) return *fault;
    return Done{};
}

// Steps of changeServed

std::optional<Fault> stockFaultOfValue(Connection& store, const LineOrder& order, OrderLine& line,
                                       Currency value) {
    const Currency available = availableStock(store, order, line.itemCode);
    line.tested = available;
    if (available >= value) return std::nullopt;
    return errorFault("Inventory Balance For This Sales Period is Only " + available.toPlainText() +
                          " Less Than your Served Item!",
                      "txtValue");
}

std::optional<Question> overServedQuestion(const OrderBook& book, const OrderLine& line, Currency value) {
    if (line.ordered >= value) return std::nullopt;
    const char* text = book.sells
                           ? "Item Served is Greater Than Ordered By the Customer! Do You Wish to Continue?"
                           : "Item Delivered is Greater Than Your Order! Do You Wish to Continue?";
    return Question{"quantity", question("Error!", text)};
}
}  // namespace

QStringList OrderLine::texts() const {
    return {itemCode,           description,       ordered.toPlainText(), served.toPlainText(), unit,
            asPrice(unitPrice), asPrice(discount), asPrice(netPrice),     asAmount(total)};
}

OrderLine OrderLine::fromTexts(const QStringList& texts) {
    const auto number = [&](Column column) { return figure(texts.value(column)); };
    return {.itemCode = texts.value(Code),
            .description = texts.value(Description),
            .unit = texts.value(Unit),
            .ordered = number(Ordered),
            .served = number(Served),
            .unitPrice = number(UnitPrice),
            .discount = number(Discount),
            .netPrice = number(NetPrice),
            .total = number(Total)};
}

Currency asShown(Currency amount) { return figure(asAmount(amount)); }

OrderLine makeOrderLine(const QString& itemCode, const QString& description, const QString& unit,
                        Currency ordered, Currency served, Currency unitPrice, Currency discount) {
    LineEntry entry;
    entry.itemCode = itemCode;
    entry.description = description;
    entry.unit = unit;
    entry.order = ordered.toPlainText();
    entry.serve = served.toPlainText();
    entry.cost = asPrice(unitPrice);
    entry.discount = asPercent(discount);
    computeNetPrice(entry);
    computeLineTotal(entry);
    return lineOf(entry);
}

Currency orderTotal(const QList<OrderLine>& lines) {
    Currency sum;
    for (const OrderLine& line : lines) sum += line.total;
    return sum;
}

LineEntry entryOf(const OrderLine& line) {
    LineEntry entry;
    entry.addMode = false;
    entry.itemCode = line.itemCode;
    entry.description = line.description;
    entry.unit = line.unit;
    entry.cost = asPrice(line.unitPrice);
    entry.discount = asPercent(line.discount);
    entry.netPrice = asPrice(line.netPrice);
    entry.order = line.ordered.toPlainText();
    entry.serve = line.served.toPlainText();
    entry.total = asAmount(line.total);
    return entry;
}

OrderLine lineOf(const LineEntry& entry) {
    return {.itemCode = trim(entry.itemCode),
            .description = trim(entry.description),
            .unit = trim(entry.unit),
            .ordered = numberOrZero(entry.order),
            .served = numberOrZero(entry.serve),
            .unitPrice = numberOrZero(entry.cost),
            .discount = numberOrZero(entry.discount),
            .netPrice = numberOrZero(entry.netPrice),
            .total = numberOrZero(entry.total),
            .tested = entry.tested};
}

bool CheckCode(Connection& store, const OrderBook& book, const LineOrder& order, LineEntry& entry) {
    if (entry.itemCode.isEmpty()) {
        entry.description.clear();
        return false;
    }
    const Recordset item = itemRow(store, entry.itemCode);
    if (item.eof()) return false;
    entry.itemCode = item.trimmed("ItemCode");
    entry.description = item.trimmed("Description");
    entry.inventory = item.currency("Balance").toPlainText();
    Currency discount;
    if (entry.addMode) {
        entry.cost = asPrice(item.currency(priceColumn(book.priceKind(order.wholesale))));
        discount = contactDiscount(store, order.contactName);
    }
    entry.discount = asPercent(discount);
    entry.unit = item.trimmed("Unit");
    computeNetPrice(entry);
    return true;
}

QString inventoryOf(Connection& store, const QString& itemCode) {
    const Recordset item = itemRow(store, itemCode);
    return item.eof() ? QString("0") : item.currency("Balance").toPlainText();
}

void computeNetPrice(LineEntry& entry) {
    const Currency discount = numberOrZero(entry.discount);
    if (discount.isZero()) {
        entry.discount = asPercent(discount);
        entry.netPrice = entry.cost;
        return;
    }
    const Currency cost = numberOrZero(entry.cost);
    entry.netPrice = asPrice(cost - PercentOf(discount, cost));
}

std::optional<Fault> computeLineTotal(LineEntry& entry) {
    if (entry.serve.isEmpty()) entry.serve = "0.00";
    const auto notNumeric = [](const char* text, const char* field) {
        return Fault{exclamation("Please enter value!", text), field};
    };
    if (!isNumeric(entry.order)) return notNumeric("Please Enter Numeric for Order Ouantity!", "txtOrder");
    if (!isNumeric(entry.serve)) return notNumeric("Please Enter Numeric for Served Ouantity!", "txtServe");
    entry.total = productText(entry.netPrice, entry.serve);
    return std::nullopt;
}

std::optional<Fault> leaveDiscount(LineEntry& entry) {
    const Currency discount = numberOrZero(entry.discount);
    if (discount >= Currency::fromInteger(100))
        return errorFault("Discount Percentage should not be Equal or Greater than 100%", "txtDiscount");
    entry.discount = asPercent(discount);
    computeNetPrice(entry);
    return std::nullopt;
}

void leaveCost(LineEntry& entry) {
    if (isNumeric(entry.cost)) entry.cost = asPrice(numberOrZero(entry.cost));
    computeNetPrice(entry);
}

LineCheck checkLine(Connection& store, const OrderBook& book, const LineOrder& order, LineEntry& entry,
                    const IsEntered& isEntered, const Answers& answers) {
    if (auto fault = leaveDiscount(entry)) return {*fault};
    if (auto fault = computeLineTotal(entry)) return {*fault};
    if (entry.unit.isEmpty()) entry.unit = "-";
    if (auto fault = typedFault(entry)) return {*fault};
    const Recordset item = itemRow(store, entry.itemCode);
    if (item.eof())
        return {errorFault("Item Does Not Exist! Please Create Item in the Database", "cboItemCode")};
    if (isEntered(entry.itemCode))
        return {errorFault(entry.description +
                           " Had Already Been Entered Below! You May Click on Edit Button to Modify Record!"),
                true};
    return {againstStore(store, book, order, item, entry, answers)};
}

std::optional<Fault> overtakenLine(Connection& store, const LineOrder& order, const OrderLine& line) {
    if (!line.tested) return std::nullopt;
    const Currency available = availableStock(store, order, line.itemCode);
    if (available >= std::min(*line.tested, line.served)) return std::nullopt;
    return purchaseFirst("lvwItems");
}

std::vector<Sql> overtakenReads(const LineOrder& order, const QList<OrderLine>& lines) {
    std::vector<Sql> reads;
    const auto date = parseDate(order.date);
    for (const OrderLine& line : lines)
        if (date && line.tested) reads.push_back(StockForOrderSums(line.itemCode, *date, order.code));
    return reads;
}

Outcome changeServed(Connection& store, const OrderBook& book, const LineOrder& order, OrderLine& line,
                     QString& value, const Answers& answers) {
    const auto typed = parseNumber(value);
    if (!typed) return errorFault("Please Enter Numeric Price Value!", "txtValue");
    value = typed->toPlainText();
    if (book.sells)
        if (auto fault = stockFaultOfValue(store, order, line, *typed)) return *fault;
    if (auto asked = overServedQuestion(book, line, *typed))
        if (auto stop = settle(*asked, answers, "txtValue")) return *stop;
    line.served = *typed;
    line.total = asShown(MultiplyAmounts(*typed, line.netPrice));
    return Done{};
}
