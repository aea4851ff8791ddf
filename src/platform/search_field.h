#pragma once
#include "platform/store/sql.h"

#include <optional>

// One entry of a list of search criteria: what a person chooses it by, the column that it looks in, and how
// what is typed is compared.
struct SearchField {
    const char* caption;
    const char* column;
    enum Kind {
        Text,      // found anywhere in the column, or compared whole
        Whole,     // compared whole
        TwoWords,  // two texts, each found anywhere
        Date,
        Amount,
        Number,  // a key that is a number: found anywhere in its digits, or compared whole
        Choice,  // not typed: it has a list of its own
    } kind = Text;
};

// By its caption; null when there is none.
const SearchField* findField(const QList<SearchField>& fields, const QString& caption);
QStringList captionsOf(const QList<SearchField>& fields);

// The column compared with what was typed, "RefNo LIKE ?" or "RefNo = ?"; none when the column cannot take
// it. Texts are compared as they stand. whole: not anywhere, where the field has the choice.
std::optional<Sql> comparison(const SearchField& field, const QString& typed, bool whole);
