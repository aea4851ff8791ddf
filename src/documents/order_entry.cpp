#include "documents/order_entry.h"

#include "documents/frmAddItem.h"
#include "documents/frmInputInList.h"
#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"

#include <QKeyEvent>

OrderLines::OrderLines(ListView* view, RecordScreen* screen) : LinesOf(view, screen) {
    connect(view->model(), &QAbstractItemModel::modelReset, this, [this] { tested_.clear(); });
}

OrderLine OrderLines::lineAt(int row) const {
    OrderLine line = LinesOf::lineAt(row);
    line.tested = tested_.value(line.itemCode.toUpper());
    return line;
}

void OrderLines::insertLine(int row, const OrderLine& line) {
    remember(line);
    LinesOf::insertLine(row, line);
}

void OrderLines::replaceLine(int row, const OrderLine& line) {
    remember(line);
    LinesOf::replaceLine(row, line);
}

OrderEntry::OrderEntry(const OrderScreen& screen)
    : DocumentEntry(screen.document), screen_(screen), own_(screen, ui, this), lines_(ui.lvwItems, this) {
    setLines(lines_);
    connect(ui.txtRemarks, &TextBox::entered, this, [this] {
        if (orderBook().sells) return startLine();
        ui.cmdAdd->setFocus();
    });
    connect(ui.lvwItems, &ListView::entered, this, &OrderEntry::serveLine);
    connect(ui.lvwItems, &ListView::headerClicked, this, [this] { mblnUpdated |= screen_.sortDirties; });
    connect(own_.cmdServe, &QPushButton::clicked, this, &OrderEntry::serveLine);
}

void OrderEntry::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Insert) return startLine();
    DocumentEntry::keyPressEvent(event);
}

// Documents

void OrderEntry::clearDocument() {
    own_.showNewDocument(true);
    own_.txtBalance->setText("0.00");
}

void OrderEntry::loadDocument() {
    own_.showNewDocument(false);
    own_.txtBalance->clear();
    Connection& store = StoreConnection();
    frmStatus status;
    try {
        showLoaded(loadOrder(store, orderBook(), mstrPrimary));
    } catch (const StoreError& failure) {
        return void(showBox(exclamation("Error Loading", "Error loading record.  " + failure.text())));
    }
    lines_.setAll(loadOrderLines(store, orderBook(), mstrPrimary, status));
}

void OrderEntry::showLoaded(const LoadedOrder& loaded) {
    showHead(loaded.document, loaded);
    own_.txtBalance->setText(loaded.balance);
}

void OrderEntry::showContact(const ContactFigures& figures) {
    DocumentEntry::showContact(figures);
    if (own_.txtCreditLimit) own_.txtCreditLimit->setText(figures.creditLimit);
}

OrderDocument OrderEntry::orderHead() const {
    OrderDocument typed{head()};
    typed.wholesale = own_.chkWholesale && own_.chkWholesale->isChecked();
    return typed;
}

Outcome OrderEntry::saveDocument(Progress& progress) {
    OrderDocument typed = orderHead();
    typed.lines = lines_.all();
    return saveOrder(StoreConnection(), orderBook(), typed, progress);
}

// Lines

void OrderEntry::startLine() {
    if (lineReady(screen_.document.missingToAdd)) lines_.startLine([this] { return new frmAddItem(*this); });
}

void OrderEntry::changeLine() {
    if (lineReady(screen_.document.missingToEdit) && lines_.isSelected())
        lines_.changeLine([this] { return new frmAddItem(*this); });
}

// All lines of an order are priced alike: the choice is open while there is none, nor one in a popup's hands.
void OrderEntry::linesChanged() {
    if (own_.chkWholesale) own_.chkWholesale->setEnabled(lines_.count() == 0 && !lines_.popupIsOpen());
}

void OrderEntry::serveLine() {
    const int row = ui.lvwItems->currentRow();
    if (row < 0 || popupHolds()) return;
    mblnUpdated = true;
    quantityPopup_ = new frmInputInList(*this, row);
    ScreenRegistry::instance().show(quantityPopup_);
}

void OrderEntry::unloading() {
    if (quantityPopup_) quantityPopup_->unload();
    DocumentEntry::unloading();
}
