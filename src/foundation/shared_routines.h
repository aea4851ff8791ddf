#pragma once
#include "platform/currency.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QString>

class ComboBox;

// The small routines that every screen repeats. Table and column names are the program's own texts; values
// are always bound. Lookups by a typed code or name ignore trailing blanks. Store errors go to the caller
// unless the routine says otherwise.

// Fills a combo with the column's values, trimmed, null as empty. showEmpty: a box when the table is empty,
// before the combo is cleared. Errors show their own box.
void LoadComboBox(const QString& field, const QString& table, ComboBox* combo, bool showEmpty);
void LoadComboBoxUDF(const QString& field, const QString& table, ComboBox* combo, const Sql& where,
                     bool showEmpty);

// Delete the rows with the trimmed value, when the tested text (the column, or the value) is not empty.
void DeleteWhereText(Connection& store, const QString& column, const QString& table, const QString& value);
void DeleteWhereValue(Connection& store, const QString& value, const QString& table, const QString& column,
                      const QString& mode = {});

// Mode 'D' reads the display column by the primary column, 'P' the primary by the display column. No row:
// empty.
enum class LookupMode { DisplayText, PrimaryKey };
QString LookupField(Connection& store, const QString& primary, const QString& table, const QString& display,
                    const QString& value, LookupMode mode);
// What it asks of the store, to be read ahead; and RecordFound.
Sql lookupQuery(const QString& primary, const QString& table, const QString& display, const QString& value,
                LookupMode mode);
Sql recordFoundQuery(const QString& table, const QString& column, const QVariant& key);

qint64 CountRecords(Connection& store, const QString& table);
bool RecordFound(Connection& store, const QString& table, const QString& column, const QVariant& key);
void SetFlagField(Connection& store, const QString& table, const QString& keyColumn, const QVariant& key,
                  const QString& flagColumn, bool value);
bool FlagFieldSet(Connection& store, const QString& table, const QString& keyColumn, const QVariant& key,
                  const QString& flagColumn);

// A name that tells its place: an absolute path, or at least one back slash and one colon.
bool ValidFilePath(const QString& name);

// The percent of an amount: amount x (percent / 100) in double, once, then currency.
Currency PercentOf(Currency percent, Currency amount);
// The amount less the absolute value of its percent.
Currency NetOfPercent(Currency percent, Currency amount);
// price - price x (discount / 100) in double, rounded once, as a whole: what a stored line shows and prints.
// The line dialog rounds the discount first (documents/order_line), and the two can differ by a
// ten-thousandth.
Currency NetPrice(Currency price, Currency discount);
Currency MultiplyAmounts(Currency a, Currency b);

// Of the one row of tblSystemProfile; empty with no row.
QString GetCompanyName(Connection& store);
QString GetCompanyAddress(Connection& store);
QString GetCompanyTelNo(Connection& store);
QString GetCompanyLogo(Connection& store);
QString GetPreparedBy(Connection& store);
QString GetCheckedBy(Connection& store);
QString GetApprovedBy(Connection& store);

// A flag column of the current user's row in tblUserMaster; false with no row.
bool UserHasAccess(Connection& store, const QString& column);

// The first and last document dates; today with no document.
QDate GetFirstPurchaseDate(Connection& store);
QDate GetLastPurchaseDate(Connection& store);
QDate GetFirstSalesDate(Connection& store);
QDate GetLastSalesDate(Connection& store);

// The answer of every saving routine to a failure: "Duplicate!" for a refused key, else "Error...".
struct Box;
Box saveErrorBox(const StoreError& error,
                 const QString& duplicateText = "Code already exist, please assign another...");
// The question before a record, a unit or a line is deleted; Enter answers No.
Box confirmDeleteBox();
