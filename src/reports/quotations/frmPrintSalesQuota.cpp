#include "reports/quotations/frmPrintSalesQuota.h"

#include "reports/quotations/prtSalesQuota.h"

static const PrintBook& book() {
    static const PrintBook quota{.screen = "frmPrintSalesQuota",
                                 .caption = "Print Customer Sales Quota...",
                                 .fields = {{.name = "cboCustomer",
                                             .caption = "C&ustomer :",
                                             .typed = &PrintRequest::contact,
                                             .picker = PickedFrom::Customers,
                                             .search = "cmdSearch",
                                             .whenEmpty = "All Customers"},
                                            {.name = "txtDescription",
                                             .caption = "&Product :",
                                             .typed = &PrintRequest::description,
                                             .picker = PickedFrom::ItemDescriptions,
                                             .search = "cmdSearchDescription",
                                             .whenEmpty = "All Products"}},
                                 .periodFrame = "Date Range :",
                                 .excluded = "Excluded",
                                 .check = salesQuotaFault,
                                 .report = salesQuotaReport};
    return quota;
}

frmPrintSalesQuota::frmPrintSalesQuota() : PrintScreen(book()) {}
