#include "documents/frmAddItem.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/frmFound.h"
#include "masters/unit_field.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTimer>

frmAddItem::frmAddItem(LineOwner& owner)
    : ChildScreen("frmAddItem", "Order Item", Centred, Popup), owner_(owner) {
    makeFields();
    layOut();
    connectCode();
    connectFigures();
    connectButtons();
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
    cmdSave = form::button("cmdSave", "&OK", "save");
    cmdCancel = form::button("cmdCancel", "&Close", "close");
}

QWidget* frmAddItem::itemRow() {
    auto* frame = new QWidget;
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins({});
    form::row(grid, 0, 0, "Item Code :", cboItemCode);
    grid->addWidget(cmdSearch1, 0, 2);
    form::row(grid, 1, 0, "Description :", cboDescription);
    grid->addWidget(cmdSearch2, 1, 2);
    grid->setColumnStretch(1, 1);
    return frame;
}

QWidget* frmAddItem::figures() {
    auto* frame = new QWidget;
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins({});
    grid->addWidget(lblPrice, 0, 0);
    grid->addWidget(txtCost, 0, 1);
    form::row(grid, 1, 0, "Discount % :", txtDiscount);
    form::row(grid, 2, 0, "Net Price :", txtNetPrice);
    form::row(grid, 3, 0, "Unit :", txtUnit);
    form::row(grid, 0, 2, "Order :", txtOrder);
    grid->addWidget(lblServe, 1, 2);
    grid->addWidget(txtServe, 1, 3);
    form::row(grid, 2, 2, "Total :", txtTotal);
    form::row(grid, 3, 2, "Inventory :", txtInventory);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return frame;
}

QWidget* frmAddItem::buttons() {
    auto* frame = new QWidget;
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins({});
    row->addStretch();
    row->addWidget(cmdSave);
    row->addWidget(cmdCancel);
    return frame;
}

void frmAddItem::layOut() {
    auto* column = new QVBoxLayout(this);
    column->addWidget(itemRow());
    column->addWidget(figures());
    column->addWidget(buttons());
    const QList<QWidget*> order{cboItemCode, cmdSearch1, cboDescription, cmdSearch2, txtCost,  txtDiscount,
                                txtUnit,     txtOrder,   txtServe,       cmdSave,    cmdCancel};
    for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
    form::setAccessibleFromTexts(this);
    setMinimumWidth(form::charactersWide(this, 72));
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
    connect(txtServe, &TextBox::entered, this, &frmAddItem::pressSave);
    connect(txtUnit, &TextBox::focusLost, this, &frmAddItem::leaveUnit);
}

void frmAddItem::connectButtons() {
    connect(cmdSave, &QPushButton::clicked, this, [this] {
        // By its mnemonic it is pressed from within a field, which is left first and may keep the focus.
        cmdSave->setFocus();
        if (cmdSave->hasFocus()) pressSave();
    });
    connect(cmdCancel, &QPushButton::clicked, this, &frmAddItem::cancel);
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

void frmAddItem::NewOrder() {
    showEntry({});
    cboItemCode->setFocus();
}

void frmAddItem::changeOrder(const OrderLine& line) {
    changed_ = line;
    showEntry(entryOf(line));
    txtCost->setFocus();
}

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
    if (closing_ || telling_ || CheckCode() || cboItemCode->text().isEmpty()) return;
    // Who leaves for the button that closes does not look for an item.
    if (!cmdCancel->hasFocus()) findItem(cboItemCode->text(), "P");
}

void frmAddItem::compute(const std::function<void(LineEntry&)>& rule) {
    computeOrTell([&](LineEntry& typed) {
        rule(typed);
        return std::optional<Fault>();
    });
}

// A figure beyond the range leaves the fields as they are: saving the line refuses it.
void frmAddItem::computeOrTell(const std::function<std::optional<Fault>(LineEntry&)>& rule) {
    if (telling_) return;
    LineEntry typed = entry();
    try {
        const auto fault = rule(typed);
        showEntry(typed);
        if (fault && !closing_) tell(*fault);
    } catch (const OverflowError&) {
    }
}

// The fields that the focus passes on its way back to the one at fault have nothing to say.
void frmAddItem::tell(const Fault& fault) {
    telling_ = true;
    showFault(fault, this);
    telling_ = false;
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
    if (!closing_ && !telling_) completeUnit(txtUnit);
}

// A wrong code opens the search even when the code is left for the button of the other search.
void frmAddItem::findItem(const QString& typed, const QString& kind) {
    if (picker_ && !picker_->hasUnloaded()) return;
    WatchFocus = false;
    const QPointer<frmAddItem> dialog(this);
    picker_ = openItemFound(StoreConnection(), typed, kind, [dialog](const GridPicker::Row& row) {
        if (dialog) dialog->takeItem(row("ItemCode"), row("Description"));
    });
    if (!picker_) {
        WatchFocus = true;
        return;
    }
    connect(picker_, &ChildScreen::unloaded, this, [this] { WatchFocus = true; });
}

void frmAddItem::takeItem(const QString& code, const QString& description) {
    cboItemCode->setText(code);
    cboDescription->setText(description);
    CheckCode();
    txtCost->setFocus();
}

void frmAddItem::pressSave() {
    if (save() == SaveResult::Added && !closing_) NewOrder();
}

frmAddItem::SaveResult frmAddItem::save() {
    LineEntry typed = entry();
    bool closes = false;
    Outcome outcome;
    const bool ran = guarded([&] {
        outcome = askUntilSettled([&](const Answers& answers) {
            LineCheck check = checkLine(
                StoreConnection(), owner_.orderBook(), owner_.lineOrder(), typed,
                [this](const QString& code) { return owner_.hasLine(code); }, answers);
            closes = check.closesDialog;
            return check.outcome;
        });
    });
    showEntry(typed);
    if (!ran) return SaveResult::Failed;
    if (const auto* fault = std::get_if<Fault>(&outcome)) {
        tell(*fault);
        if (closes) {
            SkipResave = true;
            closeDialog();
        }
        return SaveResult::Refused;
    }
    owner_.addLine(lineOf(typed));
    SkipResave = true;
    return SaveResult::Added;
}

void frmAddItem::cancel() {
    SkipResave = mblnAddmode;
    closeDialog();
}

void frmAddItem::abandon() {
    SkipResave = true;
    closeDialog();
}

void frmAddItem::closeDialog() {
    closing_ = true;
    unload();
}

bool frmAddItem::queryUnload() {
    if (!closing_) {
        showBox(critical("Please Don't Press X Button!",
                         "You cannot Press X mark, please click on Cancel Button to exit without saving!"));
        return false;
    }
    // A refused line is lost; where the checks themselves fail it goes back as it came.
    if (!SkipResave && save() == SaveResult::Failed) owner_.addLine(changed_);
    return true;
}

void frmAddItem::unloading() {
    WatchFocus = false;
    if (picker_) picker_->unload();
}

void frmAddItem::activated() {
    if (!picker_) WatchFocus = true;
}

void frmAddItem::deactivated() {
    if (!WatchFocus || closing_) return;
    const QPointer<frmAddItem> stillOpen(this);
    showBox(exclamation("Lost Focus!", "Please Click on Close Button to Exit!"));
    if (stillOpen) comeForward();
}

void frmAddItem::comeForward() {
    raise();
    activateWindow();
}

void frmAddItem::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return cancel();
    ChildScreen::keyPressEvent(event);
}
