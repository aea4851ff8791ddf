#include "purchases/frmDisbursementEntry.h"

#include "books/balances.h"
#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "purchases/frmAddCheck.h"
#include "purchases/frmAddPayment.h"
#include "purchases/print_voucher.h"

namespace {
QList<ListColumn> paymentColumns() {
    return {{"P.O. No.", 16, ListColumn::Text},
            {"P.O. Date", 12, ListColumn::Date},
            {"Amount", 15, ListColumn::Number},
            {"Particulars", 34, ListColumn::Text},
            {"Direct", 8, ListColumn::Text}};
}

const DocumentScreen& words() {
    static const DocumentScreen screen{
        .name = "frmDisbursementEntry",
        .caption = "Disbursement Entry",
        .master = disbursementBook,
        .number = numbering::disbursement,
        .contactBalance = SupplierBalance,
        .codeLabel = "Voucher No. :",
        .dateLabel = "Voucher Date :",
        .contactLabel = "Payee :",
        .balanceLabel = "Supplier Balance :",
        .searchText = "Search Supplier Database",
        .incrementText = "Increment Voucher No.",
        .listLabel = "Payments :",
        .countLabel = "No. of Payments :",
        .addCaption = "&Add Payables",
        .editCaption = "&Edit Payment",
        .removeCaption = "&Remove Entry",
        .columns = paymentColumns(),
        .totalColumn = PaymentLine::Amount,
        .contactFilter = "S",
        .missingToAdd = {"Please Select Payee First!",
                         "Payee does not exist, please add this to Contact Master File..."},
        .missingToEdit = {"Please Select Contact First!",
                          "Payee does not exist, please add this to Contact Master File First..."},
        .noContactEntered = "Please Enter Payee Name First...",
        .printRight = "PrintCVAccess",
        .papers = {{"Do you want to Print Voucher for this Transaction?", PrintVoucher},
                   {"Do you want to Print Check for this Transaction?", PrintVoucherChecks}},
        .newShowsUser = true};
    return screen;
}
}  // namespace

frmDisbursementEntry::frmDisbursementEntry()
    : DocumentEntry(words()), own_(ui, this), payments_(ui.lvwItems, this), checks_(own_.lvwCheck, this) {
    setLines(payments_);
    addList(checks_);
    connectPayments();
    connectChecks();
}

void frmDisbursementEntry::connectPayments() {
    connect(ui.txtRemarks, &TextBox::entered, this, [this] { ui.cmdAdd->setFocus(); });
    connect(own_.cmdInsert, &QPushButton::clicked, this, [this] { startPayment(PaymentKind::Direct); });
}

void frmDisbursementEntry::connectChecks() {
    connect(own_.chkCash, &QCheckBox::clicked, this, &frmDisbursementEntry::payInCash);
    connect(own_.cmdAddCheck, &QPushButton::clicked, this, &frmDisbursementEntry::addCheck);
    connect(own_.cmdEditCheck, &QPushButton::clicked, this, &frmDisbursementEntry::editCheck);
    connect(own_.cmdDeleteCheck, &QPushButton::clicked, this, &frmDisbursementEntry::deleteCheck);
    // In the list, keys and clicks press the buttons, which a payment in cash disables.
    connect(own_.lvwCheck, &ListView::insertPressed, own_.cmdAddCheck, &QPushButton::click);
    connect(own_.lvwCheck, &ListView::editPressed, own_.cmdEditCheck, &QPushButton::click);
    connect(own_.lvwCheck, &ListView::rowDoubleClicked, own_.cmdEditCheck, &QPushButton::click);
    connect(own_.lvwCheck, &ListView::deletePressed, own_.cmdDeleteCheck, &QPushButton::click);
}

// Documents

void frmDisbursementEntry::clearDocument() {
    own_.chkCash->setChecked(false);
    own_.allowChecks(true);
}

void frmDisbursementEntry::loadDocument() {
    // The date of a stored voucher may still be mended.
    ui.txtRefDate->setEnabled(true);
    clearDocument();
    const LoadedVoucher loaded = loadVoucher(StoreConnection(), mstrPrimary);
    showHead(loaded.document, loaded);
    own_.chkCash->setChecked(loaded.document.cash);
    own_.allowChecks(!loaded.document.cash);
    payments_.setAll(loaded.document.payments);
    checks_.setAll(loaded.document.checks);
}

void frmDisbursementEntry::showContact(const ContactFigures& figures) {
    DocumentEntry::showContact(figures);
    own_.txtCreditLimit->setText(figures.creditLimit);
}

Outcome frmDisbursementEntry::saveDocument(Progress&) {
    VoucherDocument typed{head()};
    typed.cash = own_.chkCash->isChecked();
    typed.payments = payments_.all();
    typed.checks = checks_.all();
    return saveVoucher(StoreConnection(), typed);
}

// Payments

void frmDisbursementEntry::linesChanged() {
    const QList<PaymentLine> payments = payments_.all();
    const bool isFree = payments.isEmpty();
    const bool paysExpenses = !isFree && payments.first().kind() == PaymentKind::Direct;
    ui.cmdAdd->setEnabled(isFree || !paysExpenses);
    own_.cmdInsert->setEnabled(isFree || paysExpenses);
    ui.cboCustomer->setEnabled(isFree);
    ui.cmdSearch->setEnabled(isFree);
}

Payee frmDisbursementEntry::payee() const {
    const QString name = ui.cboCustomer->text();
    return {contactIdOf(StoreConnection(), name), name};
}

void frmDisbursementEntry::startPayment(PaymentKind kind) {
    if (lineReady(words().missingToAdd))
        payments_.startLine([this, kind] { return new frmAddPayment(payments_, payee(), kind); });
}

// Of the kind that the voucher still allows.
void frmDisbursementEntry::startLine() {
    startPayment(ui.cmdAdd->isEnabled() ? PaymentKind::Payable : PaymentKind::Direct);
}

void frmDisbursementEntry::changeLine() {
    if (lineReady(words().missingToEdit) && payments_.isSelected())
        payments_.changeLine([this] { return new frmAddPayment(payments_, payee()); });
}

// Checks

frmAddCheck* frmDisbursementEntry::checkPopup() {
    return new frmAddCheck(checks_, ui.cboCustomer->text(), ui.txtAmount->text());
}

void frmDisbursementEntry::addCheck() {
    if (lineReady(words().missingToAdd)) checks_.startLine([this] { return checkPopup(); });
}

void frmDisbursementEntry::editCheck() {
    if (lineReady(words().missingToEdit) && checks_.isSelected())
        checks_.changeLine([this] { return checkPopup(); });
}

void frmDisbursementEntry::deleteCheck() {
    if (checks_.isSelected() && !popupHolds()) checks_.removeLine();
}

// The checks of a voucher that is paid in cash are erased, those of a stored one after a question.
void frmDisbursementEntry::payInCash() {
    const bool inCash = own_.chkCash->isChecked();
    const Box erase = question(
        "Continue?", "This Action Will Erase All Checks Assigned to This Voucher! Do You Want to Continue?",
        BoxAnswer::No);
    if (inCash && (popupHolds() || (!mblnAddmode && !askYes(erase)))) return own_.chkCash->setChecked(false);
    mblnUpdated = true;
    if (inCash) checks_.clear();
    own_.allowChecks(!inCash);
}
