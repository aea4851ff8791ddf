#include "documents/document_controls.h"

#include "masters/field_widths.h"
#include "platform/ui/form.h"

DocumentControls::DocumentControls(const DocumentScreen& words) : words_(words) {
    makeHead();
    makeList();
}

static TextBox* freeTextBox(const char* name, int capacity) {
    auto* box = new TextBox(name);
    box->setKeyFilter(keys::freeText());
    box->setCapacity(capacity);
    return box;
}

void DocumentControls::makeHead() {
    txtCode = freeTextBox("txtCode", width::documentNo);
    if (std::holds_alternative<numbering::RowKey>(words_.number)) txtCode->setKeyFilter(keys::wholeNumber());
    number = NumberEntry::make(words_.number, words_.incrementText);
    txtRefDate = freeTextBox(words_.dateName, width::date);
    cboCustomer = new ComboBox("cboCustomer", ComboBox::Open);
    cboCustomer->setKeyFilter(keys::freeText());
    cboCustomer->setCapacity(width::contactName);
    cmdSearch = form::imageButton(words_.searchName, "search", words_.searchText);
    txtRemarks = freeTextBox("txtRemarks", width::remarks);
    txtTerm = readOnlyBox("txtTerm");
    txtCustomerBalance = readOnlyBox("txtCustomerBalance", Qt::AlignRight);
}

void DocumentControls::makeList() {
    lvwItems = new ListView("lvwItems", words_.columns);
    cmdAdd = form::button("cmdAdd", words_.addCaption, "new");
    cmdEdit = form::button("cmdEdit", words_.editCaption, "edit");
    cmdRemove = form::button("cmdRemove", words_.removeCaption, "delete");
    txtAmount = readOnlyBox(words_.totalName, Qt::AlignRight);
    txtCount = readOnlyBox("txtCount", Qt::AlignRight);
    txtUpdatedBy = readOnlyBox("txtUpdatedBy");
    txtLastUpdate = readOnlyBox("txtLastUpdate");
}

QGridLayout* DocumentControls::head() const {
    auto* contact = new QHBoxLayout;
    contact->addWidget(cboCustomer, 1);
    contact->addWidget(cmdSearch);
    auto* grid = new QGridLayout;
    form::row(grid, 0, 0, words_.codeLabel, txtCode);
    grid->addWidget(number, 0, 2);
    form::row(grid, 1, 0, words_.dateLabel, txtRefDate);
    grid->addWidget(form::label(words_.contactLabel, cboCustomer), 2, 0);
    grid->addLayout(contact, 2, 1, 1, 2);
    form::row(grid, 3, 0, "Remarks :", txtRemarks, 2);
    return grid;
}

QHBoxLayout* DocumentControls::listTitle() const {
    auto* row = new QHBoxLayout;
    row->addWidget(form::label(words_.listLabel, lvwItems));
    row->addStretch();
    return row;
}

QGridLayout* DocumentControls::foot(const QList<QPushButton*>& moreButtons) const {
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdEdit, cmdRemove}) buttons->addWidget(button);
    for (QPushButton* button : moreButtons) buttons->addWidget(button);
    buttons->addStretch();
    auto* grid = new QGridLayout;
    grid->addLayout(buttons, 0, 0, 1, 4);
    form::row(grid, 0, 4, "Total :", txtAmount);
    form::row(grid, 1, 0, "Updated By :", txtUpdatedBy);
    form::row(grid, 1, 2, "Last Update :", txtLastUpdate);
    form::row(grid, 1, 4, words_.countLabel, txtCount);
    for (int column : {1, 3, 5}) grid->setColumnStretch(column, 1);
    return grid;
}

QList<QWidget*> DocumentControls::tabStops(const QList<QWidget*>& afterDate,
                                           const QList<QWidget*>& atEnd) const {
    return QList<QWidget*>{txtCode} + number->tabStops() + QList<QWidget*>{txtRefDate} + afterDate +
           QList<QWidget*>{cboCustomer, cmdSearch, txtRemarks, lvwItems, cmdAdd, cmdEdit, cmdRemove} + atEnd;
}

static void enableReadably(QWidget* field, bool enabled) {
    QPalette colours = QGuiApplication::palette();
    colours.setColor(QPalette::Disabled, QPalette::Text, colours.color(QPalette::Active, QPalette::Text));
    colours.setColor(QPalette::Disabled, QPalette::Base, colours.color(QPalette::Active, QPalette::Window));
    field->setPalette(colours);
    field->setEnabled(enabled);
}

void DocumentControls::showNewDocument(bool isNew) {
    number->setVisible(isNew);
    for (QWidget* field : QList<QWidget*>{txtCode, txtRefDate, cboCustomer, cmdSearch})
        enableReadably(field, isNew);
}

void setTabStops(const QList<QWidget*>& stops) {
    for (qsizetype i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops[i - 1], stops[i]);
}
