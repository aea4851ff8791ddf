#include "purchases/print_purchase.h"

#include "foundation/session.h"
#include "reports/documents/prtPurchase.h"
#include "reports/frame/report_preview.h"

ChildScreen* PrintPurchaseOrder(const QString& purchaseNo) {
    return previewFromEntry(purchaseReport(StoreConnection(), purchaseNo), &purchaseTagging());
}
