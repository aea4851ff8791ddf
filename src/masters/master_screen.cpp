#include "masters/master_screen.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/hourglass.h"
#include "platform/ui/list_look.h"
#include "platform/ui/named_control.h"
#include "platform/ui/search_keys.h"
#include "platform/ui/text_box.h"

#include <QItemSelectionModel>
#include <QKeyEvent>

namespace {
bool hasField(const QList<SearchField>& fields, SearchField::Kind kind) {
    return std::ranges::any_of(fields, [kind](const SearchField& field) { return field.kind == kind; });
}

TextBox* searchBox(const QString& name, const QString& accessibleName) {
    auto* box = new TextBox(name);
    box->setCapacity(width::search);
    box->setKeyFilter(keys::freeText());
    box->setAccessibleName(accessibleName);
    box->setMinimumWidth(form::charactersWide(box, 12));
    return box;
}
}  // namespace

MasterScreen::MasterScreen(const MasterDescriptor& descriptor)
    : RecordScreen(descriptor.name, descriptor.caption), descriptor_(descriptor) {
    buildLayout();
    connectControls();
    if (const int column = dbgMyGrid->keptColumn(); column >= 0)
        keptOrder_ = descriptor_.columns.at(column).order;
    guarded([this] { descriptor_.listsAtOnce ? listAll() : UpdateRecordCount(); });
}

QSize MasterScreen::sizeHint() const {
    return QSize(form::charactersWide(this, 155), fontMetrics().height() * 42).expandedTo(minimumSizeHint());
}

// ---- the record on show

void MasterScreen::DisplayRecord(const QString& key) {
    mblnAddmode = false;
    mblnUpdated = false;
    fields_->clear();
    currentKey_ = trim(key);
    if (currentKey_.isEmpty()) return;
    try {
        const MasterTable& master = descriptor_.master;
        loaded_ = StoredState(StoreConnection(), {master}, currentKey_);
        const Recordset row = StoreConnection().execute(
            {QString("SELECT * FROM %1 WHERE %2 = ?").arg(master.table, master.key), {currentKey_}});
        if (row.eof()) return;
        fields_->show(StoreConnection(), row);
        if (descriptor_.locksOnShow) LockFields();
    } catch (const StoreError& error) {
        showBox(exclamation("Error Loading", "Error loading record.  " + error.text()));
    }
}

// An empty form is no record: nothing typed into it could be saved.
void MasterScreen::ClearRecord() {
    mblnAddmode = false;
    mblnUpdated = false;
    currentKey_.clear();
    fields_->clear();
    LockFields();
}

void MasterScreen::UnlockFields() { fields_->unlock(mblnAddmode); }

void MasterScreen::NewRecord() { compose(false); }

void MasterScreen::duplicateRecord() { compose(true); }

void MasterScreen::compose(bool duplicate) {
    guarded([&] {
        mblnAddmode = true;
        mblnUpdated = false;
        UnlockFields();
        if (!duplicate) fields_->blankForNew();
        fields_->blankStamps();
        namedControl<QWidget>(this, descriptor_.firstField)->setFocus();
        currentKey_ = drawKey(duplicate);
    });
}

// It is the grid's row that is edited, not the record on show.
void MasterScreen::EditRecord() {
    DisplayRecord(keyToEdit());
    mblnUpdated = !descriptor_.editShowsLast;
    UnlockFields();
    const QString& first = descriptor_.editField.isEmpty() ? descriptor_.firstField : descriptor_.editField;
    namedControl<QWidget>(this, first)->setFocus();
}

void MasterScreen::SaveRecord() {
    guarded([this] {
        fields_->leave(focusWidget());
        mblnUpdated = true;
        QString key = currentKey_;
        const Outcome outcome = save(key);
        if (mblnAddmode) currentKey_ = key;
        if (const auto* fault = std::get_if<Fault>(&outcome)) return showFault(*fault, this);
        showBoxes(std::get<Done>(outcome).boxes);
        if (!key.isEmpty()) finishSave(key);
    });
}

// Shows what was stored: the figures typed are not always the ones that stay.
void MasterScreen::finishSave(const QString& key) {
    DisplayRecord(key);
    descriptor_.listsAfterSave ? listAll() : UpdateRecordCount();
    LockFields();
    markSaved(key);
}

// The grid stands on what was saved where it lists it, and an edit takes that in any case.
void MasterScreen::markSaved(const QString& key) {
    dbgMyGrid->selectKey(descriptor_.master.key, key);
    savedKey_ = key;
}

QString MasterScreen::keyToEdit() const { return savedKey_.isEmpty() ? gridKey() : savedKey_; }

void MasterScreen::DeleteRecord() {
    Box deletion = confirmDeleteBox();
    if (!descriptor_.deletion.isEmpty()) deletion.text = descriptor_.deletion;
    if (!askYes(deletion)) return;
    guarded([this] {
        try {
            const Outcome outcome = remove(gridKey());
            if (const auto* fault = std::get_if<Fault>(&outcome)) return showFault(*fault, this);
            ClearRecord();
            RefreshRecord();
        } catch (const StoreError& error) {
            if (error.number() != StoreError::noCurrentRow) throw;
            ClearRecord();
        }
    });
}

void MasterScreen::RefreshRecord() {
    guarded([this] {
        ofDate_ = {};
        listAll();
        dbgMyGrid->selectKey(descriptor_.master.key, currentKey_);
        ClearRecord();
        DisplayRecord(gridKey());
    });
}

// ---- the grid

QString MasterScreen::gridKey() const {
    return dbgMyGrid->hasCurrent() ? dbgMyGrid->currentText(descriptor_.master.key) : QString();
}

void MasterScreen::pickFromGrid() {
    if (!mblnUpdated && dbgMyGrid->hasCurrent()) DisplayRecord(gridKey());
}

void MasterScreen::LoadGrid(const Sql& where, const QString& order) {
    const Hourglass hourglass;
    savedKey_.clear();
    const QString table = descriptor_.master.table, sorted = order.isEmpty() ? keptOrder_ : order;
    dbgMyGrid->setSource(StoreConnection(),
                         {"*", table, table, where, sorted.isEmpty() ? descriptor_.defaultOrder : sorted});
    dbgMyGrid->showOrder(sorted);
    setCount(dbgMyGrid->recordCount(), descriptor_.listedNone, descriptor_.listed);
}

void MasterScreen::listAll(const QString& order) { LoadGrid(ofDate_, order); }

void MasterScreen::UpdateRecordCount() {
    setCount(CountRecords(StoreConnection(), descriptor_.master.table), descriptor_.countedNone,
             descriptor_.counted);
}

void MasterScreen::setCount(qint64 count, const QString& none, const QString& some) {
    fraCount->setTitle(count == 0 ? none : some.arg(formatCount(count)));
    fraCount->setAccessibleName(fraCount->title());
}

void MasterScreen::reloadAll() {
    ofDate_ = {};
    sayWhatFills();
    guarded([this] { listAll(); });
}

// ---- the search

SearchCondition MasterScreen::typeCondition(const QString& /*type*/) { return Sql(); }

// The field decides which boxes stand there and which keys they take.
void MasterScreen::fieldChosen() {
    const SearchField* field = findField(descriptor_.searchFields, cboSearchBy->text());
    const auto kind = field ? field->kind : SearchField::Text;
    txtSearch->setKeyFilter(searchKeys(field));
    txtSearch->setVisible(kind != SearchField::Choice);
    lblSearch->setText(kind == SearchField::Choice ? "Type :" : "Te&xt :");
    if (cboType) cboType->setVisible(kind == SearchField::Choice);
    if (lblDash) lblDash->setVisible(kind == SearchField::TwoWords);
    if (txtSecondSearch) txtSecondSearch->setVisible(kind == SearchField::TwoWords);
    if (kind == SearchField::Choice && cboType && isVisible()) cboType->setFocus();
}

void MasterScreen::search() {
    ClearRecord();
    guarded([this] {
        listCondition(searchCondition(descriptor_.searchFields, cboSearchBy->text(), txtSearch->text(),
                                      txtSecondSearch ? txtSecondSearch->text() : QString()));
    });
}

// In an empty grid: what fills it, or what a search has not found.
void MasterScreen::sayWhatFills() {
    if (!descriptor_.fills.isEmpty()) return list_look::sayWhenEmpty(dbgMyGrid, descriptor_.fills);
    const QString all = QString(descriptor_.allCaption).remove(u'&');
    list_look::sayWhenEmpty(dbgMyGrid, QString("Search, or press %1, to list records here.").arg(all));
}

void MasterScreen::sayWhatWasSought() {
    QStringList typed{trim(cboType && cboType->isVisible() ? cboType->text() : txtSearch->text())};
    if (txtSecondSearch && txtSecondSearch->isVisible()) typed += trim(txtSecondSearch->text());
    typed.removeAll({});
    if (typed.isEmpty()) return sayWhatFills();
    list_look::sayWhenEmpty(dbgMyGrid, list_look::nothingFound(typed.join(" - "), cboSearchBy->text()));
}

void MasterScreen::searchType() {
    ClearRecord();
    guarded([this] { listCondition(typeCondition(cboType->text())); });
}

// A date that is not whole yet changes nothing.
void MasterScreen::searchDate() {
    const auto date = parseDate(txtDate->text());
    if (!date) return;
    ofDate_ = {QString(" WHERE %1 = ?").arg(descriptor_.dateColumn), {*date}};
    list_look::sayWhenEmpty(dbgMyGrid, list_look::nothingFound(formatDate(*date)));
    guarded([this] { listAll(); });
}

void MasterScreen::listCondition(const SearchCondition& condition) {
    if (const Box* refusal = std::get_if<Box>(&condition)) {
        showBox(*refusal);
        return;
    }
    mblnUpdated = false;
    sayWhatWasSought();
    LoadGrid(std::get<Sql>(condition), {});
}

// ---- building

void MasterScreen::buildLayout() {
    auto* halves = new QVBoxLayout(this);
    if (!descriptor_.heading.isEmpty()) {
        QLabel* heading = form::label(descriptor_.heading);
        form::setFont(heading, 1.3, true);
        halves->addWidget(heading);
    }
    halves->addWidget(recordHalf());
    if (QWidget* line = commandLine()) halves->addWidget(line);
    halves->addWidget(gridHalf(), 1);
    form::setAccessibleFromTexts(this);
}

QWidget* MasterScreen::recordHalf() {
    auto* record = form::frame("fraRecord", {});
    record->setAccessibleName("Record");
    form::keepReadable(record, {QPalette::Text, QPalette::ButtonText, QPalette::WindowText});
    auto* grid = new QGridLayout(record);
    fields_ = new MasterFields(descriptor_.fields, grid, this);
    return record;
}

// The search and the buttons beside it; null when the master has none of them.
QWidget* MasterScreen::commandLine() {
    auto line = std::make_unique<QWidget>();
    auto* row = new QHBoxLayout(line.get());
    row->setContentsMargins({});
    if (!descriptor_.searchFields.isEmpty()) addSearch(row);
    if (!descriptor_.dateColumn.isEmpty()) addDateSearch(row);
    if (!descriptor_.allCaption.isEmpty())
        row->addWidget(form::button("cmdAll", descriptor_.allCaption, "refresh"));
    if (descriptor_.duplicates) row->addWidget(form::button("cmdNewDuplicate", "Add New &Duplicate", "new"));
    if (txtDate) row->addStretch();
    return row->isEmpty() ? nullptr : line.release();
}

void MasterScreen::addDateSearch(QHBoxLayout* row) {
    txtDate = new TextBox("txtDate");
    txtDate->setKeyFilter(keys::date());
    txtDate->setCapacity(width::date);
    txtDate->setText(formatDate(Clock::today()));
    field_width::fix(txtDate, field_width::date);
    row->addWidget(form::label("Search Date :", txtDate));
    row->addWidget(txtDate);
    connect(txtDate, &TextBox::textChanged, this, &MasterScreen::searchDate);
}

void MasterScreen::addSearch(QHBoxLayout* row) {
    cboSearchBy = new ComboBox("cboSearchBy", ComboBox::Closed);
    cboSearchBy->addItems(captionsOf(descriptor_.searchFields));
    row->addWidget(form::label("Search &By :", cboSearchBy));
    row->addWidget(cboSearchBy);
    txtSearch = searchBox("txtSearch", "Search value");
    lblSearch = form::label("Te&xt :", txtSearch);
    row->addWidget(lblSearch);
    row->addWidget(txtSearch, 1);
    addSecondBox(row);
    addTypeList(row);
    row->addWidget(form::button("cmdSearch", "Searc&h", "search"));
}

// The two boxes of a search for two words.
void MasterScreen::addSecondBox(QHBoxLayout* row) {
    if (!hasField(descriptor_.searchFields, SearchField::TwoWords)) return;
    lblDash = form::label("-");
    lblDash->setObjectName("lblDash");
    txtSecondSearch = searchBox("txtSecondSearch", "Second search value");
    row->addWidget(lblDash);
    row->addWidget(txtSecondSearch, 1);
}

void MasterScreen::addTypeList(QHBoxLayout* row) {
    if (descriptor_.types.isEmpty()) return;
    cboType = new ComboBox("cboType", ComboBox::Closed);
    cboType->addItems(descriptor_.types);
    cboType->setCurrentIndex(-1);
    cboType->setAccessibleName("Contact type");
    row->addWidget(cboType, 1);
}

QGroupBox* MasterScreen::gridHalf() {
    fraCount = form::frame("fraCount", {});
    auto* box = new QVBoxLayout(fraCount);
    dbgMyGrid = new DataGrid("dbgMyGrid", "adcMyControl", descriptor_.columns);
    dbgMyGrid->setAccessibleName("Records");
    sayWhatFills();
    box->addWidget(dbgMyGrid);
    return fraCount;
}

void MasterScreen::onClick(const char* name, void (MasterScreen::*act)()) {
    if (auto* button = findChild<QAbstractButton*>(name))
        connect(button, &QAbstractButton::clicked, this, act);
}

void MasterScreen::connectControls() {
    onClick("cmdAll", &MasterScreen::reloadAll);
    onClick("cmdNewDuplicate", &MasterScreen::duplicateRecord);
    connect(dbgMyGrid, &DataGrid::picked, this, &MasterScreen::pickFromGrid);
    if (descriptor_.listsAtOnce)
        connect(dbgMyGrid, &QTableView::clicked, this, [this] {
            if (!mblnAddmode) pickFromGrid();
        });
    connect(dbgMyGrid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { savedKey_.clear(); });
    connect(dbgMyGrid, &DataGrid::headerClicked, this, [this](int column) {
        guarded([&] {
            keptOrder_.clear();
            listAll(descriptor_.columns.at(column).order);
        });
    });
    if (cboSearchBy) connectSearch();
}

// Down leads from the search to what it has found.
bool MasterScreen::eventFilter(QObject* watched, QEvent* event) {
    const bool isDown = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down &&
                        (watched == txtSearch || watched == txtSecondSearch);
    if (!isDown) return RecordScreen::eventFilter(watched, event);
    dbgMyGrid->setFocus(Qt::TabFocusReason);
    return true;
}

void MasterScreen::connectSearch() {
    for (TextBox* box : {txtSearch, txtSecondSearch})
        if (box) box->installEventFilter(this);
    onClick("cmdSearch", &MasterScreen::search);
    connect(txtSearch, &TextBox::entered, this, &MasterScreen::search);
    if (txtSecondSearch) connect(txtSecondSearch, &TextBox::entered, this, &MasterScreen::search);
    if (cboType) connect(cboType, &ComboBox::picked, this, &MasterScreen::searchType);
    connect(cboSearchBy, &QComboBox::currentTextChanged, this, &MasterScreen::fieldChosen);
    cboSearchBy->setText(descriptor_.initialField);
    fieldChosen();
}

// ---- moving through the table

template <typename Step>
void WalkingMaster::move(Step step, const Box& atTheEnd) {
    try {
        const auto key = step(StoreConnection(), descriptor().master, currentKey());
        if (key)
            DisplayRecord(*key);
        else
            showBox(atTheEnd);
    } catch (const StoreError& error) {
        const bool lost = error.number() == StoreError::noCurrentRow && !descriptor().notLoaded.isEmpty();
        showBox(lost ? exclamation("Error!", descriptor().notLoaded) : exclamation("Error...", error.text()));
    }
}

void WalkingMaster::NextRecord() { move(nextRecord, information("EOF", "End of File Encountered...")); }

void WalkingMaster::PrevRecord() {
    move(previousRecord, information("BOF", "Beginning of File Encountered..."));
}

void WalkingMaster::showFromEnd(QString (*end)(Connection&, const MasterTable&)) {
    guarded([&] {
        const QString key = end(StoreConnection(), descriptor().master);
        if (!key.isEmpty()) DisplayRecord(key);
    });
}

void WalkingMaster::FirstRecord() { showFromEnd(firstRecord); }

void WalkingMaster::LastRecord() { showFromEnd(lastRecord); }
