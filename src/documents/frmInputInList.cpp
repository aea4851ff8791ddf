#include "documents/frmInputInList.h"

#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/key_filters.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

#include <QLabel>

frmInputInList::frmInputInList(OrderOwner& owner, int row)
    : ChildScreen("frmInputInList", "Order Update...", Centred, Popup), owner_(owner), row_(row) {
    const OrderLine line = owner.lines().lineAt(row);
    ItemCode = line.itemCode;
    txtOrder = readOnlyBox("txtOrder", Qt::AlignRight);
    txtPrice = readOnlyBox("txtPrice", Qt::AlignRight);
    txtValue = new TextBox("txtValue");
    txtValue->setAlignment(Qt::AlignRight);
    txtValue->setKeyFilter(keys::amount());
    lblTitle = form::label(line.description);
    lblTitle->setObjectName("lblTitle");
    lblServed = form::label(owner.lineWords().lblServed, txtValue);
    lblServed->setObjectName("lblServed");
    const QStringList texts = line.texts();
    txtOrder->setText(texts[OrderLine::Ordered]);
    txtValue->setText(texts[OrderLine::Served]);
    txtPrice->setText(texts[OrderLine::NetPrice]);
    layOut();
    connect(txtValue, &TextBox::entered, this, [this] { guarded([this] { commit(); }); });
}

void frmInputInList::layOut() {
    lblTitle->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    grid->addWidget(lblTitle, 0, 0, 1, 2);
    form::row(grid, 1, 0, "Ordered :", txtOrder);
    grid->addWidget(lblServed, 2, 0);
    grid->addWidget(txtValue, 2, 1);
    form::row(grid, 3, 0, "Net Price :", txtPrice);
    form::setAccessibleFromTexts(this);
    setMinimumWidth(form::charactersWide(this, 44));
}

void frmInputInList::activated() { txtValue->setFocus(); }
void frmInputInList::deactivated() { unload(); }

void frmInputInList::commit() {
    OrderLine line = owner_.lines().lineAt(row_);
    QString value = txtValue->text();
    const Outcome outcome = askUntilSettled([&](const Answers& answers) {
        return changeServed(StoreConnection(), owner_.orderBook(), owner_.lineOrder(), line, value, answers);
    });
    txtValue->setText(value);
    if (const auto* fault = std::get_if<Fault>(&outcome)) return showFault(*fault, this);
    owner_.lines().replaceLine(row_, line);
    unload();
}
