#include "bench/station.h"
#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "sales/frmSalesGrid.h"
#include "sales/receipt_document.h"
#include "sales/sales_document.h"

namespace {
OrderLine lineOfItem(Station& station, int mostPieces) {
    const QString code = station.any(station.items);
    const Recordset item = station.store.execute(
        {"SELECT Description, Unit, SellingPrice FROM tblItemMaster WHERE ItemCode = ?", {code}});
    const Currency pieces = Currency::fromInteger(1 + station.dice.bounded(mostPieces));
    return makeOrderLine(code, item.text("Description"), item.text("Unit"), pieces, pieces,
                         item.currency("SellingPrice"), Currency());
}

// A number that another station took first is no fault of this one: a clerk saves again under the next.
constexpr int tries = 20;

// Where the same number is offered again, the counter stands before it: a clerk types one that is free then.
void takeFreeNumber(Connection& store, const OrderBook& book, OrderDocument& document) {
    qint64 highest = 0;
    for (Recordset row = store.execute(QString("SELECT %1 FROM %2").arg(book.master.key, book.master.table));
         !row.eof(); row.moveNext())
        highest = std::max(highest, row.textAt(0).section(u'-', 1, 1).toLongLong());
    document.serial = QString::number(highest + 1);
    document.code = numbering::documentNumber(document.code.section(u'-', 0, 0), document.serial,
                                              document.code.section(u'-', 2, 2));
}
}  // namespace

bool isSaved(const Outcome& outcome) {
    const Fault* const fault = std::get_if<Fault>(&outcome);
    if (fault && fault->box.text.contains("Please look whether it is there"))
        throw StoreError(StoreError::general, fault->box.text);
    return isDone(outcome);
}

QString Station::saved(const OrderBook& book, const QString& contact, int mostPieces) {
    QList<OrderLine> lines;
    for (int count = 1 + dice.bounded(5); count > 0; --count) lines += lineOfItem(*this, mostPieces);
    QString offered;
    for (int left = tries; left > 0; --left) {
        OrderDocument document = newOrder(store, book);
        if (document.code == std::exchange(offered, document.code)) takeFreeNumber(store, book, document);
        document.contactName = contact;
        document.lines = lines;
        if (isSaved(saveOrder(store, book, document))) return document.code;
    }
    return {};
}

QString sell(Station& station) {
    const QString code = station.saved(salesOrders, station.any(station.customers), 3);
    if (code.isEmpty()) return {};
    station.sales += code;
    return "new sale " + code;
}

QString collect(Station& station) {
    const QString code = station.any(station.sales);
    if (code.isEmpty()) return {};
    const QString customer = contactNameOf(
        station.store, station.store.execute({"SELECT ContactNo FROM tblSalesMaster WHERE RefNo = ?", {code}})
                           .text("ContactNo"));
    PaymentEntry entry{.orderNo = code, .discount = "0"};
    CheckCode(station.store, customer, entry);
    const Currency owed = numberOrZero(entry.balance) - numberOrZero(entry.totalDiscount);
    if (owed <= Currency()) return {};
    entry.payment =
        formatNumber(divide(owed, Currency::fromInteger(1 + station.dice.bounded(2))), mask::amount);
    ReceiptDocument receipt = newReceipt(station.store);
    receipt.contactName = customer;
    receipt.lines = {lineOf(station.store, entry)};
    return isSaved(saveReceipt(station.store, receipt)) ? "new receipt " + receipt.code : QString();
}

QString changeSale(Station& station) {
    const QString code = station.any(station.sales);
    if (code.isEmpty()) return {};
    OrderDocument document = loadOrder(station.store, salesOrders, code).document;
    document.lines = loadOrderLines(station.store, salesOrders, code);
    document.lines += lineOfItem(station, 1);
    return isSaved(saveOrder(station.store, salesOrders, document)) ? "again sale " + code : QString();
}

// An older one: a number that goes while another clerk has it before him as the next is free again, and takes
// the counter back with it, as a number does that is typed.
QString deleteSale(Station& station) {
    const QString code = station.sales.value(0);
    if (station.sales.size() < 10) return {};
    station.tell("trying sale " + code);
    if (!isDone(deleteDocument(station.store, salesJournal().deletion, code))) {
        station.tell("kept sale " + code);
        return {};
    }
    station.sales.removeAll(code);
    return "gone sale " + code;
}
