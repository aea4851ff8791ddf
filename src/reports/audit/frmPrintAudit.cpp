#include "reports/audit/frmPrintAudit.h"

#include "reports/audit/prtAudit.h"

static const PrintBook& book() {
    static const PrintBook audit{.screen = "frmPrintAudit",
                                 .caption = "Print Audit Trail...",
                                 .selectionFrame = "Please Select a Transaction Type to Audit :",
                                 .selections = auditedBooks(),
                                 .periodFrame = "Audit Date Range :",
                                 .check = auditFault,
                                 .report = auditReport};
    return audit;
}

frmPrintAudit::frmPrintAudit() : PrintScreen(book()) {}
