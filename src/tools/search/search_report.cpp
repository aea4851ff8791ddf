#include "tools/search/search_report.h"

#include "platform/masks.h"
#include "reports/frame/report_query.h"
#include "reports/lists/plain_list.h"
#include "reports/lists/prtContactList.h"
#include "reports/lists/prtItemList.h"

namespace {
constexpr const char* notApplicable = "---NA---";

// Its lines are filled by the journal, as those of the list on the screen.
const ReportLayout& prtBookFound() {
    static const ReportLayout layout{
        "prtBookFound", "Journal Books...", letterPortrait(750, 750, 10680),
        plainList::sections("Journal Books...", 10680,
                            {{"Reference", 90, 1530, "Reference", ""},
                             {"Date", 1710, 1080, "Date", ""},
                             {"Term", 2880, 990, "Term", ""},
                             {"Due Date", 3960, 1080, "DueDate", ""},
                             {"Amount", 5130, 1350, "Amount", "", mask::amount, true},
                             {"Book Balance", 6570, 1350, "Balance", "", mask::amount, true},
                             {"Contact Name", 8010, 2580, "ContactName", "ContactName"}})};
    return layout;
}

FormatEvent lineOf(const SearchJournal& journal) {
    return [&journal](const ReportSource& row, SectionFields& fields) {
        const QDate date = row.dateTime(journal.date).date();
        const Currency terms = row.currency("Terms");
        const QDate due = date.addDays(terms.tenThousandths() / 10000);
        const auto ifTerms = [&](const QString& text) { return journal.hasTerms ? text : notApplicable; };
        fields.setText("txtReference", row.text(journal.reference));
        fields.setText("txtDate", formatDate(date));
        fields.setText("txtTerm", ifTerms(terms.toPlainText() + " Days"));
        fields.setText("txtDueDate", ifTerms(formatDate(due)));
        fields.setText("txtAmount", formatNumber(row.currency(journal.amount), mask::amount));
        fields.setText("txtBalance", journal.hasTerms ? formatNumber(row.currency("Balance"), mask::amount)
                                                      : QString(notApplicable));
    };
}

QString countLine(Connection& store, const Search& search, const char* what) {
    const Sql count = Sql("SELECT COUNT(*) AS Ihap FROM " + search.from) + search.where;
    return QString("There are %1 Records in the %2 Database...")
        .arg(formatCount(store.execute(count).integer("Ihap")), what);
}
}  // namespace

std::optional<ReportJobParts> searchReport(Connection& store, const Search& search) {
    if (search.journal)
        return reportOfQuery(store, prtBookFound(), search.statement(),
                             {{on(SectionKind::PageHeader),
                               plainList::headingEvent(store, {}, QString(search.journal->name) + " Search")},
                              {on(SectionKind::Detail), lineOf(*search.journal)}});
    if (search.kind->followsKeys)
        return contactListReport(store, search.statement(), countLine(store, search, "Contact Master File"));
    return itemListReport(store, search.statement(), countLine(store, search, "Item Master File"));
}
