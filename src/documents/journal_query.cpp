#include "documents/journal_query.h"

#include "platform/parsing.h"

namespace {
const QString whereMark = " WHERE ";
const QString andMark = " AND ";

QString printedTest(bool printed) { return printed ? "Printed = True" : "Printed = False"; }

Box cannotCompare(const JournalTables& tables, const SearchField& field, const QString& text) {
    const bool isDate = field.kind == SearchField::Date;
    if (const char* own = isDate ? tables.notADate : tables.notAnAmount) return exclamation("Error!", own);
    return exclamation("Error...", QString("\"%1\" is not %2 and cannot be compared with %3.")
                                       .arg(text, isDate ? "a date" : "an amount", field.caption));
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

QString JournalQuery::order() const { return sorts() ? tail_ : filteredOrder_; }

void JournalQuery::setPrintedFilter(bool printed, bool searching) {
    tail_ = (searching ? andMark : whereMark) + printedTest(printed);
}

std::optional<Fault> JournalQuery::search(const QString& caption, const QString& text, bool exact) {
    const QString value = trim(text);
    if (value.isEmpty()) return {};
    const SearchField* field = findField(tables_.fields, trim(caption));
    if (!field) return Fault{exclamation("Error!", "Criteria does not exist!"), "cboSearch"};
    const std::optional<Sql> clause = comparison(*field, value, exact);
    if (!clause) return Fault{cannotCompare(tables_, *field, value), "txtSearch"};
    search_ = Sql(whereMark) + *clause;
    fitTailToSearch();
    return {};
}

// A filter that was set before there was a search goes on behind the search clause.
void JournalQuery::fitTailToSearch() {
    if (tail_.isEmpty()) tail_ = tables_.searchOrder;
    if (tail_.startsWith(whereMark)) tail_ = andMark + tail_.mid(whereMark.size());
}
