#include "purchases/voucher_controls.h"

#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "purchases/issued_check.h"
#include "purchases/voucher_payment.h"

static QList<ListColumn> checkColumns() {
    return {{"Check No.", 16, ListColumn::Text},
            {"Check Date", 12, ListColumn::Date},
            {"Check Amount", 15, ListColumn::Number},
            {"Cross Check", 12, ListColumn::Text},
            {"Payee Name", 30, ListColumn::Text}};
}

VoucherControls::VoucherControls(const DocumentControls& common, QWidget* screen)
    : txtCreditLimit(readOnlyBox("txtCreditLimit", Qt::AlignRight)),
      cmdInsert(form::button("cmdInsert", "Add E&xpenses", "new")),
      chkCash(new QCheckBox("Cas&h Payment")),
      lvwCheck(new ListView("lvwCheck", checkColumns())),
      cmdAddCheck(form::button("cmdAddCheck", "Add Cheque", "new")),
      cmdEditCheck(form::button("cmdEditCheck", "Edit Cheque", "edit")),
      cmdDeleteCheck(form::button("cmdDeleteCheck", "Delete Cheque", "delete")) {
    chkCash->setObjectName("chkCash");
    list_look::sayWhenEmpty(lvwCheck, "No checks yet. Add Cheque enters one.");
    auto* column = new QVBoxLayout(screen);
    column->addLayout(head(common));
    column->addLayout(common.listTitle());
    column->addWidget(common.lvwItems, 3);
    column->addLayout(common.foot({cmdInsert}));
    column->addLayout(checkTitle());
    column->addWidget(lvwCheck, 2);
    column->addLayout(checkButtons());
    setTabStops(
        common.tabStops({}, {cmdInsert, chkCash, lvwCheck, cmdAddCheck, cmdEditCheck, cmdDeleteCheck}));
    form::setAccessibleFromTexts(screen);
}

QGridLayout* VoucherControls::head(const DocumentControls& common) const {
    QGridLayout* grid = common.head();
    form::row(grid, 0, 3, "Term :", common.txtTerm);
    form::row(grid, 1, 3, "Supplier Balance :", common.txtCustomerBalance);
    field_width::fix(txtCreditLimit, field_width::figure);
    form::row(grid, 2, 3, "Credit Limit :", txtCreditLimit);
    return grid;
}

QLayout* VoucherControls::checkTitle() const {
    auto* row = new QHBoxLayout;
    row->addWidget(form::label("Checks :", lvwCheck));
    row->addSpacing(24);
    row->addWidget(chkCash);
    row->addStretch();
    return row;
}

QLayout* VoucherControls::checkButtons() const {
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {cmdAddCheck, cmdEditCheck, cmdDeleteCheck}) row->addWidget(button);
    row->addStretch();
    return row;
}

void VoucherControls::allowChecks(bool allowed) {
    for (QPushButton* button : {cmdAddCheck, cmdEditCheck, cmdDeleteCheck}) button->setEnabled(allowed);
}
