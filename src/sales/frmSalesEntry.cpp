#include "sales/frmSalesEntry.h"

#include "sales/print_delivery.h"
#include "sales/sales_document.h"

namespace {
const OrderScreen& salesScreen() {
    static const OrderScreen screen{
        .book = &salesOrders,
        .words = {.lblServe = "Served", .lblPrice = "Selling Price", .lblServed = "Served :"},
        .name = "frmSalesEntry",
        .caption = "Sales Entry",
        .codeLabel = "D.R. No. :",
        .dateLabel = "D.R. Date :",
        .contactLabel = "Customer :",
        .balanceLabel = "Customer Balance :",
        .searchText = "Search Customer Database",
        .incrementText = "Increment D.R. No.",
        .quantityHeading = "Serve",
        .lastHeading = "Puchase Cost",
        .serveName = "cmdServe",
        .serveCaption = "&Serve Item",
        .showsCreditLimit = false,
        .contactFilter = "C",
        .selectContactFirst = "Please Select Customer First!",
        .noContactToAdd = salesOrders.noSuchContact,
        .noContactToEdit = "Customer does not exist, please add this to Contact Master File...",
        .noContactIcon = BoxIcon::Exclamation,
        .printRight = "PrintDRAccess",
        .printQuestion = "Do you want to Print Delivery Receipt for this Sales Transaction?",
        .print = PrintDeliveryReceipt,
        .dirtyingFields = {"cboCustomer", "txtCode", "txtRemarks", "txtRefDate", "txtSerialCode"},
        .sortDirties = false,
        .newShowsUser = false,
    };
    return screen;
}
}  // namespace

frmSalesEntry::frmSalesEntry() : OrderEntry(salesScreen()) {}
