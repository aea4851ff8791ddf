#include "purchases/frmPurchaseEntry.h"

#include "purchases/print_purchase.h"
#include "purchases/purchase_document.h"

namespace {
const OrderScreen& purchaseScreen() {
    static const OrderScreen screen{
        .book = &purchaseOrders,
        .words = {.lblServe = "Delivered", .lblPrice = "Cost Price", .lblServed = "Delivered :"},
        .name = "frmPurchaseEntry",
        .caption = "Purchase Entry",
        .codeLabel = "P.O. No. :",
        .dateLabel = "P.O. Date :",
        .contactLabel = "Supplier :",
        .balanceLabel = "Supplier Balance :",
        .searchText = "Search Supplier Database",
        .incrementText = "Increment Purchase Order No.",
        .quantityHeading = "Delivered",
        .lastHeading = nullptr,
        .serveName = "cmdReceive",
        .serveCaption = "&Receive Stock",
        .showsCreditLimit = true,
        .contactFilter = "S",
        .selectContactFirst = "Please Select Supplier First!",
        .noContactToAdd = purchaseOrders.noSuchContact,
        .noContactToEdit = "Supplier does not exist, please add this to Contact Master File...",
        .noContactIcon = BoxIcon::Information,
        .printRight = "PrintPOAccess",
        .printQuestion = "Do you want to Print Purchase Order for this Purchase Transaction?",
        .print = PrintPurchaseOrder,
        .dirtyingFields = {"cboCustomer"},
        .sortDirties = true,
        .newShowsUser = true,
    };
    return screen;
}
}  // namespace

frmPurchaseEntry::frmPurchaseEntry() : OrderEntry(purchaseScreen()) {}
