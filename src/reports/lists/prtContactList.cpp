#include "reports/lists/prtContactList.h"

#include "books/contact_balances.h"
#include "reports/frame/credit_terms.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

// Of the heading, whose lines fill the room above the heads.
static ReportControl atRight(ReportControl control) {
    control.left = 9630;
    control.width = 7650;
    control.style = rightAligned();
    return control;
}

const ReportLayout& prtContactList() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtContactList",
                    .caption = "Contact Listing...",
                    .page = legalLandscape(1500, 350, 17460),
                    .heading = {companyLine(), titleLine("Contact Directory"), addressLine(), phoneLine()},
                    .headsTop = 1350,
                    .columns = {{"Contact ID", 90, 1170, "ContactID"},
                                {"Contact Name", 1350, 3060, "ContactName"},
                                {"Address", 4500, 3150, "Address"},
                                {"Telephone No.", 7740, 1800, "TelNo"},
                                {"eMail Address", 9630, 2340, "eMail", Code},
                                {"Term", 12060, 990, "txtTerm"},
                                {"Credit Limit", 13140, 1260, "CreditLimit", Amount},
                                {"Receivable", 14490, 1350, "txtReceivable", Amount},
                                {"Payable", 15930, 1350, "txtPayable", Amount}},
                    .beside = {showing(Shows::RunDate, atRight(field("lblRunDate", "", 0, 90, 0, 225))),
                               atRight(label("lblCount", "", 0, 900, 0, 225))}});
    return layout;
}

std::optional<ReportJobParts> contactListReport(Connection& store, const Sql& query, const QString& count) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert("lblCount", count);
    const auto line = [receivable = CustomerBalances(store), payable = SupplierBalances(store)](
                          const ReportSource& row, SectionFields& fields) {
        const QByteArray contact = row.key("ContactID");
        fields.setText("txtTerm", termText(row.currency("Terms")));
        fields.setFigure("txtReceivable", receivable.of(contact));
        fields.setFigure("txtPayable", payable.of(contact));
    };
    return reportOfQuery(store, prtContactList(), query, {{on(SectionKind::Detail), line}}, texts);
}
