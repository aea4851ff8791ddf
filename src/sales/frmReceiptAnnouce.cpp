#include "sales/frmReceiptAnnouce.h"

#include "books/balances.h"
#include "foundation/session.h"
#include "platform/masks.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/form.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {
QLabel* large(const QString& name, const QString& text, double factor) {
    QLabel* label = form::label(text);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    form::setFont(label, factor, true);
    return label;
}
}  // namespace

frmReceiptAnnouce::frmReceiptAnnouce(const QString& customer, Currency balance)
    : ChildScreen("frmReceiptAnnouce", "Customer Balance", Centred, Popup) {
    const QString owed = formatNumber(balance, mask::amount);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(customer + ": " + owed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(32, 24, 32, 24);
    layout->setSpacing(16);
    layout->addWidget(large("lblCustomerName", customer, 1.3));
    layout->addWidget(large("lblCustomerBalance", owed, 1.8));
}

void frmReceiptAnnouce::keyPressEvent(QKeyEvent* event) {
    event->accept();
    unload();
}

ChildScreen* announceBalance(const DataGrid& grid) {
    const Currency balance = CustomerBalance(StoreConnection(), grid.currentText("CustomerNo"));
    return new frmReceiptAnnouce(grid.currentText("ContactName"), balance);
}
