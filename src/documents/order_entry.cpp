#include "documents/order_entry.h"

#include "documents/frmAddItem.h"
#include "documents/frmInputInList.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/frmContactFound.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"

#include <QKeyEvent>
#include <QTimer>

OrderEntry::OrderEntry(const OrderScreen& screen)
    : RecordScreen(screen.name, screen.caption, FillsFrame), screen_(screen), ui(screen, this) {
    connectHead();
    connectDirtying();
    connectList();
    connectButtons();
    guarded([this] { canPrint_ = UserHasAccess(StoreConnection(), screen_.printRight); });
}

// What the controls do

void OrderEntry::connectHead() {
    connect(ui.number, &NumberEntry::composed, ui.txtCode, &QLineEdit::setText);
    connect(ui.number, &NumberEntry::left, this, [this] { ui.txtRefDate->setFocus(); });
    connect(ui.txtRefDate, &TextBox::entered, this, [this] { ui.cboCustomer->setFocus(); });
    connect(ui.cboCustomer, &ComboBox::entered, this, [this] {
        if (screen_.dirtyingFields.contains("cboCustomer")) mblnUpdated = true;
        findContact();
    });
    // Another name is typed: the figures are not its own until it is picked.
    connect(ui.cboCustomer, &ComboBox::keyTyped, this, &OrderEntry::showNoContact);
    connect(ui.cmdSearch, &QToolButton::clicked, this, &OrderEntry::findContact);
    connect(ui.txtRemarks, &TextBox::entered, this, [this] {
        if (orderBook().sells) return startLine();
        ui.cmdAdd->setFocus();
    });
    // The list of the contact box is the search itself; it opens when the box is done with its key or click.
    ui.cboCustomer->setFiller([this] { QTimer::singleShot(0, this, &OrderEntry::findContact); });
}

void OrderEntry::connectDirtying() {
    const auto dirty = [this] { mblnUpdated = true; };
    for (const QString& name : screen_.dirtyingFields)
        if (auto* box = findChild<TextBox*>(name))
            connect(box, &TextBox::keyTyped, this, dirty);
        else if (auto* combo = findChild<ComboBox*>(name))
            connect(combo, &ComboBox::keyTyped, this, dirty);
}

void OrderEntry::connectList() {
    connect(ui.lvwItems, &ListView::insertPressed, this, &OrderEntry::startLine);
    connect(ui.lvwItems, &ListView::editPressed, this, &OrderEntry::changeLine);
    connect(ui.lvwItems, &ListView::rowDoubleClicked, this, &OrderEntry::changeLine);
    connect(ui.lvwItems, &ListView::deletePressed, this, &OrderEntry::removeLine);
    connect(ui.lvwItems, &ListView::entered, this, &OrderEntry::serveLine);
    connect(ui.lvwItems, &ListView::headerClicked, this, &OrderEntry::showSorted);
}

void OrderEntry::connectButtons() {
    connect(ui.cmdAdd, &QPushButton::clicked, this, &OrderEntry::startLine);
    connect(ui.cmdEdit, &QPushButton::clicked, this, &OrderEntry::changeLine);
    connect(ui.cmdRemove, &QPushButton::clicked, this, &OrderEntry::removeLine);
    connect(ui.cmdServe, &QPushButton::clicked, this, &OrderEntry::serveLine);
}

void OrderEntry::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Insert) return startLine();
    RecordScreen::keyPressEvent(event);
}

// Documents

bool OrderEntry::receive(const ScreenArguments& arguments) {
    if (lineDialogHolds() || !settleChanges()) return false;
    if (held_ != arguments.key) releaseLock();
    if (arguments.key.isEmpty())
        startNew();
    else
        openDocument(arguments.key);
    return RecordScreen::receive(arguments);
}

void OrderEntry::NewRecord() {
    if (lineDialogHolds() || !settleChanges()) return;
    releaseLock();
    startNew();
}

void OrderEntry::startNew() {
    mblnAddmode = true;
    mblnUpdated = false;
    mstrPrimary.clear();
    ui.showNewDocument(true);
    guarded([this] { ui.number->propose(); });
    const QString today = formatDate(Clock::today());
    ui.txtRefDate->setText(today);
    ui.cboCustomer->setText({});
    ui.txtRemarks->clear();
    ui.txtBalance->setText("0.00");
    showNoContact();
    ui.txtUpdatedBy->setText(screen_.newShowsUser ? session().CurrentUserCode : QString());
    ui.txtLastUpdate->setText(today);
    showLines({});
    ui.cboCustomer->setFocus();
}

void OrderEntry::openDocument(const QString& key) {
    mblnAddmode = false;
    mblnUpdated = false;
    mstrPrimary = key;
    held_ = key;
    ui.showNewDocument(false);
    // Should they not load, the lines of the document before are not taken for this one's.
    showLines({});
    guarded([this] {
        Connection& store = StoreConnection();
        frmStatus status;
        LoadedOrder nothing;
        nothing.document.code = mstrPrimary;
        showLoaded(nothing);
        try {
            showLoaded(loadOrder(store, orderBook(), mstrPrimary));
        } catch (const StoreError& failure) {
            showBox(exclamation("Error Loading", "Error loading record.  " + failure.text()));
        }
        showLines(loadOrderLines(store, orderBook(), mstrPrimary, status));
    });
    ui.txtRemarks->setFocus();
}

void OrderEntry::showLoaded(const LoadedOrder& loaded) {
    ui.txtCode->setText(loaded.document.code);
    ui.txtRefDate->setText(loaded.document.date);
    ui.cboCustomer->setText(loaded.document.contactName);
    ui.txtRemarks->setText(loaded.document.remarks);
    ui.txtBalance->setText(loaded.balance);
    ui.txtUpdatedBy->setText(loaded.updatedBy);
    ui.txtLastUpdate->setText(loaded.lastUpdate);
    showContact(loaded.contact);
}

void OrderEntry::showContact(const ContactFigures& figures) {
    ui.txtTerm->setText(figures.term);
    ui.txtCustomerBalance->setText(figures.balance);
    if (ui.txtCreditLimit) ui.txtCreditLimit->setText(figures.creditLimit);
}

void OrderEntry::showNoContact() { showContact({{}, "0.00"}); }

void OrderEntry::showLines(const QList<OrderLine>& lines) {
    QList<QStringList> rows;
    rows.reserve(lines.size());
    for (const OrderLine& line : lines) rows.append(line.texts());
    ui.lvwItems->setRows(rows);
    ui.hideSortArrow();
    countLines();
}

OrderDocument OrderEntry::head() const {
    OrderDocument typed;
    typed.addMode = mblnAddmode;
    typed.code = mblnAddmode ? ui.txtCode->text() : mstrPrimary;
    typed.serial = trim(ui.number->serial());
    typed.date = ui.txtRefDate->text();
    typed.contactName = ui.cboCustomer->text();
    typed.remarks = ui.txtRemarks->text();
    typed.wholesale = ui.chkWholesale && ui.chkWholesale->isChecked();
    return typed;
}

OrderDocument OrderEntry::document() const {
    OrderDocument typed = head();
    for (const QStringList& row : ui.lvwItems->rows()) typed.lines.append(OrderLine::fromTexts(row));
    return typed;
}

// The contact

void OrderEntry::findContact() {
    const QPointer<OrderEntry> screen(this);
    openContactFound(StoreConnection(), ui.cboCustomer->text(), screen_.contactFilter,
                     [screen](const GridPicker::Row& row) {
                         if (screen) screen->takeContact(row("ContactName"), row("ContactID"));
                     });
}

void OrderEntry::takeContact(const QString& name, const QString& contactId) {
    ui.cboCustomer->setText(name);
    showNoContact();
    guarded([&] { showContact(contactFigures(StoreConnection(), orderBook(), contactId)); });
    ui.txtRemarks->setFocus();
}

bool OrderEntry::CheckContact() {
    if (ui.cboCustomer->text().isEmpty()) {
        showBox(exclamation("Blank", orderBook().noContactEntered));
        return false;
    }
    bool found = false;
    guarded([&] { found = contactExists(StoreConnection(), ui.cboCustomer->text()); });
    return found;
}

// True when lines may be entered for the contact; else tells why not.
bool OrderEntry::contactReady(const char* unknown) {
    const auto refuse = [this](const Box& box) {
        showFault({box, "cboCustomer"}, this);
        return false;
    };
    const QString name = ui.cboCustomer->text();
    if (trim(name).isEmpty()) return refuse(exclamation("Error!", screen_.selectContactFirst));
    bool found = false;
    if (!guarded([&] { found = contactExists(StoreConnection(), name); })) return false;
    return found || refuse({"Does not exist!", unknown, screen_.noContactIcon});
}

// Lines

bool OrderEntry::hasLine(const QString& itemCode) const {
    return ui.lvwItems->findRow(OrderLine::Code, trim(itemCode)) >= 0;
}

OrderLine OrderEntry::lineAt(int row) const { return OrderLine::fromTexts(ui.lvwItems->row(row)); }

void OrderEntry::addLine(const OrderLine& line) {
    ui.lvwItems->addRow(line.texts());
    countLines();
    if (ui.chkWholesale) ui.chkWholesale->setEnabled(false);
}

void OrderEntry::replaceLine(int row, const OrderLine& line) {
    const QStringList texts = line.texts();
    for (int column = 0; column < texts.size(); ++column) ui.lvwItems->setText(row, column, texts[column]);
    countLines();
}

void OrderEntry::countLines() {
    ui.txtCount->setText(QString::number(ui.lvwItems->rowCount()));
    RecomputeTotal();
}

void OrderEntry::RecomputeTotal() {
    guarded([this] {
        Currency sum;
        for (int row = 0; row < ui.lvwItems->rowCount(); ++row)
            sum += numberOrZero(ui.lvwItems->text(row, OrderLine::Total));
        ui.txtAmount->setText(formatNumber(sum, mask::amount));
    });
}

void OrderEntry::allowWholesale() {
    if (ui.chkWholesale) ui.chkWholesale->setEnabled(ui.lvwItems->rowCount() == 0);
}

frmAddItem& OrderEntry::openLineDialog() {
    mblnUpdated = true;
    lineDialog_ = new frmAddItem(*this);
    connect(lineDialog_, &ChildScreen::unloaded, this, &OrderEntry::allowWholesale);
    return *lineDialog_;
}

void OrderEntry::startLine() {
    if (lineDialogHolds() || !contactReady(screen_.noContactToAdd)) return;
    frmAddItem& dialog = openLineDialog();
    ScreenRegistry::instance().show(&dialog);
    dialog.NewOrder();
}

void OrderEntry::changeLine() {
    if (lineDialogHolds() || !contactReady(screen_.noContactToEdit)) return;
    const int row = ui.lvwItems->currentRow();
    if (row < 0) return;
    const OrderLine line = lineAt(row);
    frmAddItem& dialog = openLineDialog();
    ui.lvwItems->removeRow(row);
    countLines();
    ScreenRegistry::instance().show(&dialog);
    dialog.changeOrder(line);
}

void OrderEntry::removeLine() {
    const int row = ui.lvwItems->currentRow();
    if (row < 0 || lineDialogHolds()) return;
    if (askYes(confirmDeleteBox())) {
        ui.lvwItems->removeRow(row);
        mblnUpdated = true;
    }
    countLines();
    allowWholesale();
}

void OrderEntry::serveLine() {
    const int row = ui.lvwItems->currentRow();
    if (row < 0 || lineDialogHolds()) return;
    mblnUpdated = true;
    quantityPopup_ = new frmInputInList(*this, row);
    ScreenRegistry::instance().show(quantityPopup_);
}

void OrderEntry::showSorted(int column) {
    ui.showSortArrow(column, ui.lvwItems->sortOrder());
    if (screen_.sortDirties) mblnUpdated = true;
}

// An open line dialog comes first: a line may be out of the list and in its hands.
bool OrderEntry::lineDialogHolds() {
    if (!lineDialog_) return false;
    showBox(exclamation("Lost Focus!", "Please Click on Close Button to Exit!"));
    if (lineDialog_) lineDialog_->comeForward();
    return true;
}

// Saving and leaving

bool OrderEntry::SaveRecord() {
    if (lineDialogHolds()) return false;
    RecomputeTotal();
    Outcome outcome;
    {
        frmStatus status;
        outcome = saveOrder(StoreConnection(), orderBook(), document(), status);
    }
    if (const auto* fault = std::get_if<Fault>(&outcome)) {
        showFault(*fault, this);
        return false;
    }
    finishSave(std::get<Done>(outcome).boxes);
    return true;
}

void OrderEntry::finishSave(const Boxes& boxes) {
    // The save itself has cleared the lock.
    held_.clear();
    showBoxes(boxes);
    const QPointer<ChildScreen> paper = offerPrint();
    showBox(exclamation("Saved!", "Record Successfully Saved!"));
    startNew();
    if (paper) ScreenRegistry::instance().show(paper);
}

// The preview of the document's paper; null when none was asked for.
ChildScreen* OrderEntry::offerPrint() {
    if (!canPrint_ || !askYes(question("Print", screen_.printQuestion))) return nullptr;
    ChildScreen* paper = nullptr;
    guarded([&] { paper = screen_.print(trim(ui.txtCode->text())); });
    return paper;
}

// The closing question, when there is something to ask about. False: stay.
bool OrderEntry::settleChanges() {
    if (!mblnUpdated) return true;
    const char* title = mblnAddmode ? "Confirm Add Record!" : "Confirm Update Record!";
    const char* text = mblnAddmode ? "Add New Record to Existing File then Exit?"
                                   : "Current Record has been Updated.  Save Changes then Exit?";
    const BoxAnswer answer =
        showBox({title, text, BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes});
    if (answer == BoxAnswer::Yes) return SaveRecord();
    return answer == BoxAnswer::No;
}

bool OrderEntry::queryUnload() { return !lineDialogHolds() && settleChanges(); }

void OrderEntry::unloading() {
    if (lineDialog_) lineDialog_->abandon();
    if (quantityPopup_) quantityPopup_->unload();
    releaseLock();
}

void OrderEntry::releaseLock() {
    if (held_.isEmpty()) return;
    guarded([this] { setRecordLock(StoreConnection(), orderBook().master, held_, false); });
    held_.clear();
}
