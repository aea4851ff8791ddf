#include "platform/search_field.h"

#include "platform/parsing.h"

#include <QStringList>

namespace {
Sql found(const SearchField& field, const QString& text) {
    return {QString(field.column) + " LIKE ?", {anywhere(text)}};
}

Sql equals(const SearchField& field, const QVariant& value) {
    return {QString(field.column) + " = ?", {value}};
}

template <class Value>
std::optional<Sql> equalsParsed(const SearchField& field, const std::optional<Value>& value) {
    if (!value) return {};
    return equals(field, bound(*value));
}

std::optional<Sql> equalsNumber(const SearchField& field, const QString& text) {
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber) return {};
    return equals(field, number);
}
}  // namespace

const SearchField* findField(const QList<SearchField>& fields, const QString& caption) {
    for (const SearchField& field : fields)
        if (caption == field.caption) return &field;
    return nullptr;
}

QStringList captionsOf(const QList<SearchField>& fields) {
    QStringList captions;
    for (const SearchField& field : fields) captions << field.caption;
    return captions;
}

std::optional<Sql> comparison(const SearchField& field, const QString& typed, bool whole) {
    switch (field.kind) {
        case SearchField::Date:
            return equalsParsed(field, parseDate(typed));
        case SearchField::Amount:
            return equalsParsed(field, parseNumber(typed));
        case SearchField::Number:
            return whole ? equalsNumber(field, typed) : found(field, typed);
        case SearchField::Whole:
            return equals(field, typed);
        default:
            return whole ? equals(field, typed) : found(field, typed);
    }
}
