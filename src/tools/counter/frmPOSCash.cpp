#include "tools/counter/frmPOSCash.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"
#include "tools/counter/cash_document.h"

namespace {
using F = MasterField;

constexpr MasterLookup cashiers{"tblUserMaster", "UserCode", "FullName", ""};

// control, label, column, kind, capacity, access, blank, survives a clear, line, pair, pairs,
// lookup, what is said of no date
QList<MasterField> cashFields() {
    return {
        {"txtCashier", "Cashier :", "Cashier", F::Lookup, width::contactName, F::NewOnly, "", false, 0, 0, 2,
         cashiers},
        {"txtSaleDate",
         "Sales Date :",
         "SalesDate",
         F::Date,
         width::date,
         F::NewOnly,
         "",
         false,
         1,
         0,
         1,
         {},
         invalidSaleDate},
        {"txtCash", "Beginning Cash :", "PettyCash", F::Amount, width::number, F::Open, "0.00", false, 2, 0},
    };
}

MasterDescriptor cashDescriptor() {
    const QString none = "System Found No Sales Transaction";
    const QString some = "System Found %1 Sales Transactions";
    return {
        .name = "frmPOSCash",
        .caption = "Point of Sale System Cash Maintenance...",
        .master = cashMaster,
        .fields = cashFields(),
        .heading = "Cash Register Maintenance",
        .firstField = "txtCashier",
        .editField = "txtCash",
        .columns = {{"Cashier", "Cashier", GridColumn::Text, 24, " ORDER BY Cashier ASC"},
                    {"Sales Date", "SalesDate", GridColumn::Date, 14, " ORDER BY SalesDate ASC"},
                    {"Beginning Cash", "PettyCash", GridColumn::Amount, 20, " ORDER BY PettyCash ASC"}},
        .defaultOrder = " ORDER BY SalesDate DESC",
        .listedNone = none,
        .listed = some,
        .countedNone = none,
        .counted = some,
        .allCaption = "Reload &All Items",
        .fills = "No beginning cash yet. New Record (Ctrl+N) enters that of a day.",
        .deletion = "Confirm Deletion of this Record. Delete Record Now?",
        .dateColumn = "SalesDate",
        .duplicates = false,
        .listsAfterSave = true,
        .listsAtOnce = true,
    };
}
}  // namespace

frmPOSCash::frmPOSCash() : MasterScreen(cashDescriptor()) {
    LoadComboBox("FullName", "tblUserMaster", fields().combo("txtCashier"), false);
    fields().clear();
    connect(fields().box("txtCash"), &TextBox::entered, this, [this] { SaveRecord(); });
}

QSize frmPOSCash::sizeHint() const { return {form::charactersWide(this, 90), fontMetrics().height() * 32}; }

QString frmPOSCash::drawKey(bool /*duplicate*/) {
    fields().setText("txtSaleDate", formatDate(Clock::today()));
    return {};
}

Outcome frmPOSCash::save(QString& key) {
    const CashEntry entry{fields().text("txtCashier"), fields().text("txtSaleDate"), fields().text("txtCash"),
                          edit()};
    return SaveCash(StoreConnection(), entry, mblnAddmode, key);
}

Outcome frmPOSCash::remove(const QString& key) { return DeleteCash(StoreConnection(), key); }
