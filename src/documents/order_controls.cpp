#include "documents/order_controls.h"

#include "platform/ui/field_width.h"
#include "platform/ui/form.h"

static TextBox* amountShown(const char* name) { return readOnlyBox(name, Qt::AlignRight); }

OrderControls::OrderControls(const OrderScreen& words, const DocumentControls& common, QWidget* screen)
    : txtBalance(amountShown("txtBalance")),
      txtCreditLimit(words.showsCreditLimit ? amountShown("txtCreditLimit") : nullptr),
      chkWholesale(words.book->sells ? new QCheckBox("Use &Wholesale Price") : nullptr),
      cmdServe(form::button(words.serveName, words.serveCaption, "item")),
      arrow_(new SortArrow(common.lvwItems)) {
    if (chkWholesale) chkWholesale->setObjectName("chkWholesale");
    auto* column = new QVBoxLayout(screen);
    column->addLayout(head(words, common));
    column->addLayout(listTitle(common));
    column->addWidget(common.lvwItems, 1);
    column->addLayout(common.foot({cmdServe}));
    setTabStops(
        common.tabStops(chkWholesale ? QList<QWidget*>{chkWholesale} : QList<QWidget*>{}, {cmdServe}));
    form::setAccessibleFromTexts(screen);
}

QList<ListColumn> orderColumns(const char* quantityHeading, const char* lastHeading) {
    QList<ListColumn> columns{{"Item Code", 11, ListColumn::Text}, {"Description", 36, ListColumn::Text},
                              {"Order", 6, ListColumn::Number},    {quantityHeading, 6, ListColumn::Number},
                              {"Unit", 6, ListColumn::Text},       {"Unit Price", 11, ListColumn::Number},
                              {"Discount", 7, ListColumn::Number}, {"Net Price", 11, ListColumn::Number},
                              {"Total", 12, ListColumn::Number}};
    if (lastHeading) columns.append({lastHeading, 12, ListColumn::Number});
    return columns;
}

QGridLayout* OrderControls::head(const OrderScreen& words, const DocumentControls& common) const {
    QGridLayout* grid = common.head();
    if (chkWholesale) grid->addWidget(chkWholesale, 1, 2);
    form::row(grid, 0, 3, "Term :", common.txtTerm);
    field_width::fix(txtBalance, field_width::figure);
    form::row(grid, 1, 3, "Book Balance :", txtBalance);
    form::row(grid, 2, 3, words.document.balanceLabel, common.txtCustomerBalance);
    if (txtCreditLimit) field_width::fix(txtCreditLimit, field_width::figure);
    if (txtCreditLimit) form::row(grid, 3, 3, "Credit Limit :", txtCreditLimit);
    return grid;
}

QLayout* OrderControls::listTitle(const DocumentControls& common) const {
    QHBoxLayout* row = common.listTitle();
    row->addWidget(arrow_->lblNotice);
    return row;
}

void OrderControls::showNewDocument(bool isNew) {
    if (!chkWholesale) return;
    chkWholesale->setVisible(isNew);
    chkWholesale->setChecked(false);
}
