#include "sales/frmAddReceipt.h"

#include "documents/contact_figures.h"
#include "documents/document_controls.h"
#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/order_pickers.h"
#include "platform/ui/boxes.h"
#include "platform/ui/date_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QCheckBox>

namespace {
TextBox* fieldBox(const char* name, const KeyFilter& filter, int capacity) {
    auto* box = new TextBox(name);
    box->setKeyFilter(filter);
    box->setCapacity(capacity);
    return box;
}

TextBox* figureBox(const char* name) {
    TextBox* box = fieldBox(name, keys::amount(), width::number);
    box->setAlignment(Qt::AlignRight);
    return box;
}

// A text that stays as it is keeps its cursor and selection.
void setChanged(TextBox* box, const QString& text) {
    if (box->text() != text) box->setText(text);
}
}  // namespace

frmAddReceipt::frmAddReceipt(LineOwner<ReceiptLine>& lines, const QString& customerName)
    : LinePopupOf(lines, "frmAddReceipt", "Add Entry"), customerName_(customerName) {
    makeFields();
    layOut();
    connectOrder();
    connectFigures();
}

void frmAddReceipt::makeFields() {
    txtSANo = fieldBox("txtSANo", keys::freeText(), width::documentNo);
    cmdSearch = form::imageButton("cmdSearch", "search", "Search Sales Orders");
    txtJournalAmount = readOnlyBox("txtJournalAmount", Qt::AlignRight);
    txtBalance = readOnlyBox("txtBalance", Qt::AlignRight);
    txtTotalDiscount = readOnlyBox("txtTotalDiscount", Qt::AlignRight);
    txtRequired = readOnlyBox("txtRequired", Qt::AlignRight);
    txtDiscount = figureBox("txtDiscount");
    txtPayment = figureBox("txtPayment");
    chkCash = new QCheckBox("Cash &Payment");
    chkCash->setObjectName("chkCash");
    txtCheckNo = fieldBox("txtCheckNo", keys::freeText(), width::documentNo);
    txtCheckDate = new DateBox("txtCheckDate");
    txtCheckDate->setRefusal([this] { return checkDateFault(entry()); });
    for (TextBox* figure :
         {txtDiscount, txtPayment, txtJournalAmount, txtBalance, txtTotalDiscount, txtRequired})
        field_width::fix(figure, field_width::figure);
}

void frmAddReceipt::layOut() {
    auto* order = new QHBoxLayout;
    order->addWidget(txtSANo, 1);
    order->addWidget(cmdSearch);
    auto* grid = new QGridLayout;
    grid->addWidget(form::label("D.R. No. :", txtSANo), 0, 0);
    grid->addLayout(order, 0, 1);
    form::row(grid, 1, 0, "Discount % :", txtDiscount);
    form::row(grid, 2, 0, "Payment :", txtPayment);
    grid->addWidget(chkCash, 3, 1);
    form::row(grid, 4, 0, "Check No. :", txtCheckNo);
    form::row(grid, 5, 0, "Check Date :", txtCheckDate);
    form::row(grid, 0, 2, "Sales Amount :", txtJournalAmount);
    form::row(grid, 1, 2, "Book Balance :", txtBalance);
    form::row(grid, 2, 2, "Total Discount :", txtTotalDiscount);
    form::row(grid, 3, 2, "Required Payment :", txtRequired);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addLayout(buttons());
    setTabStops(
        {txtSANo, cmdSearch, txtDiscount, txtPayment, chkCash, txtCheckNo, txtCheckDate, cmdSave, cmdCancel});
    form::setAccessibleFromTexts(this);
}

void frmAddReceipt::connectOrder() {
    connect(txtSANo, &TextBox::entered, this, &frmAddReceipt::enterOrder);
    connect(txtSANo, &TextBox::focusLost, this, &frmAddReceipt::leaveOrder);
    connect(txtSANo, &TextBox::focusGained, this, [this] { lookedUp_.clear(); });
    connect(cmdSearch, &QToolButton::clicked, this, &frmAddReceipt::findOrder);
}

void frmAddReceipt::connectFigures() {
    connect(txtDiscount, &TextBox::keyReleased, this, &frmAddReceipt::ComputeDiscounts);
    connect(txtDiscount, &TextBox::focusLost, this, [this] { apply(leaveDiscount); });
    connect(txtPayment, &TextBox::focusLost, this, [this] { apply(leavePayment); });
    connect(txtCheckNo, &TextBox::focusLost, this, [this] { apply(leaveCheckNo); });
    connect(chkCash, &QCheckBox::clicked, this,
            [this](bool cash) { apply([cash](PaymentEntry& typed) { setCash(typed, cash); }); });
}

PaymentEntry frmAddReceipt::entry() const {
    return {.addMode = mblnAddmode,
            .orderNo = txtSANo->text(),
            .journalAmount = txtJournalAmount->text(),
            .balance = txtBalance->text(),
            .discount = txtDiscount->text(),
            .totalDiscount = txtTotalDiscount->text(),
            .required = txtRequired->text(),
            .payment = txtPayment->text(),
            .cash = chkCash->isChecked(),
            .checkNo = txtCheckNo->text(),
            .checkDate = txtCheckDate->text()};
}

void frmAddReceipt::showEntry(const PaymentEntry& entry) {
    setChanged(txtSANo, entry.orderNo);
    setChanged(txtJournalAmount, entry.journalAmount);
    setChanged(txtBalance, entry.balance);
    setChanged(txtDiscount, entry.discount);
    setChanged(txtTotalDiscount, entry.totalDiscount);
    setChanged(txtRequired, entry.required);
    setChanged(txtPayment, entry.payment);
    setChanged(txtCheckNo, entry.checkNo);
    setChanged(txtCheckDate, entry.checkDate);
    chkCash->setChecked(entry.cash);
    for (TextBox* box : {txtCheckNo, static_cast<TextBox*>(txtCheckDate)}) box->setEnabled(!entry.cash);
}

// A figure beyond the range leaves the fields as they are: saving the line refuses it.
void frmAddReceipt::apply(const std::function<void(PaymentEntry&)>& rule) {
    if (isTelling()) return;
    PaymentEntry typed = entry();
    try {
        rule(typed);
    } catch (const OverflowError&) {
        return;
    }
    showEntry(typed);
}

void frmAddReceipt::ComputeDiscounts() { apply(::ComputeDiscounts); }
void frmAddReceipt::ValidatePaymentMode() { apply(::ValidatePaymentMode); }

void frmAddReceipt::clearFields() {
    const PaymentEntry last = entry();
    showEntry({.cash = last.cash, .checkNo = last.checkNo, .checkDate = last.checkDate});
    txtSANo->setFocus();
}

void frmAddReceipt::showLine(const ReceiptLine& line) {
    showEntry(entryOf(line));
    CheckCode();
    txtDiscount->setFocus();
}

LineCheck frmAddReceipt::checkTyped(const Answers&) {
    const PaymentEntry typed = entry();
    const auto fault = ValidateLine(StoreConnection(), customerName_, typed,
                                    [this](const QString& number) { return lines().hasLine(number); });
    if (fault) return {*fault};
    ready_ = lineOf(StoreConnection(), typed);
    return {Done{}};
}

// The order

bool frmAddReceipt::CheckCode() {
    PaymentEntry typed = entry();
    OrderLookup found;
    if (!guarded([&] { found = ::CheckCode(StoreConnection(), customerName_, typed); })) return true;
    showEntry(typed);
    if (found.known) lookedUp_ = txtSANo->text();
    showBoxes(found.boxes);
    return found.known;
}

void frmAddReceipt::enterOrder() {
    if (txtSANo->text().isEmpty() || !CheckCode()) return findOrder();
    txtDiscount->setFocus();
}

// Who leaves for the button that closes does not look for an order.
void frmAddReceipt::leaveOrder() {
    const QString number = txtSANo->text();
    if (isClosing() || isTelling() || cmdCancel->hasFocus() || number.isEmpty() || number == lookedUp_)
        return;
    if (!CheckCode()) findOrder();
}

void frmAddReceipt::findOrder() {
    openPicker([this] {
        const QPointer<frmAddReceipt> popup(this);
        const QString customer = contactIdOf(StoreConnection(), customerName_);
        return openSalesFound(StoreConnection(), txtSANo->text(), customer, "R",
                              [popup](const GridPicker::Row& row) {
                                  if (popup) popup->takeOrder(row("RefNo"));
                              });
    });
}

void frmAddReceipt::takeOrder(const QString& number) {
    txtSANo->setText(number);
    CheckCode();
    txtDiscount->setFocus();
}
