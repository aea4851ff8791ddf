#include "foundation/schema.h"

#include "platform/store/connection.h"
#include "platform/store/schema_steps.h"

#include <QHash>

namespace {
// A table and its columns, each with a kind: key (a text key), number key, text, integer, currency, flag,
// date.
struct Table {
    const char* name;
    const char* columns;
};

const Table tables[] = {
    {"tblContactMaster",
     "ContactID key, ContactName text, Address text, TelNo text, eMail text, Terms currency, Remarks text, "
     "CreditLimit currency, Discount currency, IsCustomer flag, IsSupplier flag, UpdatedBy text, "
     "DateUpdate date"},
    {"tblItemMaster",
     "ItemCode key, Description text, Unit text, Locator text, Remarks text, SupplierCode text, "
     "CostPrice currency, SellingPrice currency, WholesalePrice currency, DateAquired date, "
     "OrderLevel currency, Balance currency, UpdatedBy text, DateUpdate date"},
    {"tblUnitMaster", "UnitCode key"},
    {"tblSalesMaster",
     "RefNo key, RefDate date, ContactNo text, TotalAmount currency, Remarks text, Printed flag, "
     "RecordLock flag, Balance currency, UpdatedBy text, DateUpdate date"},
    {"tblSalesDetails",
     "Reference text, ItemID text, Ordered currency, Served currency, Unit text, UnitPrice currency, "
     "Discount currency, Total currency"},
    {"tblPurchaseMaster",
     "PurchaseNo key, PurchaseDate date, ContactNo text, PurchaseAmount currency, Remarks text, "
     "Printed flag, RecordLock flag, Balance currency, UpdatedBy text, DateUpdate date"},
    {"tblPurchaseDetails",
     "Reference text, ItemID text, Ordered currency, Delivered currency, Unit text, UnitPrice currency, "
     "Discount currency, Total currency"},
    {"tblReceiptMaster",
     "PayNo numberkey, CustomerNo text, PaymentDate date, PaymentAmount currency, TotalDiscAmount currency, "
     "PayRemarks text, Printed flag, RecordLock flag, UpdatedBy text, DateUpdate date"},
    {"tblReceiptDetails",
     "ZevRef numberkey, PayCode integer, Reference text, Discount currency, DiscountAmount currency, "
     "Amount currency, CheckNo text, CheckDate date, CheckStatus text, Negotiated flag"},
    {"tblDisbursementMaster",
     "VoucherNo key, VoucherDate date, VoucherAmount currency, ContactNo text, Remarks text, Printed flag, "
     "RecordLock flag, MonthGroup text, UpdatedBy text, DateUpdate date"},
    {"tblDisbursementDetails",
     "VoucherID text, PuchaseID text, PurchaseDate date, PayAmount currency, Particulars text, "
     "DirectPayment flag"},
    {"tblChecks",
     "ZevRef numberkey, VoucherID text, CheckNo text, CheckDate date, CheckAmount currency, ContactNo text, "
     "CheckStatus text, Negotiated flag, CrossCheck flag, Printed flag, Released flag"},
    {"tblForPosting", "BookID text, Reference text, Contact text, TransDate date"},
    {"tblForPostingItem", "ItemID text"},
    {"tblStockValuation",
     "ZevRef numberkey, BookID text, Reference text, Contact text, ItemCode text, TransDate date, "
     "StockIn currency, InPrice currency, StockOut currency, OutPrice currency, Balance currency, "
     "SalesCost currency"},
    {"tblServer", "Server text"},
    {"tblSalesKey", "Server text"},
    {"tblPurchaseKey", "Server text"},
    {"tblReceiptKey", "Server text"},
    {"tblDisbursementKey", "Server text"},
    {"tblReceiptZev", "Server text"},
    {"tblChecksZev", "Server text"},
    {"tblStockKey", "Server text"},
    {"tblPOS", "ZevRef numberkey, SalesDate date, PettyCash currency, Cashier text"},
    {"tblUserMaster",
     "UserCode key, FullName text, Description text, Password text, UpdatedBy text, DateUpdated date, "
     "EndofDay flag, POSUser flag, POSSuper flag, DeleteDRAccess flag, DeleteSIAccess flag, "
     "DeletePOAccess flag, DeleteCVAccess flag, PrintDRAccess flag, PrintSIAccess flag, PrintPOAccess flag, "
     "PrintCVAccess flag, InqItemAccess flag, InqContactAccess flag, InqJournalAccess flag, "
     "PrintItemAccess flag, PrintContactAccess flag, PrintJournalAccess flag"},
    {"tblUserMenu", "MenuCode numberkey, MenuName text"},
    {"tblUserDetails", "UserID text, MenuID integer"},
    {"tblSystemProfile",
     "CompanyName text, CompanyAddress text, CompanyTelNo text, CompanyEmail text, CompanyTIN text, "
     "CompanyLogo text, ValueTax currency, Prepared text, Checked text, Approved text"},
    {"tblTemp", "Server text"},
};

// What is looked up, sorted or summed by. An index that holds what it is asked for spares the rows: the
// quantities of an item and the payments of a document stand in theirs.
const Table indexes[] = {
    {"tblContactMaster", "ContactName"},
    {"tblContactMaster", "Address"},
    {"tblContactMaster", "TelNo"},
    {"tblContactMaster", "Terms"},
    {"tblItemMaster", "Description"},
    {"tblItemMaster", "Unit"},
    {"tblItemMaster", "Locator"},
    {"tblItemMaster", "SupplierCode"},
    {"tblItemMaster", "CostPrice"},
    {"tblItemMaster", "SellingPrice"},
    {"tblItemMaster", "WholesalePrice"},
    {"tblSalesMaster", "RefDate"},
    {"tblSalesMaster", "ContactNo, TotalAmount"},
    {"tblSalesMaster", "TotalAmount"},
    {"tblSalesMaster", "Printed"},
    {"tblSalesMaster", "RecordLock"},
    {"tblSalesMaster", "UpdatedBy, RefDate"},
    {"tblSalesMaster", "DateUpdate"},
    {"tblSalesDetails", "Reference"},
    {"tblSalesDetails", "ItemID, Reference, Served"},
    {"tblPurchaseMaster", "PurchaseDate"},
    {"tblPurchaseMaster", "ContactNo, PurchaseAmount"},
    {"tblPurchaseMaster", "PurchaseAmount"},
    {"tblPurchaseMaster", "Printed"},
    {"tblPurchaseMaster", "RecordLock"},
    {"tblPurchaseMaster", "UpdatedBy, PurchaseDate"},
    {"tblPurchaseMaster", "DateUpdate"},
    {"tblPurchaseDetails", "Reference"},
    {"tblPurchaseDetails", "ItemID, Reference, Delivered"},
    {"tblReceiptMaster", "CustomerNo, PaymentAmount, TotalDiscAmount"},
    {"tblReceiptMaster", "PaymentDate"},
    {"tblReceiptMaster", "PaymentAmount"},
    {"tblReceiptMaster", "Printed"},
    {"tblReceiptDetails", "PayCode"},
    {"tblReceiptDetails", "Reference, Amount, DiscountAmount"},
    {"tblReceiptDetails", "CheckDate"},
    {"tblReceiptDetails", "CheckNo"},
    {"tblDisbursementMaster", "VoucherDate"},
    {"tblDisbursementMaster", "ContactNo"},
    {"tblDisbursementMaster", "VoucherAmount"},
    {"tblDisbursementMaster", "Printed"},
    {"tblDisbursementDetails", "VoucherID, DirectPayment, PayAmount"},
    {"tblDisbursementDetails", "PuchaseID, DirectPayment, PayAmount"},
    {"tblChecks", "VoucherID"},
    {"tblChecks", "ContactNo"},
    {"tblChecks", "CheckDate"},
    {"tblChecks", "CheckNo"},
    {"tblForPosting", "BookID, Reference"},
    {"tblForPosting", "BookID, TransDate"},
    {"tblForPostingItem", "ItemID"},
    {"tblStockValuation", "ItemCode, TransDate, BookID, ZevRef"},
    {"tblStockValuation", "BookID, Reference"},
    {"tblPOS", "SalesDate"},
    {"tblPOS", "Cashier"},
    {"tblUserDetails", "UserID, MenuID"},
};

QString typeOf(const QString& kind) {
    static const QHash<QString, QString> types{{"key", "TEXT COLLATE NOCASE NOT NULL PRIMARY KEY"},
                                               {"numberkey", "INTEGER NOT NULL PRIMARY KEY"},
                                               {"text", "TEXT COLLATE NOCASE"},
                                               {"integer", "INTEGER"},
                                               {"currency", "CURRENCY_INTEGER DEFAULT 0"},
                                               {"flag", "BOOLEAN NOT NULL DEFAULT 0"},
                                               {"date", "DATE"}};
    return types[kind];
}

// The columns by name, and with their types.
QStringList columnsOf(const Table& table) {
    QStringList names;
    for (const QString& column : QString(table.columns).split(", ")) names += column.section(u' ', 0, 0);
    return names;
}

QStringList typedColumns(const Table& table) {
    QStringList columns;
    for (const QString& column : QString(table.columns).split(", "))
        columns += column.section(u' ', 0, 0) + u' ' + typeOf(column.section(u' ', 1));
    return columns;
}

QString createTable(const QString& name, const QStringList& columns) {
    return QString("CREATE TABLE %1 (%2)").arg(name, columns.join(", "));
}

QString createIndex(const Table& index) {
    const QString name = QString(index.columns).remove(", ");
    return QString("CREATE INDEX %1_%2 ON %1 (%3)").arg(index.name, name, index.columns);
}

QStringList flagColumns(const Table& table) {
    QStringList flags;
    for (const QString& column : QString(table.columns).split(", "))
        if (column.endsWith(" flag")) flags += column.section(u' ', 0, 0);
    return flags;
}

// A true that is written as another number than -1 becomes -1: statements compare with that.
QString keepFlagsTrue(const Table& table, const QString& event, const QString& change, const QString& key) {
    QStringList others;
    QStringList changes;
    for (const QString& flag : flagColumns(table)) {
        others += QString("NEW.%1 NOT IN (0, -1)").arg(flag);
        changes += change.arg(flag);
    }
    return QString(
               "CREATE TRIGGER %1_%2 AFTER %3 ON %1 WHEN %4 BEGIN UPDATE %1 SET %5 WHERE %6 = NEW.%6; "
               "END")
        .arg(table.name, event.section(u' ', 0, 0), event, others.join(" OR "), changes.join(", "), key);
}

QStringList flagTriggers(const Table& table, const QString& change, const QString& key) {
    const QStringList flags = flagColumns(table);
    if (flags.isEmpty()) return {};
    return {keepFlagsTrue(table, "INSERT", change, key),
            keepFlagsTrue(table, "UPDATE OF " + flags.join(", "), change, key)};
}

QStringList firstStatements() {
    QStringList statements;
    for (const Table& table : tables) statements += createTable(table.name, typedColumns(table));
    for (const Table& table : tables) statements += flagTriggers(table, "%1 = -(NEW.%1 <> 0)", "rowid");
    for (const Table& index : indexes) statements += createIndex(index);
    return statements;
}

constexpr const char* cashierDay = "CREATE UNIQUE INDEX tblPOS_CashierDay ON tblPOS (Cashier, SalesDate)";

QStringList touchTriggers(const QString& insert) {
    const QString trigger =
        "CREATE TRIGGER StockTouched_%1 AFTER %2 ON tblStockValuation BEGIN " + insert + "; END";
    const QString update = "UPDATE OF ZevRef, ItemCode, BookID, TransDate, StockIn, InPrice, StockOut";
    return {trigger.arg("INSERT", "INSERT", "NEW"), trigger.arg("DELETE", "DELETE", "OLD"),
            trigger.arg("FROM", update, "OLD"), trigger.arg("TO", update, "NEW")};
}

const QStringList touchTables{
    "CREATE TABLE StockPass (Nr INTEGER NOT NULL PRIMARY KEY, Began DATE)",
    "CREATE TABLE StockTouched (Pass INTEGER NOT NULL, ItemCode TEXT COLLATE NOCASE NOT NULL,"
    " PRIMARY KEY (Pass, ItemCode)) WITHOUT ROWID"};

// Who costs all items must know which of them other workstations touch meanwhile (books/touched_items).
QStringList touchedItemsStatements() {
    return touchTables +
           touchTriggers("INSERT OR IGNORE INTO StockTouched SELECT Nr, %3.ItemCode FROM StockPass");
}

// ---- every table with a key of its own

// A table without a number for its rows gets one, in its last column.
QString keyOf(const Table& table) {
    const QStringList columns = QString(table.columns).split(", ");
    return columns[0].endsWith(" numberkey") ? columns[0].section(u' ', 0, 0) : "RowNo";
}

bool isKeyed(const Table& table) { return keyOf(table) != "RowNo"; }

QStringList keyedColumns(const Table& table) {
    QStringList columns = typedColumns(table);
    if (isKeyed(table)) return columns;
    columns.replaceInStrings("PRIMARY KEY", "UNIQUE");
    return columns + QStringList{"RowNo INTEGER NOT NULL PRIMARY KEY"};
}

QStringList keyedTriggers(const Table& table) {
    return flagTriggers(table, "%1 = CASE WHEN NEW.%1 = 0 THEN 0 ELSE -1 END", keyOf(table));
}

QStringList keyedTouchTriggers() {
    return touchTriggers(
        "INSERT INTO StockTouched (Pass, ItemCode) SELECT Nr, %3.ItemCode FROM StockPass WHERE 1 = 1"
        " ON CONFLICT DO NOTHING");
}

// The rows go over into a table of the new form, with the numbers that they have had so far.
QStringList rebuild(const Table& table) {
    const QString columns = columnsOf(table).join(", ");
    const QString name = table.name;
    QStringList statements{
        createTable(name + "_new", keyedColumns(table)),
        QString("INSERT INTO %1_new (%2, RowNo) SELECT %2, rowid FROM %1").arg(name, columns),
        "DROP TABLE " + name, QString("ALTER TABLE %1_new RENAME TO %1").arg(name)};
    for (const Table& index : indexes)
        if (name == index.name) statements += createIndex(index);
    return statements;
}

QStringList dropFlagTriggers(const Table& table) {
    if (flagColumns(table).isEmpty()) return {};
    return {QString("DROP TRIGGER %1_INSERT").arg(table.name),
            QString("DROP TRIGGER %1_UPDATE").arg(table.name)};
}

QStringList keyStatements() {
    QStringList statements;
    for (const Table& table : tables) {
        statements += isKeyed(table) ? dropFlagTriggers(table) : rebuild(table);
        statements += keyedTriggers(table);
    }
    for (const char* trigger : {"INSERT", "DELETE", "FROM", "TO"})
        statements += QString("DROP TRIGGER StockTouched_%1").arg(trigger);
    return statements + keyedTouchTriggers();
}

// All of it at once.
QStringList wholeSchema() {
    QStringList statements;
    for (const Table& table : tables) statements += createTable(table.name, keyedColumns(table));
    for (const Table& table : tables) statements += keyedTriggers(table);
    for (const Table& index : indexes) statements += createIndex(index);
    return statements + QStringList{cashierDay} + touchTables + keyedTouchTriggers();
}
}  // namespace

void registerSchema() {
    setSchemaSteps(
        {{"The tables and indexes of the first version.", firstStatements()},
         {"The day of a cashier is opened once.", {cashierDay}},
         {"The items that a costing of all finds touched by others.", touchedItemsStatements()},
         {"Every table has a key of its own, which no engine renumbers.", keyStatements(), wholeSchema()}});
}
