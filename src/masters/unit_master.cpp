#include "masters/unit_master.h"

#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "masters/master_records.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

namespace {
QString stored(const QString& text) { return trim(text).toUpper(); }

Fault unitFault(const QString& title, const QString& text) { return {exclamation(title, text), "txtUnit"}; }

void writeUnit(Connection& store, const QString& code, bool addMode, const QString& currentUnit) {
    Transaction unit(store);
    Recordset row =
        store.openTable("tblUnitMaster", addMode ? Sql{} : Sql{"WHERE UnitCode = ?", {currentUnit}});
    if (addMode) row.addNew();
    row.set("UnitCode", code);
    row.update();
    unit.commit();
}
}  // namespace

QStringList UnitCodes(Connection& store) {
    QStringList codes;
    Recordset rows = store.execute("SELECT UnitCode FROM tblUnitMaster ORDER BY UnitCode");
    for (; !rows.eof(); rows.moveNext()) codes << rows.trimmed("UnitCode");
    return codes;
}

std::optional<QString> MatchUnitCode(Connection& store, const QString& text) {
    const QString typed = trim(text);
    if (typed.isEmpty()) return QString();
    // In the order of the codes, so that a code typed whole comes before the longer ones it begins.
    const Recordset row =
        store.execute({"SELECT UnitCode FROM tblUnitMaster WHERE UnitCode LIKE ? ORDER BY UnitCode LIMIT 1",
                       {QString(typed + u'%')}});
    if (row.eof()) return std::nullopt;
    return row.trimmed("UnitCode").toUpper();
}

Box unknownUnit() {
    return question("Add Unit?", "System does not Recognize Unit! Do you want to add Unit Code to Database?");
}

QString AddUnitCode(Connection& store, const QString& text) {
    const QString code = stored(text);
    if (!RecordFound(store, "tblUnitMaster", "UnitCode", code)) writeUnit(store, code, true, {});
    return code;
}

Outcome SaveUnit(Connection& store, const QString& typed, bool addMode, const QString& currentUnit) {
    const QString code = stored(typed);
    if (code.isEmpty()) return unitFault("Unit Error!", "Unit Should Not Be Blank!");
    if (trim(typed).size() > width::unit)
        return unitFault("Unit Error!", "Please Enter Not More Than 15 Characters!");
    try {
        const bool keepsCode = !addMode && code.compare(trim(currentUnit), Qt::CaseInsensitive) == 0;
        if (!keepsCode && nameFound(store, "tblUnitMaster", "UnitCode", code))
            return unitFault("Error!", "System Cannot Accept Duplicate Unit!");
        writeUnit(store, code, addMode, currentUnit);
    } catch (const StoreError& error) {
        if (error.number() == StoreError::noCurrentRow) return unitFault("Error!", error.text());
        if (error.number() == StoreError::busy) throw;
    }
    return Done{};
}

void DeleteUnit(Connection& store, const QString& code) {
    store.run({"DELETE FROM tblUnitMaster WHERE UnitCode = ?", {code}});
}
