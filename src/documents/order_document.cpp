#include "documents/order_document.h"

#include "books/balances.h"
#include "books/posting_queue.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/store/read_ahead.h"
#include "platform/store/transaction.h"

namespace {
QString asAmount(Currency value) { return formatNumber(value, mask::amount); }
QString yearOf(const QDate& day) { return formatDate(day, "yyyy"); }

// Checks

std::optional<Fault> numberFault(Connection& store, const OrderBook& book, const OrderDocument& document) {
    const QString code = trim(document.code);
    if (code.isEmpty()) return Fault{exclamation("No Code!", book.noCode), "txtCode"};
    if (document.addMode && RecordFound(store, book.master.table, book.master.key, code))
        return errorFault(book.duplicate, "txtSerialCode");
    return serialFault(document);
}

std::optional<Fault> totalFault(const OrderDocument& document) {
    if (orderTotal(document.lines).isNegative())
        return Fault{exclamation("Net Amount!", "Amount is Negative! System Cannot Allow Negative Total!"),
                     "lvwItems"};
    if (document.lines.isEmpty())
        return Fault{
            exclamation("Net Amount!", "There is No Order Made for this Record! Please Add Item to Order!"),
            "cmdAdd"};
    return std::nullopt;
}

// Saving

// One save: the order, and what all its steps share.
class OrderSave {
  public:
    OrderSave(Connection& store, const OrderBook& book, const OrderDocument& document, Progress& progress)
        : store_(store),
          book_(book),
          document_(document),
          progress_(progress),
          code_(trim(document.code)),
          date_(parseDate(document.date).value_or(QDate())) {}

    Outcome run() {
        try {
            Transaction unit(store_);
            const ReadAhead ahead(store_, reads());
            if (auto fault = overtakenDocument(store_, document_)) return *fault;
            if (auto fault = overtaken()) return *fault;
            writeMaster();
            duplicateText_ = {};
            writeDetails();
            book_.updateBalance(store_, code_, boxes_);
            unit.commit();
            return Done{boxes_};
        } catch (const StoreError& failure) {
            return Fault{failureBox(failure), {}};
        }
    }

  private:
    Box failureBox(const StoreError& failure) const {
        if (duplicateText_.isEmpty()) return exclamation("Error...", failure.text());
        return saveErrorBox(failure, duplicateText_);
    }

    std::vector<Sql> reads() const {
        std::vector<Sql> reads = overtakenReads(lineOrder(document_), document_.lines);
        reads.push_back(contactIdQuery(document_.contactName));
        return reads;
    }

    // With the write lock held, before the order's own lines go: nobody overtakes what is tested here.
    std::optional<Fault> overtaken() {
        for (const OrderLine& line : document_.lines)
            if (auto fault = overtakenLine(store_, lineOrder(document_), line)) return fault;
        return std::nullopt;
    }

    Recordset masterRow() {
        if (!document_.addMode)
            return store_.openTable(book_.master.table,
                                    {QString("WHERE %1 = ?").arg(book_.master.key), {code_}});
        Recordset row = store_.openTable(book_.master.table);
        row.addNew();
        row.set(book_.master.key, code_);
        return row;
    }

    void writeMaster() {
        const QString contactId = contactIdOf(store_, document_.contactName);
        RemoveForPosting(store_, book_.bookId, code_);
        Recordset row = masterRow();
        row.set(book_.dateColumn, date_);
        row.set(book_.amountColumn, orderTotal(document_.lines));
        row.set("ContactNo", contactId);
        row.set("Remarks", trim(document_.remarks));
        row.set("Printed", false);
        row.set("RecordLock", false);
        row.set("UpdatedBy", session().CurrentUserCode);
        row.set("DateUpdate", book_.stampsTime ? QVariant(Clock::now()) : QVariant(Clock::today()));
        row.update();
        if (document_.addMode) numbering::storeSerial(store_, book_.serial, document_.serial);
        QueueBookForPosting(store_, book_.bookId, code_, contactId, date_);
    }

    void writeDetails() {
        DeleteWhereValue(store_, code_, book_.detailTable, "Reference");
        RemoveStockValuation(store_, book_.bookId, code_);
        progress_.begin("Please Wait While System is Posting Inventory Balances...", document_.lines.size());
        Recordset details = store_.openTable(book_.detailTable);
        qint64 written = 0;
        QStringList items;
        for (const OrderLine& line : document_.lines) {
            writeLine(details, line);
            items += line.itemCode;
            progress_.setValue(++written);
        }
        UpdateItemBalances(store_, items);
    }

    void writeLine(Recordset& details, const OrderLine& line) {
        details.addNew();
        details.set("Reference", code_);
        details.set("ItemID", line.itemCode);
        details.set("Ordered", line.ordered);
        details.set(book_.quantityColumn, line.served);
        details.set("Unit", line.unit);
        details.set("UnitPrice", line.unitPrice);
        details.set("Discount", line.discount);
        details.set("Total", line.total);
        details.addLater();
        QueueItemForPosting(store_, line.itemCode);
        UpdateItemPrice(store_, line.itemCode, book_.priceKind(document_.wholesale), line.unitPrice);
    }

    Connection& store_;
    const OrderBook& book_;
    const OrderDocument& document_;
    Progress& progress_;
    QString code_;
    QDate date_;
    Boxes boxes_;
    // Two clerks who pass the test for a duplicate together meet again at the key of the master row.
    QString duplicateText_ = "Reference No. already exists, please edit and assign another number.";
};

OrderLine lineOfRow(const Recordset& row, const OrderBook& book) {
    const Currency unitPrice = row.currency("UnitPrice");
    const Currency discount = row.currency("Discount");
    return {.itemCode = row.trimmed("ItemID"),
            .description = row.trimmed("Description"),
            .unit = row.trimmed("Unit"),
            .ordered = row.currency("Ordered"),
            .served = row.currency(book.quantityColumn),
            .unitPrice = unitPrice,
            .discount = discount,
            .netPrice = NetPrice(unitPrice, discount),
            .total = asShown(row.currency("Total"))};
}
}  // namespace

OrderDocument newOrder(Connection& store, const OrderBook& book) {
    const QDate today = Clock::today();
    OrderDocument document;
    document.serial = numbering::nextSerial(store, book.serial);
    document.code = numbering::documentNumber(formatDate(today, "mm"), document.serial, yearOf(today));
    document.date = formatDate(today);
    return document;
}

LineOrder lineOrder(const OrderDocument& document) {
    return {trim(document.code), document.date, trim(document.contactName), document.wholesale};
}

LoadedOrder loadOrder(Connection& store, const OrderBook& book, const QString& key) {
    LoadedOrder loaded;
    loaded.document.loaded =
        StoredState(store, {book.master, {book.detailTable, "Reference"}}, trimRight(key));
    const Recordset row = store.execute(
        {QString("SELECT * FROM %1 WHERE %2 = ?").arg(book.master.table, book.master.key), {trimRight(key)}});
    const QString contactId = row.trimmed("ContactNo");
    loaded.document.addMode = false;
    loaded.document.code = row.trimmed(book.master.key);
    loaded.document.date = formatDate(row.date(book.dateColumn));
    loaded.document.contactName = contactNameOf(store, contactId);
    loaded.document.remarks = row.trimmed("Remarks");
    loaded.contact = contactFigures(store, book.contactBalance, contactId);
    loaded.total = asAmount(row.currency(book.amountColumn));
    loaded.balance = asAmount(row.currency("Balance"));
    loaded.updatedBy = row.trimmed("UpdatedBy");
    loaded.lastUpdate = formatDate(row.date("DateUpdate"));
    return loaded;
}

QList<OrderLine> loadOrderLines(Connection& store, const OrderBook& book, const QString& key,
                                Progress& progress) {
    const QString select = QString(
        "SELECT %1.*, tblItemMaster.Description FROM %1 LEFT JOIN tblItemMaster"
        " ON %1.ItemID = tblItemMaster.ItemCode WHERE %1.Reference = ? ORDER BY %1.RowNo");
    Recordset rows = store.execute({select.arg(book.detailTable), {trimRight(key)}});
    progress.begin(
        QString("Please Wait While System is Loading %1 Details...").arg(book.sells ? "Sales" : "Purchase"),
        rows.rowCount());
    const ProgressScope shown(progress);
    QList<OrderLine> lines;
    for (; !rows.eof(); rows.moveNext()) {
        lines.append(lineOfRow(rows, book));
        progress.setValue(lines.size());
    }
    return lines;
}

std::optional<Fault> checkOrder(Connection& store, const OrderBook& book, const OrderDocument& document) {
    const ReadAhead ahead(store, {recordFoundQuery(book.master.table, book.master.key, trim(document.code)),
                                  contactExistsQuery(document.contactName)});
    if (auto fault = numberFault(store, book, document)) return fault;
    if (trim(document.contactName).isEmpty())
        return Fault{exclamation("No Customer!", "Please Select Customer!"), "cboCustomer"};
    if (auto fault = totalFault(document)) return fault;
    if (!isDate(document.date)) return errorFault("Invalid Date Value!", "txtRefDate");
    if (!contactExists(store, document.contactName))
        return Fault{exclamation("Does not exist!", book.noSuchContact), "cboCustomer"};
    return std::nullopt;
}

Outcome saveOrder(Connection& store, const OrderBook& book, const OrderDocument& document,
                  Progress& progress) {
    try {
        if (auto fault = checkOrder(store, book, document)) return *fault;
        const ProgressScope shown(progress);
        return OrderSave(store, book, document, progress).run();
    } catch (const StoreError& failure) {
        return Fault{exclamation("Error...", failure.text()), {}};
    } catch (const OverflowError& failure) {
        return Fault{exclamation("Error...", failure.what()), {}};
    }
}
