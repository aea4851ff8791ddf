#include "purchases/frmAddPayment.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/order_pickers.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QCheckBox>
#include <QTimer>

frmAddPayment::frmAddPayment(LineOwner<PaymentLine>& payments, const Payee& payee, PaymentKind kind)
    : LinePopupOf(payments, "frmAddPayment", "Add Payment", {.staysOpen = true, .keepsLine = false}),
      payee_(payee) {
    makeFields();
    layOut();
    connectFields();
    showKind(kind);
}

void frmAddPayment::makeFields() {
    cboCode = new ComboBox("cboCode", ComboBox::Open);
    cboCode->setKeyFilter(keys::freeText());
    cboCode->setCapacity(width::documentNo);
    cmdSearch = form::imageButton("cmdSearch", "search", "Search Unpaid Purchase Orders");
    txtDate = new DateBox("txtDate");
    txtDate->setRefusal(invalidPaymentDate());
    txtAmount = new TextBox("txtAmount");
    txtAmount->setAlignment(Qt::AlignRight);
    txtAmount->setKeyFilter(keys::amount());
    txtAmount->setCapacity(width::number);
    field_width::fix(txtAmount, field_width::figure);
    txtParticulars = new TextBox("txtParticulars");
    txtParticulars->setKeyFilter(keys::freeText());
    txtParticulars->setCapacity(width::remarks);
    chkDirect = new QCheckBox;
    chkDirect->setObjectName("chkDirect");
    chkDirect->setEnabled(false);
    form::keepReadable(chkDirect, {QPalette::WindowText});
    lblCode = form::label("", cboCode);
    lblCode->setObjectName("lblCode");
    lblDate = form::label("", txtDate);
    lblDate->setObjectName("lblDate");
}

void frmAddPayment::layOut() {
    auto* grid = new QGridLayout;
    grid->addWidget(lblCode, 0, 0);
    grid->addWidget(cboCode, 0, 1);
    grid->addWidget(cmdSearch, 0, 2);
    grid->addWidget(chkDirect, 0, 3);
    grid->addWidget(lblDate, 1, 0);
    grid->addWidget(txtDate, 1, 1, Qt::AlignLeft);
    form::row(grid, 2, 0, "Amount :", txtAmount);
    form::row(grid, 3, 0, "Particulars :", txtParticulars, 3);
    grid->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addLayout(buttons());
    setMinimumWidth(form::charactersWide(this, 72));
}

void frmAddPayment::connectFields() {
    connect(cboCode, &ComboBox::entered, this, &frmAddPayment::enterCode);
    connect(cboCode, &ComboBox::focusLost, this, &frmAddPayment::leaveCode);
    connect(cmdSearch, &QToolButton::clicked, this, &frmAddPayment::findOrder);
    connect(txtAmount, &TextBox::focusLost, this, [this] {
        if (const auto amount = parseNumber(txtAmount->text()))
            txtAmount->setText(formatNumber(*amount, mask::amount));
    });
    // The list of the code is the search itself; it opens when the box is done with its key or click.
    cboCode->setFiller([this] { QTimer::singleShot(0, cmdSearch, &QToolButton::click); });
}

bool frmAddPayment::isPayable() const { return !chkDirect->isChecked(); }

// An expense has a reference and a date of its own; those of an order are found with its number.
void frmAddPayment::showKind(PaymentKind kind) {
    const bool isDirect = kind == PaymentKind::Direct;
    chkDirect->setChecked(isDirect);
    chkDirect->setText(isDirect ? "Direct Expense" : "Accounts Payable");
    lblCode->setText(isDirect ? "Reference No. :" : "Purchase Order No. :");
    lblDate->setText(isDirect ? "Reference Date :" : "Purchase Date :");
    txtDate->setReadOnly(!isDirect);
    txtDate->setFocusPolicy(isDirect ? Qt::StrongFocus : Qt::NoFocus);
    QPalette colours;
    if (!isDirect) colours.setColor(QPalette::Base, palette().color(QPalette::Window));
    txtDate->setPalette(colours);
    cmdSearch->setEnabled(!isDirect);
    form::setAccessibleFromTexts(this);
}

VoucherPaymentEntry frmAddPayment::entry() const {
    return {isPayable() ? PaymentKind::Payable : PaymentKind::Direct, cboCode->text(), txtDate->text(),
            txtAmount->text(), txtParticulars->text()};
}

void frmAddPayment::showEntry(const VoucherPaymentEntry& entry) {
    cboCode->setText(entry.code);
    txtDate->setText(entry.date);
    txtAmount->setText(entry.amount);
    txtParticulars->setText(entry.particulars);
    lookedUp_ = trim(entry.code);
}

void frmAddPayment::clearFields() {
    VoucherPaymentEntry empty;
    empty.kind = entry().kind;
    showEntry(empty);
    cboCode->setFocus();
}

void frmAddPayment::showLine(const PaymentLine& line) {
    showKind(line.kind());
    showEntry(entryOf(line));
    txtAmount->setFocus();
}

// The purchase order

bool frmAddPayment::CheckCode() {
    VoucherPaymentEntry typed = entry();
    bool found = false;
    guarded([&] { found = ::CheckCode(StoreConnection(), typed); });
    showEntry(typed);
    return found;
}

void frmAddPayment::enterCode() {
    if (!isPayable()) return txtDate->setFocus();
    if (CheckCode())
        txtAmount->setFocus();
    else
        findOrder();
}

// A code that stays as it was keeps the amount that was typed for it.
void frmAddPayment::leaveCode() {
    if (isClosing() || isTelling() || !isPayable() || trim(cboCode->text()) == lookedUp_) return;
    if (CheckCode() || trim(cboCode->text()).isEmpty()) return;
    // Who leaves for the button that closes does not look for an order.
    if (!cmdCancel->hasFocus()) findOrder();
}

void frmAddPayment::findOrder() {
    const QPointer<frmAddPayment> dialog(this);
    openPicker([&] {
        return openDisbursementFound(StoreConnection(), trim(cboCode->text()), payee_.id, "A",
                                     [dialog](const GridPicker::Row& row) {
                                         if (dialog) dialog->takeOrder(row("PurchaseNo"));
                                     });
    });
}

void frmAddPayment::takeOrder(const QString& purchaseNo) {
    cboCode->setText(purchaseNo);
    CheckCode();
    txtAmount->setFocus();
}

// OK

LineCheck frmAddPayment::checkTyped(const Answers&) {
    return {checkPayment(StoreConnection(), payee_, entry(),
                         [this](const QString& code) { return lines().hasLine(code); })};
}

PaymentLine frmAddPayment::typedLine() const { return lineOf(entry()); }
