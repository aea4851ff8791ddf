#include "documents/number_entry.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"

#include <QHBoxLayout>
#include <QLabel>

// Together they hold what the number holds.
static constexpr int monthWidth = 2;
static constexpr int yearWidth = 4;
static constexpr int dashes = 2;

NumberEntry::NumberEntry(const numbering::SerialCounter& counter, const QString& incrementText)
    : counter_(counter) {
    setObjectName("numberEntry");
    txtMonthCode = new TextBox("txtMonthCode");
    txtSerialCode = new TextBox("txtSerialCode");
    txtYearCode = new TextBox("txtYearCode");
    lblReference = form::label("Reference :", txtMonthCode);
    lblReference->setObjectName("lblReference");
    cmdIncrement = form::imageButton("cmdIncrement", "next", incrementText);
    txtMonthCode->setKeyFilter(keys::wholeNumber());
    txtSerialCode->setKeyFilter(keys::wholeNumber());
    txtYearCode->setKeyFilter(keys::freeText());
    txtMonthCode->setCapacity(monthWidth);
    txtSerialCode->setCapacity(width::documentNo - monthWidth - yearWidth - dashes);
    txtYearCode->setCapacity(yearWidth);
    connectBoxes();
    layOut();
}

void NumberEntry::connectBoxes() {
    for (TextBox* box : {txtMonthCode, txtSerialCode, txtYearCode}) {
        connect(box, &TextBox::keyReleased, this, &NumberEntry::compose);
        connect(box, &TextBox::focusLost, this, &NumberEntry::compose);
    }
    connect(txtMonthCode, &TextBox::entered, this, [this] { txtSerialCode->setFocus(); });
    connect(txtSerialCode, &TextBox::entered, this, [this] { txtYearCode->setFocus(); });
    connect(txtYearCode, &TextBox::entered, this, &NumberEntry::left);
    connect(cmdIncrement, &QToolButton::clicked, this, [this] {
        guarded([this] { txtSerialCode->setText(numbering::nextSerial(StoreConnection(), counter_)); });
        compose();
    });
}

void NumberEntry::layOut() {
    txtMonthCode->setAccessibleName("Month of the number");
    txtSerialCode->setAccessibleName("Serial of the number");
    txtYearCode->setAccessibleName("Year of the number");
    txtMonthCode->setMaximumWidth(form::charactersWide(txtMonthCode, 5));
    txtYearCode->setMaximumWidth(form::charactersWide(txtYearCode, 7));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(lblReference);
    row->addWidget(txtMonthCode);
    row->addWidget(form::label("-"));
    row->addWidget(txtSerialCode, 1);
    row->addWidget(form::label("-"));
    row->addWidget(txtYearCode);
    row->addWidget(cmdIncrement);
}

void NumberEntry::propose() {
    const QDate today = Clock::today();
    txtMonthCode->setText(formatDate(today, "mm"));
    txtSerialCode->setText(numbering::nextSerial(StoreConnection(), counter_));
    txtYearCode->setText(formatDate(today, "yyyy"));
    compose();
}

QString NumberEntry::number() const {
    return numbering::documentNumber(trim(txtMonthCode->text()), trim(txtSerialCode->text()),
                                     trim(txtYearCode->text()));
}
