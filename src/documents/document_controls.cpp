#include "documents/document_controls.h"

#include "masters/field_widths.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/total_strip.h"

#include <QGuiApplication>

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
    txtRefDate = new DateBox(words_.dateName);
    txtRefDate->setKeyFilter(keys::freeText());
    txtRefDate->setRefusal(errorFault(words_.invalidDate, words_.dateName));
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
    list_look::sayWhenEmpty(lvwItems, QString("No lines yet. %1, or Insert in this list, adds one.")
                                          .arg(QString(words_.addCaption).remove(u'&')));
    cmdAdd = form::button("cmdAdd", words_.addCaption, "new");
    cmdEdit = form::button("cmdEdit", words_.editCaption, "edit");
    cmdRemove = form::button("cmdRemove", words_.removeCaption, "delete");
    txtAmount = readOnlyBox(words_.totalName, Qt::AlignRight);
    txtCount = readOnlyBox("txtCount", Qt::AlignRight);
    txtUpdatedBy = readOnlyBox("txtUpdatedBy");
    txtLastUpdate = readOnlyBox("txtLastUpdate");
}

QGridLayout* DocumentControls::head() const {
    field_width::fix(txtCode, field_width::number);
    for (TextBox* figure : {txtTerm, txtCustomerBalance}) field_width::fix(figure, field_width::figure);
    auto* grid = new QGridLayout;
    grid->setColumnStretch(2, 1);
    form::row(grid, 0, 0, words_.codeLabel, txtCode);
    grid->addWidget(number, 0, 2);
    form::row(grid, 1, 0, words_.dateLabel, txtRefDate);
    grid->addWidget(form::label(words_.contactLabel, cboCustomer), 2, 0);
    grid->addLayout(field_width::upTo(cboCustomer, field_width::name, cmdSearch), 2, 1, 1, 2);
    grid->addWidget(form::label("Remarks :", txtRemarks), 3, 0);
    grid->addLayout(field_width::upTo(txtRemarks, field_width::remarks), 3, 1, 1, 2);
    return grid;
}

QHBoxLayout* DocumentControls::listTitle() const {
    auto* row = new QHBoxLayout;
    row->addWidget(form::label(words_.listLabel, lvwItems));
    row->addSpacing(lvwItems->fontMetrics().height());
    row->addWidget(form::label(words_.countLabel, txtCount));
    field_width::fix(txtCount, 5);
    row->addWidget(txtCount);
    row->addStretch();
    return row;
}

QLayout* DocumentControls::foot(const QList<QPushButton*>& moreButtons) const {
    field_width::fix(txtUpdatedBy, field_width::userCode);
    field_width::fix(txtLastUpdate, field_width::date);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdEdit, cmdRemove}) buttons->addWidget(button);
    for (QPushButton* button : moreButtons) buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(form::label("Updated By :", txtUpdatedBy));
    buttons->addWidget(txtUpdatedBy);
    buttons->addWidget(form::label("Last Update :", txtLastUpdate));
    buttons->addWidget(txtLastUpdate);
    auto* foot = new QVBoxLayout;
    foot->addWidget(
        new TotalStrip(lvwItems, words_.totalColumn, form::label("Total :", txtAmount), txtAmount));
    foot->addLayout(buttons);
    return foot;
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
