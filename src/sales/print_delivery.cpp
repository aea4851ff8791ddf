#include "sales/print_delivery.h"

#include "foundation/session.h"
#include "foundation/setting_files.h"
#include "reports/documents/prtDelivery.h"
#include "reports/frame/report_preview.h"

ChildScreen* PrintDeliveryReceipt(const QString& refNo) {
    ReadReceiptIni();
    ReadReceiptPrinterIni();
    return previewFromEntry(deliveryReport(StoreConnection(), refNo), &deliveryTagging());
}
