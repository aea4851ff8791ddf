#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"

namespace {
void fillCombo(const Sql& statement, ComboBox* combo, bool showEmpty) {
    Recordset rows = StoreConnection().execute(statement);
    if (showEmpty && rows.eof()) showBox(information("ComboBox Message", combo->objectName() + " is Empty"));
    QStringList values;
    for (; !rows.eof(); rows.moveNext()) values += trim(rows.textAt(0));
    combo->clear();
    combo->addItems(values);
}

void loadCombo(const Sql& statement, ComboBox* combo, bool showEmpty, const char* errorTitle) {
    try {
        fillCombo(statement, combo, showEmpty);
    } catch (const StoreError& error) {
        showBox({errorTitle, "Err.Desctiption = " + error.text() + "\nCombo SQL = " + statement.text,
                 BoxIcon::None});
    }
}
}  // namespace

void LoadComboBox(const QString& field, const QString& table, ComboBox* combo, bool showEmpty) {
    loadCombo("SELECT " + field + " FROM " + table, combo, showEmpty, "Load Combo Box - Error");
}

void LoadComboBoxUDF(const QString& field, const QString& table, ComboBox* combo, const Sql& where,
                     bool showEmpty) {
    loadCombo(Sql("SELECT " + field + " FROM " + table + " WHERE ") + where, combo, showEmpty,
              "LoadComboBox - UDF Error");
}
