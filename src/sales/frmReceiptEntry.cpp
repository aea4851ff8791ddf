#include "sales/frmReceiptEntry.h"

#include "books/balances.h"
#include "foundation/session.h"
#include "platform/ui/form.h"
#include "sales/frmAddReceipt.h"
#include "sales/print_invoice.h"

namespace {
const DocumentScreen& words() {
    static const DocumentScreen screen{
        .name = "frmReceiptEntry",
        .caption = "Receipt Entry",
        .master = receiptBook,
        .number = numbering::payment,
        .contactBalance = CustomerBalance,
        .dateName = "txtPayDate",
        .searchName = "cmdCustomer",
        .totalName = "txtNetAmount",
        .invalidDate = "Invalid Payment Date Value!",
        .codeLabel = "Payment No. :",
        .dateLabel = "Payment Date :",
        .contactLabel = "Customer :",
        .balanceLabel = "Customer Balance :",
        .searchText = "Search Customer Database",
        .incrementText = "Increment Payment No.",
        .listLabel = "Payment Details :",
        .countLabel = "No. of Payments :",
        .addCaption = "&Add D.R.",
        .editCaption = "&Edit D.R.",
        .removeCaption = "&Remove D.R.",
        .columns = {{"Reference", 15},
                    {"Ref. Date", 11, ListColumn::Date},
                    {"Ref. Amount", 13, ListColumn::Number},
                    {"Discount", 9, ListColumn::Number},
                    {"Net Amount", 13, ListColumn::Number},
                    {"Check No.", 14},
                    {"Check Date", 11, ListColumn::Date},
                    {"Remarks", 20}},
        .totalColumn = ReceiptLine::NetAmount,
        .contactFilter = "C",
        .missingToAdd = {"Please Select Customer First!",
                         "Customer Does Not Exist, Please Add This To Customer Master File..."},
        .missingToEdit = {"Please Select Customer First!",
                          "Customer does not exist, please add this to Contact Master File..."},
        .noContactEntered = "Please Enter Customer First...",
        .printRight = "PrintSIAccess",
        .papers = {{"Do you want to Print Invoice for this Payment Transaction?", PrintPaymentInvoice}},
        .saved = "Payment Successfully Posted!",
        .newShowsUser = false,
    };
    return screen;
}
}  // namespace

frmReceiptEntry::frmReceiptEntry()
    : DocumentEntry(words()),
      lines_(ui.lvwItems, this),
      cmdInsert(form::button("cmdInsert", "E&xit Entry", "exit")) {
    layOut();
    setLines(lines_);
    connect(cmdInsert, &QPushButton::clicked, this, &ChildScreen::CloseRecord);
}

void frmReceiptEntry::layOut() {
    QGridLayout* grid = ui.head();
    form::row(grid, 0, 3, "Term :", ui.txtTerm);
    form::row(grid, 1, 3, words().balanceLabel, ui.txtCustomerBalance);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addLayout(ui.listTitle());
    column->addWidget(ui.lvwItems, 1);
    column->addLayout(ui.foot({cmdInsert}));
    setTabStops(ui.tabStops({}, {cmdInsert}));
    form::setAccessibleFromTexts(this);
}

void frmReceiptEntry::loadDocument() {
    const LoadedReceipt loaded = loadReceipt(StoreConnection(), mstrPrimary);
    showHead(loaded.document, loaded);
    lines_.setAll(loaded.document.lines);
}

Outcome frmReceiptEntry::saveDocument(Progress& progress) {
    return saveReceipt(StoreConnection(), {head(), lines_.all()}, progress);
}

LinePopupOf<ReceiptLine>* frmReceiptEntry::makePopup() {
    return new frmAddReceipt(lines_, ui.cboCustomer->text());
}

void frmReceiptEntry::startLine() {
    if (lineReady(words().missingToAdd)) lines_.startLine([this] { return makePopup(); });
}

void frmReceiptEntry::changeLine() {
    if (lineReady(words().missingToEdit) && lines_.isSelected())
        lines_.changeLine([this] { return makePopup(); });
}

// A receipt belongs to one customer, who stays while there is a line, or one in the popup's hands.
void frmReceiptEntry::linesChanged() {
    const bool free = mblnAddmode && lines_.count() == 0 && !lines_.popupIsOpen();
    ui.cboCustomer->setEnabled(free);
    ui.cmdSearch->setEnabled(free);
}
