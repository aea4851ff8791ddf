#include "tools/counter/frmPOSCash.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"
#include "tools/counter/cash_document.h"

#include <QVBoxLayout>

namespace {
const QList<GridColumn>& columns() {
    static const QList<GridColumn> columns{{"Cashier", "Cashier", GridColumn::Text, 24},
                                           {"Sales Date", "SalesDate", GridColumn::Date, 14},
                                           {"Beginning Cash", "PettyCash", GridColumn::Amount, 20}};
    return columns;
}

TextBox* dateBox(const QString& name) {
    auto* box = new TextBox(name);
    box->setKeyFilter(keys::date());
    box->setCapacity(width::date);
    field_width::fix(box, field_width::date);
    return box;
}

Box confirmDelete() {
    return question("Confirm Delete", "Confirm Deletion of this Record. Delete Record Now?", BoxAnswer::No);
}
}  // namespace

frmPOSCash::frmPOSCash()
    : RecordScreen("frmPOSCash", "Point of Sale System Cash Maintenance..."),
      txtCashier(new ComboBox("txtCashier", ComboBox::Open)),
      txtSaleDate(dateBox("txtSaleDate")),
      txtCash(new TextBox("txtCash")),
      txtDate(dateBox("txtDate")),
      fraCount(form::frame("fraCount", {})),
      dbgMyGrid(new DataGrid("dbgMyGrid", "adcMyControl", columns())) {
    build();
    txtDate->setText(formatDate(Clock::today()));
    connectControls();
    clearFields();
    setOpen(false, false);
    RefreshRecord();
}

QSize frmPOSCash::sizeHint() const { return {form::charactersWide(this, 90), fontMetrics().height() * 32}; }

// ---- building

void frmPOSCash::build() {
    QLabel* heading = form::label("Cash Register Maintenance");
    form::setFont(heading, 1.3, true);
    dbgMyGrid->setAccessibleName("Beginning cash of each day");
    auto* inside = new QVBoxLayout(fraCount);
    inside->addWidget(dbgMyGrid);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addLayout(recordHalf());
    layout->addLayout(searchLine());
    layout->addWidget(fraCount, 1);
}

QLayout* frmPOSCash::recordHalf() {
    txtCashier->setKeyFilter(keys::freeText());
    txtCashier->setCapacity(width::contactName);
    txtCashier->setMinimumWidth(form::charactersWide(txtCashier, 36));
    txtCash->setKeyFilter(keys::amount());
    txtCash->setCapacity(width::number);
    field_width::fix(txtCash, field_width::figure);
    txtCash->setAlignment(Qt::AlignRight);
    for (QWidget* field : {static_cast<QWidget*>(txtCashier), static_cast<QWidget*>(txtSaleDate),
                           static_cast<QWidget*>(txtCash)})
        form::keepReadable(field, {QPalette::Text, QPalette::ButtonText});
    auto* grid = new QGridLayout;
    grid->setColumnStretch(2, 1);
    form::row(grid, 0, 0, "Cashier :", txtCashier);
    form::row(grid, 1, 0, "Sales Date :", txtSaleDate);
    form::row(grid, 2, 0, "Beginning Cash :", txtCash);
    return grid;
}

QLayout* frmPOSCash::searchLine() {
    auto* line = new QHBoxLayout;
    line->addWidget(form::label("Search Date :", txtDate));
    line->addWidget(txtDate);
    QPushButton* all = form::button("cmdAll", "Reload &All Items", "refresh");
    connect(all, &QPushButton::clicked, this, &frmPOSCash::RefreshRecord);
    line->addWidget(all);
    line->addStretch();
    return line;
}

void frmPOSCash::connectControls() {
    txtCashier->setFiller([this] { LoadComboBox("FullName", "tblUserMaster", txtCashier, false); });
    connect(txtCash, &TextBox::entered, this, &frmPOSCash::SaveRecord);
    connect(txtCash, &TextBox::focusLost, this, [this] {
        if (const auto cash = parseNumber(txtCash->text()))
            txtCash->setText(formatNumber(*cash, mask::amount));
    });
    connect(txtSaleDate, &TextBox::focusLost, this, [this] {
        if (const auto date = parseDate(txtSaleDate->text())) txtSaleDate->setText(formatDate(*date));
    });
    connect(txtDate, &TextBox::textChanged, this, &frmPOSCash::searchDate);
    connect(dbgMyGrid, &QTableView::clicked, this, &frmPOSCash::pickFromGrid);
    connect(dbgMyGrid, &DataGrid::picked, this, &frmPOSCash::pickFromGrid);
    connect(dbgMyGrid, &DataGrid::headerClicked, this, [this](int column) {
        guarded([&] { LoadGrid(QString(" ORDER BY %1 ASC").arg(columns().at(column).column)); });
    });
}

// ---- the grid

void frmPOSCash::LoadGrid(const QString& order) {
    dbgMyGrid->setSource(StoreConnection(), {"*", "tblPOS", "tblPOS", search_,
                                             order.isEmpty() ? " ORDER BY SalesDate DESC" : order});
    const qint64 count = dbgMyGrid->recordCount();
    fraCount->setTitle(count == 0 ? "System Found No Sales Transaction"
                                  : "System Found " + formatCount(count) + " Sales Transactions");
    fraCount->setAccessibleName(fraCount->title());
}

// A date that is not whole yet changes nothing.
void frmPOSCash::searchDate() {
    const auto date = parseDate(txtDate->text());
    if (!date) return;
    search_ = {" WHERE SalesDate = ?", {*date}};
    list_look::sayWhenEmpty(dbgMyGrid, list_look::nothingFound(formatDate(*date)));
    guarded([this] { LoadGrid(); });
}

void frmPOSCash::RefreshRecord() {
    search_ = {};
    list_look::sayWhenEmpty(dbgMyGrid, "No beginning cash yet. New Record (Ctrl+N) enters that of a day.");
    guarded([this] { LoadGrid(); });
}

void frmPOSCash::pickFromGrid() {
    if (mblnUpdated || mblnAddmode) return;
    guarded([this] { display(); });
}

// ---- the record on show

void frmPOSCash::display() {
    clearFields();
    if (!dbgMyGrid->hasCurrent()) return;
    currentKey_ = dbgMyGrid->currentText("ZevRef").toLongLong();
    txtCashier->setText(LookupField(StoreConnection(), "UserCode", "tblUserMaster", "FullName",
                                    dbgMyGrid->currentText("Cashier"), LookupMode::DisplayText));
    txtSaleDate->setText(dbgMyGrid->currentText("SalesDate"));
    txtCash->setText(dbgMyGrid->currentText("PettyCash"));
}

void frmPOSCash::clearFields() {
    currentKey_ = 0;
    txtCashier->setText({});
    txtSaleDate->clear();
    txtCash->setText("0.00");
}

void frmPOSCash::setOpen(bool open, bool withKey) {
    txtCashier->setEnabled(open && withKey);
    txtSaleDate->setEnabled(open && withKey);
    txtCash->setEnabled(open);
}

void frmPOSCash::NewRecord() {
    guarded([this] { LoadComboBox("FullName", "tblUserMaster", txtCashier, false); });
    clearFields();
    mblnAddmode = true;
    mblnUpdated = false;
    setOpen(true, true);
    txtSaleDate->setText(formatDate(Clock::today()));
    txtCashier->setFocus();
}

// Only the beginning cash can be changed.
void frmPOSCash::EditRecord() {
    if (!dbgMyGrid->hasCurrent()) return;
    mblnAddmode = false;
    mblnUpdated = true;
    guarded([this] { display(); });
    setOpen(true, false);
    txtCash->setFocus();
}

void frmPOSCash::SaveRecord() {
    if (!mblnAddmode && !mblnUpdated) return;
    guarded([this] {
        const CashEntry entry{txtCashier->text(), txtSaleDate->text(), txtCash->text()};
        const auto key = mblnAddmode ? std::nullopt : std::optional(currentKey_);
        if (settled(saveCash(StoreConnection(), entry, key), this)) finish();
    });
}

void frmPOSCash::finish() {
    mblnAddmode = false;
    mblnUpdated = false;
    setOpen(false, false);
    LoadGrid();
}

void frmPOSCash::DeleteRecord() {
    if (!dbgMyGrid->hasCurrent() || !askYes(confirmDelete())) return;
    guarded([this] {
        deleteCash(StoreConnection(), dbgMyGrid->currentText("ZevRef").toLongLong());
        clearFields();
        finish();
    });
}
