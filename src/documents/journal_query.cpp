#include "documents/journal_query.h"

#include "platform/parsing.h"

namespace {
const QString whereMark = " WHERE ";
const QString andMark = " AND ";

QString printedTest(bool printed) { return printed ? "Printed = True" : "Printed = False"; }

const JournalCategory* findCategory(const QList<JournalCategory>& categories, const QString& name) {
    for (const JournalCategory& category : categories)
        if (name == category.name) return &category;
    return nullptr;
}

Sql textClause(const QString& column, const QString& text, bool exact) {
    if (exact) return {whereMark + column + " = ?", {text}};
    return {whereMark + column + " LIKE ?", {anywhere(text)}};
}

// Null when what was typed cannot be compared with the column.
template <class Value>
std::optional<Sql> equals(const QString& column, const std::optional<Value>& value) {
    if (!value) return {};
    return Sql{whereMark + column + " = ?", {bound(*value)}};
}

std::optional<Sql> clauseFor(const JournalCategory& category, const QString& text, bool exact) {
    switch (category.kind) {
        case JournalCategory::Date:
            return equals(category.column, parseDate(text));
        case JournalCategory::Amount:
            return equals(category.column, parseNumber(text));
        case JournalCategory::Text:
            break;
    }
    return textClause(category.column, text, exact);
}

Box cannotCompare(const JournalTables& tables, const JournalCategory& category, const QString& text) {
    const bool isDate = category.kind == JournalCategory::Date;
    if (const char* own = isDate ? tables.notADate : tables.notAnAmount) return exclamation("Error!", own);
    return exclamation("Error...", QString("\"%1\" is not %2 and cannot be compared with %3.")
                                       .arg(text, isDate ? "a date" : "an amount", category.name));
}
}  // namespace

JournalQuery::JournalQuery(const JournalTables& tables) : tables_(tables) {}

QString JournalQuery::columns() const { return QString(tables_.table) + ".*, tblContactMaster.ContactName"; }

QString JournalQuery::from() const {
    const QString table = tables_.table;
    return "tblContactMaster INNER JOIN " + table + " ON tblContactMaster.ContactID = " + table + '.' +
           tables_.contactColumn;
}

Sql JournalQuery::where() const { return sorts() ? search_ : search_ + Sql{tail_}; }

QString JournalQuery::order() const { return sorts() ? tail_ : QString(); }

void JournalQuery::setPrintedFilter(bool printed, bool searching) {
    tail_ = (searching ? andMark : whereMark) + printedTest(printed);
}

std::optional<Fault> JournalQuery::search(const QString& category, const QString& text, bool exact) {
    const QString value = trim(text);
    if (value.isEmpty()) return {};
    const JournalCategory* found = findCategory(tables_.categories, trim(category));
    if (!found) return Fault{exclamation("Error!", "Criteria does not exist!"), "cboSearch"};
    const std::optional<Sql> clause = clauseFor(*found, value, exact);
    if (!clause) return Fault{cannotCompare(tables_, *found, value), "txtSearch"};
    search_ = *clause;
    fitTailToSearch();
    return {};
}

// A filter that was set before there was a search goes on behind the search clause.
void JournalQuery::fitTailToSearch() {
    if (tail_.isEmpty()) tail_ = tables_.searchOrder;
    if (tail_.startsWith(whereMark)) tail_ = andMark + tail_.mid(whereMark.size());
}
