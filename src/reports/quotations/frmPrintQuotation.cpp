#include "reports/quotations/frmPrintQuotation.h"

#include "reports/quotations/prtQuotation.h"

static const PrintBook& book() {
    static const PrintBook quotation{.screen = "frmPrintQuotation",
                                     .caption = "Print Quotation...",
                                     .fields = {{.name = "cboCustomer",
                                                 .caption = "C&ustomer :",
                                                 .typed = &PrintRequest::contact,
                                                 .picker = PickedFrom::Customers,
                                                 .search = "cmdSearch"},
                                                {.name = "txtDescription",
                                                 .caption = "&Description :",
                                                 .typed = &PrintRequest::description,
                                                 .whenEmpty = "All Items"}},
                                     .selectionFrame = "Search Parameters :",
                                     .selectionName = "cboSort",
                                     .selections = quotationOrders(),
                                     .check = quotationFault,
                                     .report = quotationReport};
    return quotation;
}

frmPrintQuotation::frmPrintQuotation() : PrintScreen(book()) {}
