#include "documents/frmAddItem.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/frmFound.h"
#include "masters/unit_field.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

static constexpr int figureWidth = 13;  // a price with its four decimals

frmAddItem::frmAddItem(OrderOwner& owner)
    : LinePopupOf(owner.lines(), "frmAddItem", "Order Item"), owner_(owner) {
    makeFields();
    layOut();
    connectCode();
    connectFigures();
}

static TextBox* figureBox(const QString& name) {
    auto* box = new TextBox(name);
    box->setAlignment(Qt::AlignRight);
    box->setKeyFilter(keys::amount());
    box->setCapacity(width::number);
    return box;
}

static QLabel* namedLabel(const QString& name, const QString& text, QWidget* buddy) {
    QLabel* label = form::label(text, buddy);
    label->setObjectName(name);
    return label;
}

void frmAddItem::makeFields() {
    cboItemCode = new ComboBox("cboItemCode", ComboBox::Open);
    cboDescription = new ComboBox("cboDescription", ComboBox::Open);
    cboItemCode->setCapacity(width::itemCode);
    cboDescription->setCapacity(width::description);
    cboItemCode->setKeyFilter(keys::freeText());
    cboDescription->setKeyFilter(keys::freeText());
    cmdSearch1 = form::imageButton("cmdSearch1", "search", "Search Item by Code");
    cmdSearch2 = form::imageButton("cmdSearch2", "search", "Search Item by Description");
    txtCost = figureBox("txtCost");
    txtDiscount = figureBox("txtDiscount");
    txtOrder = figureBox("txtOrder");
    txtServe = figureBox("txtServe");
    txtNetPrice = readOnlyBox("txtNetPrice", Qt::AlignRight);
    txtTotal = readOnlyBox("txtTotal", Qt::AlignRight);
    txtInventory = readOnlyBox("txtInventory", Qt::AlignRight);
    txtUnit = new TextBox("txtUnit");
    txtUnit->setCapacity(width::unit);
    txtUnit->setKeyFilter(keys::freeText());
    lblServe = namedLabel("lblServe", owner_.lineWords().lblServe, txtServe);
    lblPrice = namedLabel("lblPrice", owner_.lineWords().lblPrice, txtCost);
}

QLayout* frmAddItem::itemRow() {
    field_width::fix(cboItemCode, width::itemCode / 2 + 3);
    auto* row = new QHBoxLayout;
    row->addWidget(form::label("Item Code :", cboItemCode));
    row->addWidget(cboItemCode);
    row->addWidget(cmdSearch1);
    row->addWidget(form::label("Description :", cboDescription));
    row->addWidget(cboDescription, 1);
    row->addWidget(cmdSearch2);
    return row;
}

// What a line always needs stands in the upper row, the rest below it.
QLayout* frmAddItem::figures() {
    auto* grid = new QGridLayout;
    const auto pair = [grid](int row, int column, QLabel* label, QWidget* field) {
        field_width::fix(field, figureWidth);
        grid->addWidget(label, row, 2 * column);
        grid->addWidget(field, row, 2 * column + 1, Qt::AlignLeft);
    };
    pair(0, 0, lblPrice, txtCost);
    pair(0, 1, form::label("Order :", txtOrder), txtOrder);
    pair(0, 2, lblServe, txtServe);
    pair(0, 3, form::label("Total :", txtTotal), txtTotal);
    pair(1, 0, form::label("Discount % :", txtDiscount), txtDiscount);
    pair(1, 1, form::label("Unit :", txtUnit), txtUnit);
    pair(1, 2, form::label("Net Price :", txtNetPrice), txtNetPrice);
    pair(1, 3, form::label("Inventory :", txtInventory), txtInventory);
    form::setFont(txtTotal, 1, true);
    return grid;
}

void frmAddItem::layOut() {
    auto* column = new QVBoxLayout(this);
    column->addLayout(itemRow());
    column->addLayout(figures());
    column->addLayout(buttons());
    const QList<QWidget*> order{cboItemCode, cmdSearch1,  cboDescription, cmdSearch2, txtCost,  txtOrder,
                                txtServe,    txtDiscount, txtUnit,        cmdSave,    cmdCancel};
    for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    form::setAccessibleFromTexts(this);
}

void frmAddItem::connectCode() {
    connect(cboItemCode, &ComboBox::focusLost, this, &frmAddItem::leaveCode);
    connect(cboDescription, &ComboBox::entered, this, [this] { findItem(cboDescription->text(), "D"); });
    connect(cmdSearch1, &QToolButton::clicked, this, [this] { findItem(cboItemCode->text(), "P"); });
    connect(cmdSearch2, &QToolButton::clicked, this, [this] { findItem(cboDescription->text(), "D"); });
    // The list of an item box is the search itself; it opens when the box is done with its key or click.
    cboItemCode->setFiller([this] { QTimer::singleShot(0, cmdSearch1, &QToolButton::click); });
    cboDescription->setFiller([this] { QTimer::singleShot(0, cmdSearch2, &QToolButton::click); });
}

void frmAddItem::connectFigures() {
    connect(txtCost, &TextBox::focusLost, this, [this] { compute(leaveCost); });
    connect(txtDiscount, &TextBox::focusLost, this, [this] { computeOrTell(leaveDiscount); });
    for (TextBox* box : {txtOrder, txtServe}) {
        connect(box, &TextBox::focusGained, this, [this] { compute(computeNetPrice); });
        connect(box, &TextBox::focusLost, this, [this] {
            compute(computeNetPrice);
            computeOrTell(computeLineTotal);
        });
    }
    connect(txtServe, &TextBox::focusGained, this, [this] { computeOrTell(computeLineTotal); });
    connect(txtServe, &TextBox::keyReleased, this, &frmAddItem::typeServed);
    // Enter goes by what a line always needs.
    connect(txtCost, &TextBox::entered, this, &frmAddItem::leavePrice);
    connect(txtOrder, &TextBox::entered, this, [this] { txtServe->setFocus(Qt::TabFocusReason); });
    connect(txtServe, &TextBox::entered, this, &frmAddItem::pressSave);
    connect(txtUnit, &TextBox::focusLost, this, &frmAddItem::leaveUnit);
}

LineEntry frmAddItem::entry() const {
    LineEntry typed;
    typed.addMode = mblnAddmode;
    typed.itemCode = cboItemCode->text();
    typed.description = cboDescription->text();
    typed.unit = txtUnit->text();
    typed.cost = txtCost->text();
    typed.discount = txtDiscount->text();
    typed.netPrice = txtNetPrice->text();
    typed.order = txtOrder->text();
    typed.serve = txtServe->text();
    typed.total = txtTotal->text();
    typed.inventory = txtInventory->text();
    return typed;
}

// A text that stays as it is keeps its cursor and selection.
template <class Field>
static void setChanged(Field* field, const QString& text) {
    if (field->text() != text) field->setText(text);
}

void frmAddItem::showEntry(const LineEntry& entry) {
    mblnAddmode = entry.addMode;
    setChanged(cboItemCode, entry.itemCode);
    setChanged(cboDescription, entry.description);
    setChanged(txtUnit, entry.unit);
    setChanged(txtCost, entry.cost);
    setChanged(txtDiscount, entry.discount);
    setChanged(txtNetPrice, entry.netPrice);
    setChanged(txtOrder, entry.order);
    setChanged(txtServe, entry.serve);
    setChanged(txtTotal, entry.total);
    setChanged(txtInventory, entry.inventory);
}

void frmAddItem::clearFields() {
    hasQuantity_ = false;
    showEntry({});
    cboItemCode->setFocus();
}

void frmAddItem::showLine(const OrderLine& line) {
    hasQuantity_ = false;
    showEntry(entryOf(line));
    guarded([&] { txtInventory->setText(inventoryOf(StoreConnection(), line.itemCode)); });
    txtCost->setFocus();
}

LineCheck frmAddItem::checkTyped(const Answers& answers) {
    checked_ = entry();
    const LineCheck check = checkLine(
        StoreConnection(), owner_.orderBook(), owner_.lineOrder(), checked_,
        [this](const QString& code) { return lines().hasLine(code); }, answers);
    showEntry(checked_);
    return check;
}

OrderLine frmAddItem::typedLine() const { return lineOf(checked_); }

bool frmAddItem::CheckCode() {
    LineEntry typed = entry();
    bool found = false;
    // Whatever goes wrong here is told when the line is saved.
    try {
        found = ::CheckCode(StoreConnection(), owner_.orderBook(), owner_.lineOrder(), typed);
    } catch (const std::exception&) {
        return false;
    }
    showEntry(typed);
    if (found) txtCost->setFocus();
    return found;
}

void frmAddItem::leaveCode() {
    if (isClosing() || isTelling() || CheckCode() || cboItemCode->text().isEmpty()) return;
    if (takeQuantity() && CheckCode()) return;
    // Who leaves for the button that closes does not look for an item.
    if (!cmdCancel->hasFocus()) findItem(cboItemCode->text(), "P");
}

// "6*1000000059": six of that item, ordered and served.
bool frmAddItem::takeQuantity() {
    const QString typed = cboItemCode->text();
    const qsizetype times = typed.indexOf(u'*');
    const auto quantity = parseNumber(typed.left(std::max<qsizetype>(times, 0)));
    if (!quantity) return false;
    cboItemCode->setText(trim(typed.mid(times + 1)));
    for (TextBox* box : {txtOrder, txtServe}) box->setText(quantity->toPlainText());
    hasQuantity_ = true;
    return true;
}

// With its quantities in place a line is complete.
void frmAddItem::leavePrice() {
    if (hasQuantity_)
        cmdSave->click();
    else
        txtOrder->setFocus(Qt::TabFocusReason);
}

void frmAddItem::compute(const std::function<void(LineEntry&)>& rule) {
    computeOrTell([&](LineEntry& typed) {
        rule(typed);
        return std::optional<Fault>();
    });
}

// A figure beyond the range leaves the fields as they are: saving the line refuses it.
void frmAddItem::computeOrTell(const std::function<std::optional<Fault>(LineEntry&)>& rule) {
    if (isTelling()) return;
    LineEntry typed = entry();
    try {
        const auto fault = rule(typed);
        showEntry(typed);
        if (fault && !isClosing()) tell(*fault);
    } catch (const OverflowError&) {
    }
}

void frmAddItem::typeServed() {
    // The point that a number begins with is no fault yet.
    if (txtServe->text() == ".") return;
    const bool emptied = txtServe->text().isEmpty();
    compute(computeNetPrice);
    computeOrTell(computeLineTotal);
    if (emptied) txtServe->selectAll();
}

void frmAddItem::leaveUnit() {
    txtUnit->setText(txtUnit->text().toUpper());
    if (!isClosing() && !isTelling()) completeUnit(txtUnit);
}

// A wrong code opens the search even when the code is left for the button of the other search.
void frmAddItem::findItem(const QString& typed, const QString& kind) {
    openPicker([&] {
        const QPointer<frmAddItem> dialog(this);
        return openItemFound(StoreConnection(), typed, kind, [dialog](const GridPicker::Row& row) {
            if (dialog) dialog->takeItem(row("ItemCode"), row("Description"));
        });
    });
}

void frmAddItem::takeItem(const QString& code, const QString& description) {
    cboItemCode->setText(code);
    cboDescription->setText(description);
    CheckCode();
    txtCost->setFocus();
}
