#include "purchases/frmPurchaseEntry.h"

#include "purchases/print_purchase.h"
#include "purchases/purchase_document.h"

namespace {
const OrderScreen& purchaseScreen() {
    static const OrderScreen screen{
        .document = {.name = "frmPurchaseEntry",
                     .caption = "Purchase Entry",
                     .master = purchaseOrders.master,
                     .number = purchaseOrders.serial,
                     .contactBalance = purchaseOrders.contactBalance,
                     .codeLabel = "P.O. No. :",
                     .dateLabel = "P.O. Date :",
                     .contactLabel = "Supplier :",
                     .balanceLabel = "Supplier Balance :",
                     .searchText = "Search Supplier Database",
                     .incrementText = "Increment Purchase Order No.",
                     .listLabel = "Orders :",
                     .countLabel = "No. of Orders :",
                     .addCaption = "&Add Item",
                     .editCaption = "&Edit Item",
                     .removeCaption = "&Remove Item",
                     .columns = orderColumns("Delivered"),
                     .totalColumn = OrderLine::Total,
                     .contactFilter = "S",
                     .missingToAdd = {"Please Select Supplier First!", purchaseOrders.noSuchContact},
                     .missingToEdit = {"Please Select Supplier First!",
                                       "Supplier does not exist, please add this to Contact Master File..."},
                     .unknownIcon = BoxIcon::Information,
                     .noContactEntered = "Please Enter Supplier First...",
                     .printRight = "PrintPOAccess",
                     .papers = {{"Do you want to Print Purchase Order for this Purchase Transaction?",
                                 PrintPurchaseOrder}},
                     .newShowsUser = true},
        .book = &purchaseOrders,
        .words = {.lblServe = "Delivered", .lblPrice = "Cost Price", .lblServed = "Delivered :"},
        .serveName = "cmdReceive",
        .serveCaption = "&Receive Stock",
        .showsCreditLimit = true,
        .sortDirties = true,
    };
    return screen;
}
}  // namespace

frmPurchaseEntry::frmPurchaseEntry() : OrderEntry(purchaseScreen()) {}
