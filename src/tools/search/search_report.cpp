#include "tools/search/search_report.h"

#include "platform/masks.h"
#include "reports/frame/credit_terms.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"
#include "reports/lists/prtContactList.h"
#include "reports/lists/prtItemList.h"

namespace {
constexpr const char* notApplicable = "---NA---";

// Its title comes with the run, its lines are filled by the journal, as those of the list on the screen.
const ReportLayout& prtBookFound() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtBookFound",
                    .caption = "Journal Books...",
                    .page = letterPortrait(750, 750, 10680),
                    .heading = {companyLine(), titleLine(""), addressLine(), phoneLine(), runDateLine()},
                    .headsTop = 1620,
                    .columns = {{"Reference", 90, 1530, "txtReference"},
                                {"Date", 1710, 1080, "txtDate"},
                                {"Term", 2880, 990, "txtTerm"},
                                {"Due Date", 3960, 1080, "txtDueDate"},
                                {"Amount", 5130, 1350, "txtAmount", Amount},
                                {"Book Balance", 6570, 1350, "txtBalance", Amount},
                                {"Contact Name", 8010, 2580, "ContactName"}}});
    return layout;
}

FormatEvent lineOf(const SearchJournal& journal) {
    return [&journal](const ReportSource& row, SectionFields& fields) {
        const QDate date = row.date(journal.date);
        const Currency terms = row.currency("Terms");
        const auto ifTerms = [&](const QString& text) { return journal.hasTerms ? text : notApplicable; };
        fields.setText("txtReference", row.text(journal.reference));
        fields.setText("txtDate", formatDate(date));
        fields.setText("txtTerm", ifTerms(termText(terms)));
        fields.setText("txtDueDate", ifTerms(formatDate(dueDate(date, terms))));
        fields.setFigure("txtAmount", row.currency(journal.amount));
        if (journal.hasTerms)
            fields.setFigure("txtBalance", row.currency("Balance"));
        else
            fields.setText("txtBalance", notApplicable);
    };
}

QString countLine(Connection& store, const Search& search, const char* what) {
    const Sql count = Sql("SELECT COUNT(*) AS Ihap FROM " + search.from) + search.where;
    return QString("There are %1 Records in the %2 Database...")
        .arg(formatCount(store.execute(count).integer("Ihap")), what);
}
}  // namespace

static std::optional<ReportJobParts> bookFoundReport(Connection& store, const Search& search) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert("lblTitle", QString(search.journal->name) + " Search");
    return reportOfQuery(store, prtBookFound(), search.statement(),
                         {{on(SectionKind::Detail), lineOf(*search.journal)}}, texts);
}

std::optional<ReportJobParts> searchReport(Connection& store, const Search& search) {
    if (search.journal) return bookFoundReport(store, search);
    if (search.kind->followsKeys)
        return contactListReport(store, search.statement(), countLine(store, search, "Contact Master File"));
    return itemListReport(store, search.statement(), countLine(store, search, "Item Master File"));
}
