#include "documents/number_entry.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {
// Together they hold what the number holds.
constexpr int monthWidth = 2;
constexpr int yearWidth = 4;
constexpr int dashes = 2;
constexpr int serialWidth = 9;  // a counter has no more digits

// A peeked serial in three boxes: month - serial - year.
class SerialEntry : public NumberEntry {
  public:
    SerialEntry(const numbering::SerialCounter& counter, const QString& incrementText);

    void propose() override;
    QString serial() const override { return trim(txtSerialCode->text()); }
    QList<QWidget*> tabStops() const override {
        return {txtMonthCode, txtSerialCode, txtYearCode, cmdIncrement};
    }

  private:
    void peek() { txtSerialCode->setText(numbering::nextSerial(StoreConnection(), counter_)); }
    void compose();
    void connectBoxes();
    void layOut();

    numbering::SerialCounter counter_;
    TextBox* txtMonthCode = new TextBox("txtMonthCode");
    TextBox* txtSerialCode = new TextBox("txtSerialCode");
    TextBox* txtYearCode = new TextBox("txtYearCode");
};

SerialEntry::SerialEntry(const numbering::SerialCounter& counter, const QString& incrementText)
    : NumberEntry(incrementText), counter_(counter) {
    txtMonthCode->setKeyFilter(keys::wholeNumber());
    txtSerialCode->setKeyFilter(keys::wholeNumber());
    txtYearCode->setKeyFilter(keys::freeText());
    txtMonthCode->setCapacity(monthWidth);
    txtSerialCode->setCapacity(width::documentNo - monthWidth - yearWidth - dashes);
    txtYearCode->setCapacity(yearWidth);
    connectBoxes();
    layOut();
}

void SerialEntry::compose() {
    emit composed(numbering::documentNumber(trim(txtMonthCode->text()), trim(txtSerialCode->text()),
                                            trim(txtYearCode->text())));
}

void SerialEntry::connectBoxes() {
    for (TextBox* box : {txtMonthCode, txtSerialCode, txtYearCode}) {
        connect(box, &TextBox::keyReleased, this, &SerialEntry::compose);
        connect(box, &TextBox::focusLost, this, &SerialEntry::compose);
    }
    connect(txtMonthCode, &TextBox::entered, this, [this] { txtSerialCode->setFocus(); });
    connect(txtSerialCode, &TextBox::entered, this, [this] { txtYearCode->setFocus(); });
    connect(txtYearCode, &TextBox::entered, this, &NumberEntry::left);
    connect(cmdIncrement, &QToolButton::clicked, this, [this] {
        guarded([this] { peek(); });
        compose();
    });
}

void SerialEntry::layOut() {
    txtMonthCode->setAccessibleName("Month of the number");
    txtSerialCode->setAccessibleName("Serial of the number");
    txtYearCode->setAccessibleName("Year of the number");
    field_width::fix(txtMonthCode, monthWidth);
    field_width::fix(txtSerialCode, serialWidth);
    field_width::fix(txtYearCode, yearWidth);
    QLabel* lblReference = form::label("Reference :", txtMonthCode);
    lblReference->setObjectName("lblReference");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(lblReference);
    row->addWidget(txtMonthCode);
    row->addWidget(form::label("-"));
    row->addWidget(txtSerialCode);
    row->addWidget(form::label("-"));
    row->addWidget(txtYearCode);
    row->addWidget(cmdIncrement);
    row->addStretch();
}

void SerialEntry::propose() {
    const QDate today = Clock::today();
    txtMonthCode->setText(formatDate(today, "mm"));
    peek();
    txtYearCode->setText(formatDate(today, "yyyy"));
    compose();
}

// A key that is taken: only the button, which takes a further one.
class KeyEntry : public NumberEntry {
  public:
    KeyEntry(const numbering::RowKey& key, const QString& incrementText)
        : NumberEntry(incrementText), key_(key) {
        connect(cmdIncrement, &QToolButton::clicked, this, [this] { guarded([this] { propose(); }); });
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins({});
        row->addWidget(cmdIncrement);
        row->addStretch();
    }

    void propose() override { emit composed(QString::number(numbering::nextKey(StoreConnection(), key_))); }

  private:
    numbering::RowKey key_;
};
}  // namespace

NumberEntry::NumberEntry(const QString& incrementText)
    : cmdIncrement(form::imageButton("cmdIncrement", "next", incrementText)) {
    setObjectName("numberEntry");
}

NumberEntry* NumberEntry::make(const NumberRule& rule, const QString& incrementText) {
    if (const auto* key = std::get_if<numbering::RowKey>(&rule)) return new KeyEntry(*key, incrementText);
    return new SerialEntry(std::get<numbering::SerialCounter>(rule), incrementText);
}
