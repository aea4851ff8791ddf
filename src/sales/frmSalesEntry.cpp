#include "sales/frmSalesEntry.h"

#include "sales/print_delivery.h"
#include "sales/sales_document.h"

namespace {
const OrderScreen& salesScreen() {
    static const OrderScreen screen{
        .document = {.name = "frmSalesEntry",
                     .caption = "Sales Entry",
                     .master = salesOrders.master,
                     .number = salesOrders.serial,
                     .contactBalance = salesOrders.contactBalance,
                     .codeLabel = "D.R. No. :",
                     .dateLabel = "D.R. Date :",
                     .contactLabel = "Customer :",
                     .balanceLabel = "Customer Balance :",
                     .searchText = "Search Customer Database",
                     .incrementText = "Increment D.R. No.",
                     .listLabel = "Orders :",
                     .countLabel = "No. of Orders :",
                     .addCaption = "&Add Item",
                     .editCaption = "&Edit Item",
                     .removeCaption = "&Remove Item",
                     .columns = orderColumns("Serve", "Puchase Cost"),
                     .totalColumn = OrderLine::Total,
                     .contactFilter = "C",
                     .missingToAdd = {"Please Select Customer First!", salesOrders.noSuchContact},
                     .missingToEdit = {"Please Select Customer First!",
                                       "Customer does not exist, please add this to Contact Master File..."},
                     .noContactEntered = "Please Enter Customer First...",
                     .printRight = "PrintDRAccess",
                     .papers = {{"Do you want to Print Delivery Receipt for this Sales Transaction?",
                                 PrintDeliveryReceipt}},
                     .newShowsUser = false},
        .book = &salesOrders,
        .words = {.lblServe = "Served", .lblPrice = "Selling Price", .lblServed = "Served :"},
        .serveName = "cmdServe",
        .serveCaption = "&Serve Item",
        .showsCreditLimit = false,
        .sortDirties = false,
    };
    return screen;
}
}  // namespace

frmSalesEntry::frmSalesEntry() : OrderEntry(salesScreen()) {}
