#include "masters/master_fields.h"

#include "foundation/shared_routines.h"
#include "masters/unit_field.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QCheckBox>

namespace {
KeyFilter keysOf(MasterField::Kind kind) {
    switch (kind) {
        case MasterField::Days:
            return keys::wholeNumber();
        case MasterField::Amount:
        case MasterField::Price:
            return keys::amount();
        case MasterField::Date:
            return keys::date();
        default:
            return keys::freeText();
    }
}

// In characters, as far as there is room.
int widthOf(const MasterField& field) {
    switch (field.kind) {
        case MasterField::Days:
        case MasterField::Percent:
            return field_width::count;
        case MasterField::Amount:
        case MasterField::Price:
            return field_width::figure;
        case MasterField::Date:
            return field_width::date;
        default:
            return std::min(field.capacity, field_width::remarks);
    }
}

bool isFigure(MasterField::Kind kind) { return kind >= MasterField::Days && kind <= MasterField::Price; }

QString lookedUp(Connection& store, const MasterLookup& lookup, const QString& key) {
    return LookupField(store, lookup.key, lookup.table, lookup.shown, key, LookupMode::DisplayText);
}

void fillList(ComboBox* list, const MasterLookup& lookup) {
    const QString order = QString(" ORDER BY ") + lookup.shown;
    const QString filter = *lookup.filter ? QString(lookup.filter) : "1=1";
    LoadComboBoxUDF(lookup.shown, lookup.table, list, filter + order, false);
}

QString shown(Connection& store, const MasterField& field, const Recordset& row) {
    switch (field.kind) {
        case MasterField::UpperShown:
            return row.trimmed(field.column).toUpper();
        case MasterField::Lookup:
            return lookedUp(store, field.lookup, row.trimmed(field.column));
        case MasterField::Days:
            return row.currency(field.column).toPlainText();
        case MasterField::Percent:
            return formatNumber(row.currency(field.column), mask::discount);
        case MasterField::Amount:
            return formatNumber(row.currency(field.column), mask::amount);
        case MasterField::Price:
            return formatNumber(row.currency(field.column), mask::price);
        case MasterField::Date:
            return formatDate(row.date(field.column));
        case MasterField::Flag:
            return row.flag(field.column) ? "1" : "";
        default:
            return row.trimmed(field.column);
    }
}

QString numberShape(const QString& text, const char* numberMask) {
    const auto number = parseNumber(text);
    return number ? formatNumber(*number, numberMask) : text;
}

QString dateShape(const QString& text) {
    const auto date = parseDate(text);
    return date ? formatDate(*date) : text;
}

TextBox* dateBox(const MasterField& field) {
    auto* made = new DateBox(field.control);
    if (field.invalidDate) made->setRefusal(errorFault(field.invalidDate, field.control));
    return made;
}

// The text after the field was left; what does not convert stays as it was typed.
QString shapeOf(MasterField::Kind kind, const QString& text) {
    switch (kind) {
        case MasterField::Upper:
        case MasterField::UpperShown:
        case MasterField::Unit:
            return text.toUpper();
        case MasterField::Amount:
            return numberShape(text, mask::amount);
        case MasterField::Price:
            return numberShape(text, mask::price);
        case MasterField::Date:
            return dateShape(text);
        default:
            return text;
    }
}
}  // namespace

MasterFields::MasterFields(const QList<MasterField>& fields, QGridLayout* layout, QObject* parent)
    : QObject(parent), fields_(fields) {
    for (const MasterField& field : fields_) add(field, layout);
    for (int pair = 0; pair < 3; ++pair) layout->setColumnStretch(2 * pair + 1, 1);
    clear();
    lock();
}

void MasterFields::add(const MasterField& field, QGridLayout* layout) {
    QWidget* made = makeControl(field);
    const int column = 2 * field.pair, span = 2 * field.pairs - 1;
    if (field.kind == MasterField::Flag) return layout->addWidget(made, field.line, column + 1);
    layout->addWidget(form::label(field.label, made), field.line, column);
    layout->addLayout(field_width::upTo(made, widthOf(field)), field.line, column + 1, 1, span);
}

QWidget* MasterFields::makeControl(const MasterField& field) {
    if (field.kind == MasterField::Lookup) return makeCombo(field);
    if (field.kind != MasterField::Flag) return makeBox(field);
    auto* check = new QCheckBox(field.label);
    check->setObjectName(field.control);
    return flags_[field.control] = check;
}

TextBox* MasterFields::makeBox(const MasterField& field) {
    TextBox* made = field.kind == MasterField::Date ? dateBox(field) : new TextBox(field.control);
    made->setKeyFilter(keysOf(field.kind));
    made->setCapacity(field.capacity);
    if (isFigure(field.kind)) made->setAlignment(Qt::AlignRight);
    connect(made, &TextBox::focusLost, this, [this, field] { reshape(field); });
    return boxes_[field.control] = made;
}

ComboBox* MasterFields::makeCombo(const MasterField& field) {
    auto* made = new ComboBox(field.control, ComboBox::Open);
    made->setKeyFilter(keysOf(field.kind));
    made->setCapacity(field.capacity);
    made->setFiller([made, lookup = field.lookup] { fillList(made, lookup); });
    return combos_[field.control] = made;
}

QWidget* MasterFields::control(const MasterField& field) const {
    if (field.kind == MasterField::Flag) return flags_.value(field.control);
    if (field.kind == MasterField::Lookup) return combos_.value(field.control);
    return boxes_.value(field.control);
}

void MasterFields::reshape(const MasterField& field) {
    TextBox* left = box(field.control);
    if (field.kind == MasterField::Unit) return completeUnit(left);
    const QString text = shapeOf(field.kind, left->text());
    if (text != left->text()) left->setText(text);
}

QString MasterFields::text(const QString& control) const {
    if (const ComboBox* list = combo(control)) return list->text();
    return box(control)->text();
}

bool MasterFields::flag(const QString& control) const { return flags_.value(control)->isChecked(); }

void MasterFields::setText(const QString& control, const QString& text) {
    if (ComboBox* list = combo(control))
        list->setText(text);
    else
        box(control)->setText(text);
}

void MasterFields::put(const MasterField& field, const QString& text) {
    if (field.kind == MasterField::Flag)
        flags_.value(field.control)->setChecked(!text.isEmpty());
    else
        setText(field.control, text);
}

QString MasterFields::content(const MasterField& field) const {
    if (field.kind == MasterField::Flag) return flag(field.control) ? "1" : "";
    return shapeOf(field.kind, trim(text(field.control)));
}

QSet<QString> MasterFields::changedColumns() const {
    QSet<QString> changed;
    for (const MasterField& field : fields_)
        if (content(field) != shown_.value(field.control)) changed << field.column;
    return changed;
}

void MasterFields::clear() {
    for (const MasterField& field : fields_)
        if (!field.survivesClear) put(field, field.blank);
}

void MasterFields::blankStamps() {
    for (const MasterField& field : fields_)
        if (field.access == MasterField::Never) put(field, {});
}

void MasterFields::blankForNew() {
    for (const MasterField& field : fields_)
        put(field, field.survivesClear && field.kind == MasterField::Date ? formatDate(Clock::today())
                                                                          : field.blank);
}

void MasterFields::show(Connection& store, const Recordset& row) {
    for (const MasterField& field : fields_) {
        put(field, shown(store, field, row));
        shown_[field.control] = content(field);
    }
}

void MasterFields::unlock(bool newRecord) {
    for (const MasterField& field : fields_)
        control(field)->setEnabled(field.access == MasterField::Open ||
                                   (newRecord && field.access == MasterField::NewOnly));
}

void MasterFields::lock() {
    for (const MasterField& field : fields_) control(field)->setEnabled(false);
}

void MasterFields::leave(QWidget* focused) {
    for (const MasterField& field : fields_)
        if (focused && focused == box(field.control)) return reshape(field);
}
