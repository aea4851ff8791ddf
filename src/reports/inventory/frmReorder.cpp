#include "reports/inventory/frmReorder.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"
#include "platform/ui/reminder.h"
#include "reports/frame/report_start.h"
#include "reports/inventory/prtReorder.h"

namespace {
QList<QStringList> listed(Recordset items) {
    QList<QStringList> rows;
    for (; !items.eof(); items.moveNext())
        rows += {items.trimmed("ItemCode"),
                 items.trimmed("Description"),
                 items.trimmed("ContactName"),
                 formatNumber(items.currency("OrderLevel"), mask::amount),
                 formatNumber(items.currency("Balance"), mask::amount),
                 items.trimmed("Locator")};
    return rows;
}
}  // namespace

frmReorder::frmReorder() : ChildScreen("frmReorder", "Re-Order Level") {
    lvwItem = new ListView("lvwItem",
                           {{"Item Code", 14},
                            {"Description", 32},
                            {"Supplier", 26},
                            {"Order Level", 13, ListColumn::Number},
                            {"Inventory", 13, ListColumn::Number},
                            {"Locator", 12}},
                           this);
    lvwItem->setAccessibleName("Items below their order level");
    lvwItem->keepSort();
    list_look::sayWhenEmpty(lvwItem, "No item has fallen to its re-order level.");
    auto* imgRefresh = form::imageButton("imgRefresh", "refresh", "Refresh");
    auto* imgPrint = form::imageButton("imgPrint", "print", "Print");
    auto* imgExit = form::imageButton("imgExit", "exit", "Exit");

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QToolButton* button : {imgRefresh, imgPrint, imgExit}) buttons->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwItem, 1);
    layout->addLayout(buttons);
    connect(imgRefresh, &QToolButton::clicked, this, &frmReorder::RefreshRecord);
    connect(imgPrint, &QToolButton::clicked, this, &frmReorder::print);
    connect(imgExit, &QToolButton::clicked, this, &frmReorder::CloseRecord);
}

QSize frmReorder::sizeHint() const { return {form::charactersWide(this, 158), fontMetrics().height() * 26}; }

// Also when an open one is asked for again: the list that comes forward is the present one.
bool frmReorder::receive(const ScreenArguments& arguments) {
    RefreshRecord();
    if (arguments.kind == reminderKind && lvwItem->rowCount() == 0) return false;
    return ChildScreen::receive(arguments);
}

void frmReorder::RefreshRecord() {
    guarded([this] { lvwItem->setRows(listed(StoreConnection().execute(itemsToReorder()))); });
}

void frmReorder::print() {
    guarded([this] {
        if (!UserHasAccess(StoreConnection(), "PrintItemAccess"))
            showBox(exclamation("Access Denied!",
                                session().CurrentUserName + " Have No Access in Printing This Report!"));
        else if (lvwItem->rowCount() == 0)
            showBox(exclamation("Nothing to Print!", "No Records to print..."));
        else
            previewFromEntry(reorderReport(StoreConnection()));
    });
}
