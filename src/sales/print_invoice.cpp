#include "sales/print_invoice.h"

#include "foundation/session.h"
#include "reports/documents/prtSalesInvoice.h"
#include "reports/frame/report_preview.h"

ChildScreen* PrintPaymentInvoice(const QString& payNo) {
    return previewFromEntry(salesInvoiceReport(StoreConnection(), payNo), &salesInvoiceTagging());
}
