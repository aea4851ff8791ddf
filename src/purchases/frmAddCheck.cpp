#include "purchases/frmAddCheck.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/frmContactFound.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/date_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QCheckBox>

frmAddCheck::frmAddCheck(LineOwner<CheckLine>& checks, const QString& payee, const QString& amount)
    : LinePopupOf(checks, "frmAddCheck", "Issue Cheque", {.staysOpen = false, .keepsLine = false}),
      payee_(payee),
      amount_(amount) {
    makeFields();
    layOut();
    connectFields();
}

static TextBox* box(const char* name, const KeyFilter& filter, int capacity) {
    auto* result = new TextBox(name);
    result->setKeyFilter(filter);
    result->setCapacity(capacity);
    return result;
}

void frmAddCheck::makeFields() {
    txtCheckNo = box("txtCheckNo", keys::freeText(), width::documentNo);
    txtDate = new DateBox("txtDate");
    txtDate->setRefusal(invalidCheckDate());
    txtCheckAmount = box("txtCheckAmount", keys::amount(), width::number);
    txtCheckAmount->setAlignment(Qt::AlignRight);
    field_width::fix(txtCheckAmount, field_width::figure);
    chkCross = new QCheckBox("&Payee's Account Only");
    chkCross->setObjectName("chkCross");
    txtPayee = box("txtPayee", keys::freeText(), width::contactName);
    cmdSearch = form::imageButton("cmdSearch", "search", "Search Payee");
}

void frmAddCheck::layOut() {
    auto* grid = new QGridLayout;
    form::row(grid, 0, 0, "Check No. :", txtCheckNo);
    form::row(grid, 1, 0, "Check Date :", txtDate);
    form::row(grid, 2, 0, "Check Amount :", txtCheckAmount);
    grid->addWidget(chkCross, 3, 1);
    form::row(grid, 4, 0, "Payee :", txtPayee);
    grid->addWidget(cmdSearch, 4, 2);
    grid->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(grid);
    column->addLayout(buttons());
    form::setAccessibleFromTexts(this);
    setMinimumWidth(form::charactersWide(this, 60));
}

void frmAddCheck::connectFields() {
    connect(txtCheckNo, &TextBox::focusLost, this,
            [this] { txtCheckNo->setText(txtCheckNo->text().toUpper()); });
    connect(txtCheckAmount, &TextBox::focusLost, this, [this] {
        if (const auto amount = parseNumber(txtCheckAmount->text()))
            txtCheckAmount->setText(formatNumber(*amount, mask::amount));
    });
    connect(txtPayee, &TextBox::entered, this, &frmAddCheck::findPayee);
    connect(cmdSearch, &QToolButton::clicked, this, &frmAddCheck::findPayee);
}

CheckEntry frmAddCheck::entry() const {
    return {txtCheckNo->text().toUpper(), txtDate->text(), txtCheckAmount->text(), chkCross->isChecked(),
            txtPayee->text()};
}

void frmAddCheck::showEntry(const CheckEntry& entry) {
    txtCheckNo->setText(entry.number);
    txtDate->setText(entry.date);
    txtCheckAmount->setText(entry.amount);
    chkCross->setChecked(entry.crossed);
    txtPayee->setText(entry.payee);
    txtCheckNo->setFocus();
}

void frmAddCheck::clearFields() {
    CheckEntry fresh = newCheck();
    fresh.payee = payee_;
    fresh.amount = amount_;
    showEntry(fresh);
}

void frmAddCheck::showLine(const CheckLine& line) { showEntry(entryOf(line)); }

// A check may be made out to any contact.
void frmAddCheck::findPayee() {
    const QPointer<frmAddCheck> dialog(this);
    openPicker([&] {
        return openContactFound(StoreConnection(), txtPayee->text(), "A",
                                [dialog](const GridPicker::Row& row) {
                                    if (!dialog) return;
                                    dialog->txtPayee->setText(row("ContactName"));
                                    dialog->cmdSave->setFocus();
                                });
    });
}

LineCheck frmAddCheck::checkTyped(const Answers&) {
    return {checkIssued(StoreConnection(), entry(),
                        [this](const QString& number) { return lines().hasLine(number); })};
}

CheckLine frmAddCheck::typedLine() const { return lineOf(entry()); }
