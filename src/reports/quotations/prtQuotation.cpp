#include "reports/quotations/prtQuotation.h"

#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "reports/frame/list_report.h"
#include "reports/frame/report_query.h"

#include <algorithm>

namespace {
constexpr TextStyle rightBold{Typeface::Verdana, 8, true, Qt::AlignRight};
constexpr int textHeight = 225;

struct Order {
    const char* selection;
    const char* columns;
};
constexpr Order orders[] = {{"Item Code", "ItemCode"},
                            {"Description", "Description, ItemCode"},
                            {"Selling Price", "SellingPrice, ItemCode"}};

// Whatever else is typed as an order, the items come by their codes.
const Order& orderOf(const QString& selection) {
    const auto* found =
        std::ranges::find_if(orders, [&](const Order& order) { return selection == order.selection; });
    return found == std::end(orders) ? orders[0] : *found;
}

Sql itemsOf(const PrintRequest& request) {
    Sql items("SELECT * FROM tblItemMaster");
    if (!request.description.isEmpty())
        items += Sql(" WHERE Description LIKE ?", {anywhere(request.description)});
    return items + Sql(QString(" ORDER BY ") + orderOf(request.selection).columns);
}

ReportSection heading() {
    return section(SectionKind::PageHeader, 2250,
                   companyBlock(90, 1080) +
                       QList{label("lblQuoted", "Quoted To :", 90, 1170, 1170, textHeight),
                             growing(label("txtCustomer", "", 1260, 1170, 5490, textHeight, bold())),
                             growing(label("txtAddress", "", 1260, 1440, 5490, 450)),
                             label("lblDatePrinted", "Date Printed : ", 6840, 1170, 1350, textHeight),
                             label("txtDatePrinted", "", 8190, 1170, 2160, textHeight),
                             label("lblItemCode", "Item Code", 2250, 1980, 1440, textHeight, bold()),
                             label("lblDescription", "Description", 3780, 1980, 3960, textHeight, bold()),
                             label("lblUnit", "Unit", 7830, 1980, 990, textHeight, bold()),
                             label("lblUnitPrice", "Unit Price", 8910, 1980, 1440, textHeight, rightBold)});
}

ReportSection item() {
    return section(
        SectionKind::Detail, 285,
        {field("txtNumber", "", 1170, 30, 990, textHeight, rightAligned()),
         growing(field("txtItemCode", "ItemCode", 2250, 30, 1440, textHeight)),
         growing(field("txtDescription", "Description", 3780, 30, 3960, textHeight)),
         growing(field("txtUnit", "Unit", 7830, 30, 990, textHeight)),
         field("txtUnitPrice", "SellingPrice", 8910, 30, 1440, textHeight, rightAligned(), mask::amount)});
}

ReportSection signature() {
    return section(SectionKind::ReportFooter, 1440,
                   {label("lblSincerely", "Sincerely Yours,", 6390, 360, 3960, textHeight),
                    growing(label("lblApproved", "", 6390, 1170, 3960, textHeight, bold()))});
}

FormatEvent numbering() {
    return [number = 0](const ReportSource&, SectionFields& fields) mutable {
        fields.setText("txtNumber", QString::number(++number) + ".)");
    };
}

RunTexts textsOf(Connection& store, const QString& customer) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert({{"txtCustomer", customer},
                         {"txtAddress", LookupField(store, "Address", "tblContactMaster", "ContactName",
                                                    customer, LookupMode::PrimaryKey)},
                         {"txtDatePrinted", formatDate(Clock::today(), "mmmm dd, yyyy")},
                         {"lblApproved", GetApprovedBy(store)}});
    return texts;
}
}  // namespace

const ReportLayout& prtQuotation() {
    static const ReportLayout layout{"prtQuotation",
                                     "Product Quotation...",
                                     letterPortrait(750, 750, 10440),
                                     {heading(), item(), pageFooter(), signature()}};
    return layout;
}

QStringList quotationOrders() {
    QStringList selections;
    for (const Order& order : orders) selections += order.selection;
    return selections;
}

std::optional<Fault> quotationFault(Connection& store, const PrintRequest& request) {
    if (request.contact.isEmpty())
        return errorFault("Please Select a Customer for this Quotation!", "cboCustomer");
    if (RecordFound(store, "tblContactMaster", "ContactName", request.contact)) return {};
    return Fault{
        exclamation("Does not exist!", "Customer Does Not Exist, Please Add This To Customer Master File..."),
        "cboCustomer"};
}

std::optional<ReportJobParts> quotationReport(Connection& store, const PrintRequest& request) {
    return reportOfQuery(store, prtQuotation(), itemsOf(request), {{on(SectionKind::Detail), numbering()}},
                         textsOf(store, request.contact));
}
