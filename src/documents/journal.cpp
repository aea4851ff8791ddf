#include "documents/journal.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_look.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/search_keys.h"
#include "platform/ui/text_box.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>

namespace {
Box locked() {
    return critical("Record Lock!",
                    "Record is Being Locked! You Cannot Edit This Record! Please Ask Administrator to Unlock "
                    "Record!");
}

Box nothingToDelete() {
    return exclamation("Nothing to Delete!", "Can't You See There is Nothing to Delete!");
}

Box accessDenied(const char* what) {
    return critical("Access Denied!", QString("You don't have Permission to %1 Record!").arg(QString(what)));
}

Box confirmDeletion() {
    return question("Confirm Delete", "Confirm Deletion of this Record. Delete Record Now?", BoxAnswer::No);
}

}  // namespace

Journal::Journal(const JournalBook& book)
    : ChildScreen(book.screen, book.caption, Centred),
      book_(book),
      query_(book.tables),
      canPrint_(UserHasAccess(StoreConnection(), book.printRight)),
      canDelete_(UserHasAccess(StoreConnection(), book.deleteRight)) {
    auto* top = new QHBoxLayout;
    top->addWidget(searchFrame(), 1);
    top->addWidget(sortFrame());
    dbgMyGrid = new DataGrid("dbgMyGrid", "adcMyControl", book.columns);
    dbgMyGrid->setAccessibleName("Documents");
    dbgMyGrid->followOwnChanges();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(dbgMyGrid, 1);
    layout->addLayout(commandRow());
    form::setAccessibleFromTexts(this);
    connectControls();
    fitKeyFilter();
    openAsLeft();
}

QSize Journal::sizeHint() const {
    const QSize roomy(form::charactersWide(this, 175), fontMetrics().height() * 36);
    return roomy.expandedTo(minimumSizeHint());
}

QRadioButton* Journal::addOption(QButtonGroup* group, QGridLayout* grid, const QString& name,
                                 const QString& caption) {
    constexpr int optionRows = 2;
    auto* option = new QRadioButton(caption);
    option->setObjectName(name);
    const int place = static_cast<int>(group->buttons().size());
    grid->addWidget(option, place % optionRows, place / optionRows);
    group->addButton(option);
    return option;
}

QWidget* Journal::searchFrame() {
    cboSearch = new ComboBox("cboSearch", ComboBox::Open);
    cboSearch->setKeyFilter(keys::freeText());
    cboSearch->addItems(captionsOf(book_.tables.fields));
    cboSearch->setText(book_.initialField);
    txtSearch = new TextBox("txtSearch");
    txtSearch->setMinimumWidth(form::charactersWide(txtSearch, 24));
    txtSearch->setAccessibleName("Search text");
    txtSearch->installEventFilter(this);
    cmdSearch = form::button("cmdSearch", "&Search", "search");

    auto* type = form::frame("fraSearchType", "Search Type:");
    auto* options = new QGridLayout(type);
    auto* group = new QButtonGroup(this);
    optAny = addOption(group, options, "optAny", "Any");
    optExact = addOption(group, options, "optExact", "Exact");
    optAny->setChecked(true);

    auto* frame = new QWidget;
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(form::label("Search Criteria:", cboSearch), 0, 0);
    grid->addWidget(cboSearch, 1, 0);
    grid->addWidget(txtSearch, 1, 1);
    grid->addWidget(cmdSearch, 1, 2);
    grid->addWidget(type, 0, 3, 3, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    return frame;
}

QWidget* Journal::sortFrame() {
    auto* frame = form::frame("fraSort", "Sort By:");
    auto* options = new QGridLayout(frame);
    sortOptions_ = new QButtonGroup(this);
    for (const JournalSort& sort : book_.sorts)
        sorts_ += addOption(sortOptions_, options, sort.name, sort.caption);
    optPrinted = addOption(sortOptions_, options, "optPrinted", "Printed");
    optUnPrinted = addOption(sortOptions_, options, "optUnPrinted", "UnPrinted");
    optUnPrinted->setChecked(true);
    return frame;
}

QLayout* Journal::commandRow() {
    auto* row = new QHBoxLayout;
    const auto add = [row](const char* name, const char* caption, const char* icon) {
        QPushButton* button = form::button(name, caption, icon);
        row->addWidget(button);
        return button;
    };
    cmdNew = add("cmdNew", "&New", "new");
    cmdRow = add(book_.rowCommand.name, book_.rowCommand.caption, book_.rowCommand.icon);
    cmdDelete = add("cmdDelete", "&Delete", "delete");
    cmdPrint = add("cmdPrint", "&Print", "print");
    cmdRefresh = add("cmdRefresh", "&Refresh", "refresh");
    row->addStretch(1);
    cmdExit = add("cmdExit", "E&xit", "exit");
    cmdDelete->setEnabled(canDelete_);
    cmdPrint->setEnabled(canPrint_);
    return row;
}

void Journal::connectControls() {
    connect(cboSearch, &QComboBox::currentTextChanged, this, &Journal::fitKeyFilter);
    connect(txtSearch, &TextBox::entered, cmdSearch, &QPushButton::click);
    connect(cmdSearch, &QPushButton::clicked, this, [this] { searchJournal(); });
    connect(sortOptions_, &QButtonGroup::buttonClicked, this, &Journal::sortByOption);
    connect(dbgMyGrid, &DataGrid::headerClicked, this, &Journal::sortByHeader);
    connect(dbgMyGrid, &DataGrid::picked, this, &Journal::EditRecord);
    connect(cmdNew, &QPushButton::clicked, this, &Journal::NewRecord);
    connect(cmdRow, &QPushButton::clicked, this, &Journal::EditRecord);
    connect(cmdDelete, &QPushButton::clicked, this, &Journal::DeleteRecord);
    connect(cmdPrint, &QPushButton::clicked, this, &Journal::PrintRecord);
    connect(cmdRefresh, &QPushButton::clicked, this, &Journal::RefreshRecord);
    connect(cmdExit, &QPushButton::clicked, this, &Journal::CloseRecord);
}

bool Journal::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
        return ChildScreen::eventFilter(watched, event);
    dbgMyGrid->setFocus(Qt::TabFocusReason);
    return true;
}

void Journal::fitKeyFilter() {
    txtSearch->setKeyFilter(searchKeys(findField(book_.tables.fields, trim(cboSearch->text()))));
}

QString Journal::whyEmpty() const {
    if (searching()) return list_look::nothingFound(trim(txtSearch->text()), trim(cboSearch->text()));
    if (optUnPrinted->isChecked()) return "Every document is printed. Printed, or an order, lists them.";
    return optPrinted->isChecked() ? "No document is printed yet." : "No documents yet. New enters one.";
}

void Journal::refreshGrid(Place place) {
    list_look::sayWhenEmpty(dbgMyGrid, whyEmpty());
    guarded([&] {
        dbgMyGrid->setSource(
            StoreConnection(),
            {query_.columns(), query_.from(), book_.tables.table, query_.where(), query_.order()}, place);
    });
}

bool Journal::searching() const { return !trim(txtSearch->text()).isEmpty(); }

void Journal::searchJournal(Place place) {
    if (const auto fault = query_.search(cboSearch->text(), txtSearch->text(), optExact->isChecked()))
        showFault(*fault, this);
    else
        refreshGrid(place);
}

void Journal::searchOrRefresh(Place place) {
    if (searching())
        searchJournal(place);
    else
        refreshGrid(place);
}

void Journal::applyOption() {
    if (!sortOptions_->checkedButton()) return;  // a heading gave the order
    for (qsizetype i = 0; i < sorts_.size(); ++i)
        if (sorts_[i]->isChecked()) return query_.setOrder(book_.sorts[i].order);
    query_.setPrintedFilter(optPrinted->isChecked(), searching());
}

// On what is not printed, sorted as the person left the journal the last time.
void Journal::openAsLeft() {
    const int column = dbgMyGrid->keptColumn();
    if (column >= 0) query_.setFilteredOrder(book_.columns[column].order);
    applyOption();
    searchOrRefresh();
    dbgMyGrid->showOrder(query_.order());
}

void Journal::sortByOption() {
    query_.setFilteredOrder({});
    applyOption();
    searchOrRefresh();
    dbgMyGrid->showOrder({});
    dbgMyGrid->keepOrder(query_.order());
}

void Journal::RefreshRecord() {
    applyOption();
    searchOrRefresh(Place::Kept);
}

// None of them holds any longer.
void Journal::clearOptions() {
    sortOptions_->setExclusive(false);
    for (QAbstractButton* option : sortOptions_->buttons()) option->setChecked(false);
    sortOptions_->setExclusive(true);
}

void Journal::sortByHeader(int column) {
    query_.setFilteredOrder({});
    query_.setOrder(book_.columns[column].order);
    clearOptions();
    searchOrRefresh();
    dbgMyGrid->showOrder(query_.order());
}

ChildScreen* Journal::openEntry(const ScreenArguments& arguments) {
    return ScreenRegistry::instance().open(book_.entryScreen, arguments);
}

void Journal::NewRecord() {
    guarded([this] { openEntry({}); });
}

void Journal::EditRecord() {
    guarded([this] { book_.rowCommand.popup ? showPopup() : edit(); });
}

void Journal::showNothing() { showBox(exclamation("Error!", book_.rowCommand.nothing)); }

// The grid has the focus when the popup goes.
void Journal::showPopup() {
    if (!dbgMyGrid->hasCurrent()) return showNothing();
    dbgMyGrid->setFocus();
    ScreenRegistry::instance().show(book_.rowCommand.popup(*dbgMyGrid));
}

void Journal::edit() {
    const QString key = currentNumber();
    if (ChildScreen* entry = entryShowing(key)) return ScreenRegistry::instance().show(entry);
    switch (key.isEmpty() ? LockResult::Gone : takeRecordLock(StoreConnection(), book_.master, key)) {
        case LockResult::Locked:
            showBox(locked());
            break;
        case LockResult::Gone:
            showNothing();
            break;
        case LockResult::Taken:
            editLocked(key);
            break;
    }
}

// The entry screen holds the lock from here on; where it stays with another document, nobody does.
void Journal::editLocked(const QString& key) {
    ChildScreen* entry = nullptr;
    guarded([&] { entry = openEntry({{}, key, {}}); });
    if (!entry) setRecordLock(StoreConnection(), book_.master, key, false);
}

// The document that is open for editing in this very program is locked by it, not against it.
ChildScreen* Journal::entryShowing(const QString& key) const {
    ChildScreen* entry = ScreenRegistry::instance().opened(book_.entryScreen);
    const bool shows = entry && !key.isEmpty() && !entry->property("mblnAddmode").toBool() &&
                       entry->property("mstrPrimary").toString().compare(key, Qt::CaseInsensitive) == 0;
    return shows ? entry : nullptr;
}

void Journal::DeleteRecord() {
    if (!canDelete_ && book_.saysNoDeleteRight) {
        showBox(accessDenied("Delete"));
        return;
    }
    if (!askYes(confirmDeletion())) return;
    guarded([this] {
        try {
            deleteCurrent();
        } catch (const StoreError& error) {
            if (error.number() != StoreError::noCurrentRow) throw;
            showBox(nothingToDelete());
        }
    });
}

QString Journal::currentNumber() const { return dbgMyGrid->currentText(book_.master.key); }

void Journal::deleteCurrent() {
    if (!dbgMyGrid->hasCurrent()) throw StoreError(StoreError::noCurrentRow, "No current record.");
    QVariant key = currentNumber();
    if (book_.keyKind == JournalBook::NumberKey) key = key.toLongLong();
    frmStatus status;
    const Outcome outcome = deleteDocument(StoreConnection(), book_.deletion, key, status);
    if (const auto* fault = std::get_if<Fault>(&outcome)) return showFault(*fault, this);
    refreshGrid(Place::Kept);
}

void Journal::PrintRecord() {
    if (!canPrint_)
        showBox(accessDenied("Print"));
    else if (!dbgMyGrid->hasCurrent() || !book_.print)
        showBox(book_.nothingToPrint);
    else
        guarded([this] { book_.print(currentNumber()); });
}
