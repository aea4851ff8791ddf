#include "foundation/shared_routines.h"

#include "foundation/session.h"
#include "platform/box.h"
#include "platform/clock.h"
#include "platform/parsing.h"

namespace {
QVariant keyValue(const QVariant& key) {
    return key.metaType() == QMetaType::fromType<QString>() ? QVariant(trimRight(key.toString())) : key;
}

// A bare value of a statement: a number.
QVariant bareValue(const QString& column, const QString& value) {
    const auto number = parseNumber(value);
    if (!number || number->tenThousandths() % 10000 != 0)
        throw StoreError(StoreError::typeMismatch, QString("%1 is no number for %2.").arg(value, column));
    return number->tenThousandths() / 10000;
}

void deleteRows(Connection& store, const QString& table, const QString& column, const QVariant& value) {
    store.runLater({QString("DELETE FROM %1 WHERE %2 = ?").arg(trim(table), column), {value}});
}

Sql byKey(const QString& columns, const QString& table, const QString& column, const QVariant& key) {
    return {QString("SELECT %1 FROM %2 WHERE %3 = ?").arg(columns, table, column), {keyValue(key)}};
}

QString profileText(Connection& store, const char* column) {
    const Recordset profile = store.execute("SELECT * FROM tblSystemProfile");
    return profile.eof() ? QString() : profile.text(column);
}

QDate documentDate(Connection& store, const char* table, const char* column, const char* which) {
    const Recordset row = store.execute(QString("SELECT %1(%2) AS Found FROM %3").arg(which, column, table));
    return row.isNull("Found") ? Clock::today() : row.date("Found");
}
}  // namespace

void DeleteWhereText(Connection& store, const QString& column, const QString& table, const QString& value) {
    if (!trim(column).isEmpty()) deleteRows(store, table, column, trim(value));
}

void DeleteWhereValue(Connection& store, const QString& value, const QString& table, const QString& column,
                      const QString& mode) {
    const QString trimmed = trim(value);
    if (trimmed.isEmpty()) return;
    deleteRows(store, table, column, mode.isEmpty() ? QVariant(trimmed) : bareValue(column, trimmed));
}

QString LookupField(Connection& store, const QString& primary, const QString& table, const QString& display,
                    const QString& value, LookupMode mode) {
    const Recordset row = store.execute(lookupQuery(primary, table, display, value, mode));
    return row.eof() ? QString() : row.textAt(0);
}

Sql lookupQuery(const QString& primary, const QString& table, const QString& display, const QString& value,
                LookupMode mode) {
    const bool showsDisplay = mode == LookupMode::DisplayText;
    return byKey(showsDisplay ? display : primary, table, showsDisplay ? primary : display, value);
}

qint64 CountRecords(Connection& store, const QString& table) {
    return store.execute("SELECT COUNT(*) as Ihap FROM " + table).integer("Ihap");
}

bool RecordFound(Connection& store, const QString& table, const QString& column, const QVariant& key) {
    return !store.execute(recordFoundQuery(table, column, key)).eof();
}

Sql recordFoundQuery(const QString& table, const QString& column, const QVariant& key) {
    return byKey("1", table, column, key) + " LIMIT 1";
}

void SetFlagField(Connection& store, const QString& table, const QString& keyColumn, const QVariant& key,
                  const QString& flagColumn, bool value) {
    store.run({QString("UPDATE %1 SET %2 = ? WHERE %3 = ?").arg(table, flagColumn, keyColumn),
               {value, keyValue(key)}});
}

bool FlagFieldSet(Connection& store, const QString& table, const QString& keyColumn, const QVariant& key,
                  const QString& flagColumn) {
    const Recordset row = store.execute(byKey(flagColumn, table, keyColumn, key));
    return !row.eof() && row.flag(flagColumn);
}

bool ValidFilePath(const QString& name) {
    return name.startsWith(u'/') || (name.contains(u'\\') && name.contains(u':'));
}

Currency PercentOf(Currency percent, Currency amount) {
    return Currency::fromDouble(amount.toDouble() * (percent.toDouble() / 100.0));
}

Currency NetOfPercent(Currency percent, Currency amount) { return amount - PercentOf(percent, amount).abs(); }

Currency NetPrice(Currency price, Currency discount) {
    return Currency::fromDouble(price.toDouble() - price.toDouble() * (discount.toDouble() / 100.0));
}

Currency MultiplyAmounts(Currency a, Currency b) { return a * b; }

QString GetCompanyName(Connection& store) { return profileText(store, "CompanyName"); }
QString GetCompanyAddress(Connection& store) { return profileText(store, "CompanyAddress"); }
QString GetCompanyTelNo(Connection& store) { return profileText(store, "CompanyTelNo"); }
QString GetCompanyLogo(Connection& store) { return profileText(store, "CompanyLogo"); }
QString GetPreparedBy(Connection& store) { return profileText(store, "Prepared"); }
QString GetCheckedBy(Connection& store) { return profileText(store, "Checked"); }
QString GetApprovedBy(Connection& store) { return profileText(store, "Approved"); }

bool UserHasAccess(Connection& store, const QString& column) {
    return FlagFieldSet(store, "tblUserMaster", "UserCode", session().CurrentUserCode, column);
}

QDate GetFirstPurchaseDate(Connection& store) {
    return documentDate(store, "tblPurchaseMaster", "PurchaseDate", "MIN");
}
QDate GetLastPurchaseDate(Connection& store) {
    return documentDate(store, "tblPurchaseMaster", "PurchaseDate", "MAX");
}
QDate GetFirstSalesDate(Connection& store) { return documentDate(store, "tblSalesMaster", "RefDate", "MIN"); }
QDate GetLastSalesDate(Connection& store) { return documentDate(store, "tblSalesMaster", "RefDate", "MAX"); }

Box saveErrorBox(const StoreError& error, const QString& duplicateText) {
    if (error.number() == StoreError::refused) return exclamation("Duplicate!", duplicateText);
    return exclamation("Error...", error.text());
}

Box confirmDeleteBox() {
    return question("Confirm Delete", "Confirm Deletion of this Record.  Delete Record Now?", BoxAnswer::No);
}
