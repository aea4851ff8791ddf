#include "documents/order_controls.h"

#include "masters/field_widths.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

OrderControls::OrderControls(const OrderScreen& words, QWidget* screen) {
    makeHead(words);
    makeList(words);
    makeButtons(words);
    auto* column = new QVBoxLayout(screen);
    column->addLayout(head(words));
    column->addLayout(listTitle());
    column->addWidget(lvwItems, 1);
    column->addLayout(foot());
    orderTabs();
    form::setAccessibleFromTexts(screen);
}

static TextBox* freeTextBox(const char* name, int capacity) {
    auto* box = new TextBox(name);
    box->setKeyFilter(keys::freeText());
    box->setCapacity(capacity);
    return box;
}

static TextBox* amountShown(const char* name) { return readOnlyBox(name, Qt::AlignRight); }

void OrderControls::makeHead(const OrderScreen& words) {
    txtCode = freeTextBox("txtCode", width::documentNo);
    number = new NumberEntry(words.book->serial, words.incrementText);
    txtRefDate = freeTextBox("txtRefDate", width::date);
    cboCustomer = new ComboBox("cboCustomer", ComboBox::Open);
    cboCustomer->setKeyFilter(keys::freeText());
    cboCustomer->setCapacity(width::contactName);
    cmdSearch = form::imageButton("cmdSearch", "search", words.searchText);
    txtRemarks = freeTextBox("txtRemarks", width::remarks);
    txtTerm = readOnlyBox("txtTerm");
    txtBalance = amountShown("txtBalance");
    txtCustomerBalance = amountShown("txtCustomerBalance");
    txtCreditLimit = words.showsCreditLimit ? amountShown("txtCreditLimit") : nullptr;
    chkWholesale = words.book->sells ? new QCheckBox("Use &Wholesale Price") : nullptr;
    if (chkWholesale) chkWholesale->setObjectName("chkWholesale");
}

static QList<ListColumn> listColumns(const OrderScreen& words) {
    QList<ListColumn> columns{
        {"Item Code", 12, ListColumn::Text}, {"Description", 28, ListColumn::Text},
        {"Order", 8, ListColumn::Number},    {words.quantityHeading, 9, ListColumn::Number},
        {"Unit", 7, ListColumn::Text},       {"Unit Price", 12, ListColumn::Number},
        {"Discount", 9, ListColumn::Number}, {"Net Price", 12, ListColumn::Number},
        {"Total", 13, ListColumn::Number}};
    if (words.lastHeading) columns.append({words.lastHeading, 12, ListColumn::Number});
    return columns;
}

void OrderControls::makeList(const OrderScreen& words) {
    lvwItems = new ListView("lvwItems", listColumns(words));
    lvwItems->setSortsByHeader(true);
    lvwItems->header()->setStretchLastSection(false);
    lvwItems->header()->setSectionResizeMode(OrderLine::Description, QHeaderView::Stretch);
    lvwItems->setAccessibleName("Orders");
    lblNotice = form::label("Click on Column Header to Sort.");
    lblNotice->setObjectName("lblNotice");
    imgArrow = new QLabel(lvwItems->header());
    imgArrow->setObjectName("imgArrow");
    imgArrow->hide();
    const auto follow = [this] { placeArrow(); };
    QObject::connect(lvwItems->header(), &QHeaderView::sectionResized, imgArrow, follow);
    QObject::connect(lvwItems->horizontalScrollBar(), &QScrollBar::valueChanged, imgArrow, follow);
    txtAmount = amountShown("txtAmount");
    txtCount = amountShown("txtCount");
}

void OrderControls::makeButtons(const OrderScreen& words) {
    cmdAdd = form::button("cmdAdd", "&Add Item", "new");
    cmdEdit = form::button("cmdEdit", "&Edit Item", "edit");
    cmdRemove = form::button("cmdRemove", "&Remove Item", "delete");
    cmdServe = form::button(words.serveName, words.serveCaption, "item");
    txtUpdatedBy = readOnlyBox("txtUpdatedBy");
    txtLastUpdate = readOnlyBox("txtLastUpdate");
}

QLayout* OrderControls::contact() const {
    auto* row = new QHBoxLayout;
    row->addWidget(cboCustomer, 1);
    row->addWidget(cmdSearch);
    return row;
}

QGridLayout* OrderControls::head(const OrderScreen& words) const {
    auto* grid = new QGridLayout;
    form::row(grid, 0, 0, words.codeLabel, txtCode);
    grid->addWidget(number, 0, 2);
    form::row(grid, 1, 0, words.dateLabel, txtRefDate);
    grid->addWidget(form::label(words.contactLabel, cboCustomer), 2, 0);
    grid->addLayout(contact(), 2, 1, 1, 2);
    form::row(grid, 3, 0, "Remarks :", txtRemarks, 2);
    if (chkWholesale) grid->addWidget(chkWholesale, 1, 2);
    form::row(grid, 0, 3, "Term :", txtTerm);
    form::row(grid, 1, 3, "Book Balance :", txtBalance);
    form::row(grid, 2, 3, words.balanceLabel, txtCustomerBalance);
    if (txtCreditLimit) form::row(grid, 3, 3, "Credit Limit :", txtCreditLimit);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 3);
    grid->setColumnStretch(4, 2);
    return grid;
}

QLayout* OrderControls::listTitle() const {
    auto* row = new QHBoxLayout;
    row->addWidget(form::label("Orders :", lvwItems));
    row->addStretch();
    row->addWidget(lblNotice);
    return row;
}

QLayout* OrderControls::foot() const {
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdEdit, cmdRemove, cmdServe}) buttons->addWidget(button);
    buttons->addStretch();
    auto* grid = new QGridLayout;
    grid->addLayout(buttons, 0, 0, 1, 4);
    form::row(grid, 0, 4, "Total :", txtAmount);
    form::row(grid, 1, 0, "Updated By :", txtUpdatedBy);
    form::row(grid, 1, 2, "Last Update :", txtLastUpdate);
    form::row(grid, 1, 4, "No. of Orders :", txtCount);
    for (int column : {1, 3, 5}) grid->setColumnStretch(column, 1);
    return grid;
}

void OrderControls::orderTabs() const {
    QList<QWidget*> order{
        txtCode,   number->txtMonthCode, number->txtSerialCode, number->txtYearCode, number->cmdIncrement,
        txtRefDate};
    if (chkWholesale) order << chkWholesale;
    order << cboCustomer << cmdSearch << txtRemarks << lvwItems << cmdAdd << cmdEdit << cmdRemove << cmdServe;
    for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

// What a stored document cannot change is still there to be read.
static void enableReadably(QWidget* field, bool enabled) {
    QPalette colours = QGuiApplication::palette();
    colours.setColor(QPalette::Disabled, QPalette::Text, colours.color(QPalette::Active, QPalette::Text));
    colours.setColor(QPalette::Disabled, QPalette::Base, colours.color(QPalette::Active, QPalette::Window));
    field->setPalette(colours);
    field->setEnabled(enabled);
}

void OrderControls::showNewDocument(bool isNew) {
    number->setVisible(isNew);
    for (QWidget* field : QList<QWidget*>{txtCode, txtRefDate, cboCustomer, cmdSearch})
        enableReadably(field, isNew);
    if (!chkWholesale) return;
    chkWholesale->setVisible(isNew);
    chkWholesale->setEnabled(true);
    chkWholesale->setChecked(false);
}

void OrderControls::showSortArrow(int column, Qt::SortOrder order) {
    arrowColumn_ = column;
    lvwItems->header()->setSortIndicatorShown(false);
    const int size = lvwItems->fontMetrics().height();
    imgArrow->setPixmap(
        bundledIcon(order == Qt::AscendingOrder ? "arrow-up" : "arrow-down").pixmap(size, size));
    imgArrow->setAccessibleName(order == Qt::AscendingOrder ? "Sorted upwards" : "Sorted downwards");
    imgArrow->show();
    placeArrow();
    lblNotice->hide();
}

void OrderControls::hideSortArrow() {
    arrowColumn_ = -1;
    imgArrow->hide();
    lblNotice->show();
}

// At the end of its heading that the text leaves free.
void OrderControls::placeArrow() {
    if (arrowColumn_ < 0) return;
    const QHeaderView* header = lvwItems->header();
    imgArrow->adjustSize();
    const int left = header->sectionViewportPosition(arrowColumn_);
    const bool textStandsRight = arrowColumn_ >= OrderLine::Ordered && arrowColumn_ != OrderLine::Unit;
    const int free = header->sectionSize(arrowColumn_) - imgArrow->width() - 2;
    imgArrow->move(textStandsRight ? left + 2 : left + free, (header->height() - imgArrow->height()) / 2);
}
