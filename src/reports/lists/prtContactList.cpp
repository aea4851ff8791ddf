#include "reports/lists/prtContactList.h"

#include "books/balances.h"
#include "platform/masks.h"
#include "reports/frame/report_query.h"
#include "reports/lists/plain_list.h"

static const ReportLayout& prtContactList() {
    static const ReportLayout layout{
        "prtContactList", "Contact Listing...", legalLandscape(1500, 350, 17460),
        plainList::sections("Contact Directory", 17460,
                            {{"Contact ID", 90, 1170, "ContactID", "ContactID"},
                             {"Contact Name", 1350, 3060, "ContactName", "ContactName"},
                             {"Address", 4500, 3150, "Address", "Address"},
                             {"Telephone No.", 7740, 1800, "TelNo", "TelNo"},
                             {"eMail Address", 9630, 2340, "eMail", "eMail"},
                             {"Term", 12060, 990, "Term", ""},
                             {"Credit Limit", 13140, 1260, "CreditLimit", "CreditLimit", mask::amount, true},
                             {"Receivable", 14490, 1350, "Receivable", "", mask::amount, true},
                             {"Payable", 15930, 1350, "Payable", "", mask::amount, true}})};
    return layout;
}

std::optional<ReportJobParts> contactListReport(Connection& store, const Sql& query, const QString& count) {
    const auto line = [&store](const ReportSource& row, SectionFields& fields) {
        const QString id = row.text("ContactID");
        fields.setText("txtTerm", row.currency("Terms").toPlainText() + " Days");
        fields.setText("txtReceivable", formatNumber(CustomerBalance(store, id), mask::amount));
        fields.setText("txtPayable", formatNumber(SupplierBalance(store, id), mask::amount));
    };
    return reportOfQuery(store, prtContactList(), query,
                         {{on(SectionKind::PageHeader), plainList::headingEvent(store, count)},
                          {on(SectionKind::Detail), line}});
}
