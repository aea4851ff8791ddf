#include "reports/quotations/prtSalesQuota.h"

#include "foundation/shared_routines.h"
#include "platform/store/bulk.h"
#include "reports/frame/list_report.h"
#include "reports/frame/worked_rows.h"
#include "reports/journals/document_lines.h"

#include <algorithm>

namespace {
Fault unknown(const char* text, const char* field) { return {exclamation("Does not exist!", text), field}; }

Sql soldItem(Connection& store, const PrintRequest& request) {
    if (request.description.isEmpty()) return {};
    return {"ItemID = ?",
            {LookupField(store, "ItemCode", "tblItemMaster", "Description", request.description,
                         LookupMode::PrimaryKey)}};
}

Sql salesOf(const PrintRequest& request) {
    Sql contact;
    if (!request.contact.isEmpty())
        contact = {"ContactNo IN (SELECT ContactID FROM tblContactMaster WHERE ContactName = ?)",
                   {request.contact}};
    return whereAll({contact, inPeriod("RefDate", periodOf(request))});
}

struct Quota {
    int contact, item;
    Currency quantity, total;
};

// The contacts' names: two contacts of one name are one line. Sales of a contact that the master does not
// have are left out.
class ContactNames {
  public:
    explicit ContactNames(Connection& store) {
        for (BulkReader row(store,
                            "SELECT ContactID, ContactName FROM tblContactMaster ORDER BY ContactName");
             row.next();) {
            contacts_.add(row.bytes(0));
            names_.push_back(distinct_.add(row.bytes(1)));
        }
    }
    // In their order; -1: unknown.
    int find(const QByteArray& contact) const {
        const int known = contacts_.find(contact);
        return known < 0 ? -1 : names_[static_cast<size_t>(known)];
    }
    QString at(int name) const { return QString::fromUtf8(distinct_.at(name)); }

  private:
    KeyNumbers contacts_, distinct_;
    std::vector<int> names_;
};

std::vector<int> namesOfSales(const DocumentLines& lines, const ContactNames& names) {
    std::vector<int> ofSales;
    for (int sale = 0; sale < lines.numbers().size(); ++sale)
        ofSales.push_back(names.find(lines.document(sale).contact));
    return ofSales;
}

// A line for each line that was sold, by contact and item.
std::vector<Quota> soldTo(const DocumentLines& lines, const ContactNames& names) {
    const std::vector<int> contacts = namesOfSales(lines, names);
    std::vector<Quota> sold;
    for (const DocumentLines::Line& line : lines.lines())
        if (const int contact = contacts[static_cast<size_t>(line.document)]; contact >= 0)
            sold.push_back({contact, line.item, line.quantity, line.total});
    const std::vector<int> places = lines.items().places();
    std::ranges::sort(sold, {}, [&](const Quota& each) {
        return std::pair(each.contact, places[static_cast<size_t>(each.item)]);
    });
    return sold;
}

// One line for those of one contact and item.
void sumUp(std::vector<Quota>& sold) {
    size_t last = 0;
    for (size_t at = 1; at < sold.size(); ++at) {
        if (sold[at].contact == sold[last].contact && sold[at].item == sold[last].item) {
            sold[last].quantity += sold[at].quantity;
            sold[last].total += sold[at].total;
        } else {
            sold[++last] = sold[at];
        }
    }
    sold.resize(std::min(sold.size(), last + 1));
}

std::unique_ptr<ReportSource> quotas(Connection& store, const PrintRequest& request) {
    const auto lines = std::make_shared<const DocumentLines>(store, DocumentLines::Side::Sales,
                                                             salesOf(request), soldItem(store, request));
    const auto contacts = std::make_shared<const ContactNames>(store);
    const auto items = std::make_shared<const std::vector<ItemNames>>(namesOf(store, lines->items()));
    std::vector<Quota> sold = soldTo(*lines, *contacts);
    sumUp(sold);
    if (sold.empty()) return nullptr;
    using Rows = WorkedRows<Quota>;
    const auto item = [items](const Quota& each) { return (*items)[static_cast<size_t>(each.item)]; };
    return std::make_unique<Rows>(
        std::move(sold),
        std::vector<Rows::Column>{
            {"ContactName", [contacts](const Quota& each) { return contacts->at(each.contact); }},
            {"Product", [item](const Quota& each) { return item(each).description; }},
            {"Qty", [](const Quota& each) { return each.quantity; }},
            {"Unit", [item](const Quota& each) { return item(each).unit; }},
            {"Sales", [](const Quota& each) { return each.total; }}});
}
}  // namespace

const ReportLayout& prtSalesQuota() {
    using enum ReportColumn::Kind;
    static const ReportLayout layout =
        listLayout({.name = "prtSalesQuota",
                    .caption = "Sales Quota Report...",
                    .page = letterPortrait(650, 500, 10875),
                    .heading = {companyLine(), titleLine("Customer Sales Quota Report"), rangeLine()},
                    .headsTop = 1080,
                    .columns = {{"Customer Name", 90, 2880, "ContactName"},
                                {"Product", 3060, 2610, "Product"},
                                {"Total Quantity", 5760, 1620, "Qty", Number},
                                {"Unit", 7470, 1170, "Unit"},
                                {"Total Sales Amount", 8730, 2070, "Sales", Amount}}});
    return layout;
}

std::optional<Fault> salesQuotaFault(Connection& store, const PrintRequest& request) {
    if (!request.contact.isEmpty() && !RecordFound(store, "tblContactMaster", "ContactName", request.contact))
        return unknown("Customer Does Not Exist, Please Select Proper Customer to Generate Report...",
                       "cboCustomer");
    if (!request.description.isEmpty() &&
        !RecordFound(store, "tblItemMaster", "Description", request.description))
        return unknown("Product Does Not Exist, Please Select Proper Product to Generate Report...",
                       "txtDescription");
    return periodFault(request, invalidDateValue);
}

std::optional<ReportJobParts> salesQuotaReport(Connection& store, const PrintRequest& request) {
    return runOfPeriod(
        store,
        {.layout = prtSalesQuota(),
         .rows = {},
         .dateColumn = {},
         .order = {},
         .worked = [&](Connection& books, const std::optional<Period>&) { return quotas(books, request); }},
        periodOf(request));
}
