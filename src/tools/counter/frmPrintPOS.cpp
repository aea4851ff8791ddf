#include "tools/counter/frmPrintPOS.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/form.h"
#include "reports/frame/export_file.h"
#include "reports/frame/print_choice.h"
#include "tools/counter/prtPOS.h"

#include <QVBoxLayout>

frmPrintPOS::frmPrintPOS()
    : ChildScreen("frmPrintPOS", "Print Point of Sale Audit"),
      cboCashier(new ComboBox("cboCashier", ComboBox::Open)),
      txtDate(new DateBox("txtDate")),
      fraChoice(new PrintChoice) {
    cboCashier->setKeyFilter(keys::freeText());
    cboCashier->setCapacity(width::contactName);
    cboCashier->setMinimumWidth(form::charactersWide(cboCashier, 36));
    cboCashier->setFiller([this] { fillCashiers(); });
    txtDate->setRefusal(invalidAuditDate());
    txtDate->setText(formatDate(Clock::today()));

    auto* fields = new QGridLayout;
    form::row(fields, 0, 0, "&Cashier :", cboCashier);
    form::row(fields, 1, 0, "Transaction &Date :", txtDate);
    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* cancel = form::button("cmdCancel", "C&lose");
    connect(ok, &QPushButton::clicked, this, &frmPrintPOS::PrintRecord);
    connect(cancel, &QPushButton::clicked, this, &frmPrintPOS::CloseRecord);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(fraChoice);
    layout->addStretch();
    layout->addLayout(form::buttonsAtRight({ok, cancel}));
    guarded([this] { fillCashiers(); });
    cboCashier->setText(wholeDay);
}

void frmPrintPOS::fillCashiers() {
    LoadComboBoxUDF("FullName", "tblUserMaster", cboCashier, "POSUser = True", false);
    cboCashier->addItem(wholeDay);
}

void frmPrintPOS::PrintRecord() {
    const CashAuditRequest request{cboCashier->text(), txtDate->text()};
    if (const auto fault = auditFault(request)) return showFault(*fault, this);
    if (!readyToExport(this, fraChoice->target())) return;
    guarded([&] {
        const auto audit = auditCash(StoreConnection(), request);
        if (const auto* fault = std::get_if<Fault>(&audit)) return showFault(*fault, this);
        runFromPrintScreen(posReport(StoreConnection(), std::get<CashAudit>(audit), request),
                           fraChoice->target());
    });
}
