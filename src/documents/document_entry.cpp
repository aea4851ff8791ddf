#include "documents/document_entry.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/frmContactFound.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/closing_question.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/settled.h"

#include <QTimer>

DocumentEntry::DocumentEntry(const DocumentScreen& words)
    : RecordScreen(words.name, words.caption, FillsFrame), ui(words), words_(words) {
    connectHead();
    connectList();
    guarded([this] { canPrint_ = UserHasAccess(StoreConnection(), words_.printRight); });
}

// What the controls do

void DocumentEntry::connectHead() {
    connect(ui.number, &NumberEntry::composed, ui.txtCode, &QLineEdit::setText);
    connect(ui.number, &NumberEntry::left, this, [this] { ui.txtRefDate->setFocus(); });
    connect(ui.txtRefDate, &TextBox::entered, this, [this] { ui.cboCustomer->setFocus(Qt::TabFocusReason); });
    connect(ui.cboCustomer, &ComboBox::entered, this, [this] {
        mblnUpdated = true;
        findContact();
    });
    // Another name is typed: the figures are not its own until it is picked.
    connect(ui.cboCustomer, &ComboBox::keyTyped, this, &DocumentEntry::showNoContact);
    connect(ui.cmdSearch, &QToolButton::clicked, this, &DocumentEntry::findContact);
    // The list of the contact box is the search itself; it opens when the box is done with its key or click.
    ui.cboCustomer->setFiller([this] { QTimer::singleShot(0, this, &DocumentEntry::findContact); });
}

// Whatever a person types is asked about before it is left, in a combo's box too.
void DocumentEntry::connectDirtying() {
    for (TextBox* box : findChildren<TextBox*>())
        connect(box, &TextBox::keyTyped, this, [this] { mblnUpdated = true; });
}

void DocumentEntry::connectList() {
    const auto start = [this] { startLine(); };
    const auto change = [this] { changeLine(); };
    connect(ui.lvwItems, &ListView::insertPressed, this, start);
    connect(ui.lvwItems, &ListView::editPressed, this, change);
    connect(ui.lvwItems, &ListView::rowDoubleClicked, this, change);
    connect(ui.lvwItems, &ListView::deletePressed, this, &DocumentEntry::removeLine);
    connect(ui.cmdAdd, &QPushButton::clicked, this, start);
    connect(ui.cmdEdit, &QPushButton::clicked, this, change);
    connect(ui.cmdRemove, &QPushButton::clicked, this, &DocumentEntry::removeLine);
}

// Documents

bool DocumentEntry::receive(const ScreenArguments& arguments) {
    if (!leavesDocument()) return false;
    if (held_.key != arguments.key) releaseLock();
    if (arguments.key.isEmpty())
        startNew();
    else
        openDocument(arguments.key);
    return RecordScreen::receive(arguments);
}

void DocumentEntry::NewRecord() {
    if (!leavesDocument()) return;
    releaseLock();
    startNew();
}

void DocumentEntry::startNew() {
    mblnAddmode = true;
    mblnUpdated = false;
    mstrPrimary.clear();
    ui.showNewDocument(true);
    guarded([this] { ui.number->propose(); });
    const QString today = formatDate(Clock::today());
    showHead({.code = ui.txtCode->text(), .date = today},
             {.updatedBy = words_.newShowsUser ? session().CurrentUserCode : QString(), .lastUpdate = today});
    for (LineList* list : lists_) list->clear();
    clearDocument();
    ui.cboCustomer->setFocus();
}

void DocumentEntry::openDocument(const QString& key) {
    mblnAddmode = false;
    mstrPrimary = key;
    if (held_.key != key) {
        held_ = {key};
        guarded([&] { held_ = heldLock(StoreConnection(), words_.master, key); });
    }
    showDocument();
}

void DocumentEntry::showDocument() {
    mblnUpdated = false;
    ui.showNewDocument(false);
    // Should it not load, what the document before left is not taken for this one's.
    showHead({.code = mstrPrimary}, {});
    for (LineList* list : lists_) list->clear();
    guarded([this] { loadDocument(); });
    ui.txtRemarks->setFocus();
}

// Whoever has saved it meanwhile has cleared the lock, too.
void DocumentEntry::RefreshRecord() {
    static const Box forget = question(
        "Refresh?", "What You Have Typed Will Be Gone! Show the Document as It is Stored?", BoxAnswer::No);
    if (mblnAddmode || popupHolds() || (mblnUpdated && !askYes(forget))) return;
    guarded([this] { setRecordLock(StoreConnection(), words_.master, mstrPrimary, true); });
    showDocument();
}

DocumentHead DocumentEntry::head() const {
    return {.addMode = mblnAddmode,
            .code = mblnAddmode ? ui.txtCode->text() : mstrPrimary,
            .serial = ui.number->serial(),
            .date = ui.txtRefDate->text(),
            .contactName = ui.cboCustomer->text(),
            .remarks = ui.txtRemarks->text(),
            .loaded = loaded_};
}

void DocumentEntry::showHead(const DocumentHead& document, const StoredHead& stored) {
    loaded_ = document.loaded;
    ui.txtCode->setText(document.code);
    ui.txtRefDate->setText(document.date);
    ui.cboCustomer->setText(document.contactName);
    ui.txtRemarks->setText(document.remarks);
    ui.txtUpdatedBy->setText(stored.updatedBy);
    ui.txtLastUpdate->setText(stored.lastUpdate);
    showContact(stored.contact);
}

// The contact

void DocumentEntry::showContact(const ContactFigures& figures) {
    ui.txtTerm->setText(figures.term);
    ui.txtCustomerBalance->setText(figures.balance);
}

void DocumentEntry::findContact() {
    const QPointer<DocumentEntry> screen(this);
    openContactFound(StoreConnection(), ui.cboCustomer->text(), words_.contactFilter,
                     [screen](const GridPicker::Row& row) {
                         if (screen) screen->takeContact(row("ContactName"), row("ContactID"));
                     });
}

void DocumentEntry::takeContact(const QString& name, const QString& contactId) {
    mblnUpdated = true;
    ui.cboCustomer->setText(name);
    showNoContact();
    guarded([&] { showContact(contactFigures(StoreConnection(), words_.contactBalance, contactId)); });
    ui.txtRemarks->setFocus();
}

bool DocumentEntry::CheckContact() {
    if (ui.cboCustomer->text().isEmpty()) {
        showBox(exclamation("Blank", words_.noContactEntered));
        return false;
    }
    bool found = false;
    guarded([&] { found = contactExists(StoreConnection(), ui.cboCustomer->text()); });
    return found;
}

bool DocumentEntry::lineReady(const DocumentScreen::ContactMissing& missing) {
    if (popupHolds()) return false;
    const auto refuse = [this](const Box& box) {
        showFault({box, "cboCustomer"}, this);
        return false;
    };
    const QString name = ui.cboCustomer->text();
    if (trim(name).isEmpty()) return refuse(exclamation("Error!", missing.notChosen));
    bool found = false;
    if (!guarded([&] { found = contactExists(StoreConnection(), name); })) return false;
    if (!found) return refuse({"Does not exist!", missing.unknown, words_.unknownIcon});
    // A line is tested as of the document's date.
    return ui.txtRefDate->settle();
}

// Lines

void DocumentEntry::setLines(LineList& lines) {
    lines_ = &lines;
    addList(lines);
    // The fields of the kind are made by now.
    connectDirtying();
}

void DocumentEntry::addList(LineList& lines) {
    lists_ += &lines;
    connect(&lines, &LineList::changed, this, [this] {
        ui.txtCount->setText(QString::number(lines_->count()));
        RecomputeTotal();
    });
}

void DocumentEntry::RecomputeTotal() {
    guarded([this] { ui.txtAmount->setText(formatNumber(lines_->sum(words_.totalColumn), mask::amount)); });
    linesChanged();
}

void DocumentEntry::removeLine() {
    if (lines_->isSelected() && !popupHolds()) lines_->removeLine();
}

bool DocumentEntry::popupHolds() {
    return std::ranges::any_of(lists_, [](LineList* list) { return list->popupHolds(); });
}

// Saving and leaving

bool DocumentEntry::SaveRecord() {
    if (popupHolds()) return false;
    RecomputeTotal();
    Outcome outcome;
    const bool ran = guarded([&] {
        frmStatus status;
        outcome = saveDocument(status);
    });
    if (!ran) return false;
    if (!settled(outcome, this)) return false;
    finishSave();
    return true;
}

void DocumentEntry::finishSave() {
    // The save itself has cleared the lock.
    held_ = {};
    const auto papers = offerPapers();
    showBox(information("Saved!", words_.saved));
    startNew();
    for (const QPointer<ChildScreen>& paper : papers)
        if (paper) ScreenRegistry::instance().show(paper);
}

// The previews of the papers that were asked for.
QList<QPointer<ChildScreen>> DocumentEntry::offerPapers() {
    QList<QPointer<ChildScreen>> wanted;
    if (!canPrint_) return wanted;
    for (const DocumentScreen::Paper& paper : words_.papers)
        if (askYes(question("Print", paper.question)))
            guarded([&] { wanted += paper.show(trim(ui.txtCode->text())); });
    return wanted;
}

bool DocumentEntry::leavesDocument() {
    return !popupHolds() && settleChanges(*this, [this] { return SaveRecord(); });
}

bool DocumentEntry::queryUnload() { return leavesDocument(); }

void DocumentEntry::unloading() {
    for (LineList* list : lists_) list->abandonPopup();
    releaseLock();
}

void DocumentEntry::releaseLock() {
    if (held_.key.isEmpty()) return;
    guarded([this] { releaseRecordLock(StoreConnection(), words_.master, held_); });
    held_ = {};
}
