#include "documents/check_list.h"

#include "documents/check_dialog.h"
#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_look.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

namespace {
QList<ListColumn> listColumns(const CheckBook& book) {
    QList<ListColumn> columns;
    for (const CheckColumn& column : book.columns) columns += column.list;
    return columns;
}

DateBox* dateBox(const char* name, const QString& accessibleName, const QString& text) {
    auto* box = new DateBox(name);
    box->setText(text);
    box->setAccessibleName(accessibleName);
    return box;
}

template <class Named>
ComboBox* comboOf(const char* name, const QList<Named>& all, const QString& chosen) {
    auto* combo = new ComboBox(name, ComboBox::Open);
    combo->setKeyFilter(keys::freeText());
    for (const Named& one : all) combo->addItem(one.name);
    combo->setText(chosen);
    return combo;
}
}  // namespace

CheckList::CheckList(const CheckScreen& words)
    : ChildScreen(words.name, words.caption), words_(words), view_(&words.book->views.first()) {
    makeControls();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(searchRow());
    layout->addWidget(lvwRecord, 1);
    layout->addLayout(buttonRow());
    form::setAccessibleFromTexts(this);
    connectControls();
    showEntries();
    LoadGrid({});
}

QSize CheckList::sizeHint() const {
    const QSize roomy(form::charactersWide(this, 175), fontMetrics().height() * 32);
    return roomy.expandedTo(minimumSizeHint());
}

void CheckList::makeControls() {
    const QString year = QString::number(Clock::today().year());
    cboView = comboOf("cboView", words_.book->views, view_->name);
    cboSearchBy = comboOf("cboSearchBy", words_.book->categories, words_.book->contactCategory);
    cboCheckStatus = new ComboBox("cboCheckStatus", ComboBox::Closed);
    cboCheckStatus->addItems(
        {check::drawnAgainstInsufficient, check::drawnAgainstUncollected, check::accountClosed});
    cboCheckStatus->setAccessibleName("Check status");
    txtSearch = new TextBox("txtSearch");
    txtSearch->setCapacity(width::search);
    txtSearch->setAccessibleName("Search text");
    txtFrom = dateBox("txtFrom", "From", "01/01/" + year);
    txtTo = dateBox("txtTo", "To", "12/31/" + year);
    for (DateBox* date : {txtFrom, txtTo})
        date->setRefusal([this] { return checkPeriodFault(typedSearch()); });
    lblTo = form::label("to");
    cmdSearch = form::button("cmdSearch", "&Search", "search");
    lvwRecord = new ListView("lvwRecord", listColumns(*words_.book));
    lvwRecord->setAccessibleName("Checks");
    lvwRecord->keepSort();
    lvwRecord->showMarks();
}

QLayout* CheckList::searchRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(form::label("View :", cboView));
    row->addWidget(cboView, 1);
    row->addWidget(form::label("Search By :", cboSearchBy));
    row->addWidget(cboSearchBy, 1);
    for (QWidget* entry : QList<QWidget*>{txtSearch, cboCheckStatus, txtFrom, lblTo, txtTo})
        row->addWidget(entry, entry == txtSearch ? 1 : 0);
    row->addWidget(cmdSearch);
    return row;
}

QToolButton* CheckList::addButton(QBoxLayout* row, const char* name, const char* icon, const char* text,
                                  void (CheckList::*command)()) {
    QToolButton* button = form::imageButton(name, icon, text);
    connect(button, &QToolButton::clicked, this, command);
    row->addWidget(button);
    return button;
}

QLayout* CheckList::buttonRow() {
    auto* row = new QHBoxLayout;
    addButton(row, "imgMark", "mark", "Mark All Items", &CheckList::markAll);
    addButton(row, "imgUnMark", "unmark", "UnMark All Items", &CheckList::unmarkAll);
    imgNegotiate = addButton(row, "imgNegotiate", "save", "Negotiate Marked Checks", &CheckList::negotiate);
    addButton(row, "imgEditStatus", "edit", "Update Check Status", &CheckList::EditRecord);
    addButton(row, "imgRefresh", "refresh", "Refresh", &CheckList::showAll);
    row->addStretch(1);
    addButton(row, "imgPrint", "print", "Print Report", &CheckList::PrintChecks);
    addButton(row, "imgExit", "exit", "Exit", &CheckList::CloseRecord);
    return row;
}

void CheckList::connectControls() {
    connect(cboView, &ComboBox::picked, this, &CheckList::showAll);
    connect(cboSearchBy, &QComboBox::currentTextChanged, this, &CheckList::showEntries);
    connect(cboCheckStatus, &ComboBox::picked, this, &CheckList::SearchRecord);
    connect(txtSearch, &TextBox::entered, this, &CheckList::SearchRecord);
    connect(cmdSearch, &QPushButton::clicked, this, &CheckList::SearchRecord);
    connect(lvwRecord, &ListView::entered, this, &CheckList::EditRecord);
    connect(lvwRecord, &ListView::rowDoubleClicked, this, &CheckList::EditRecord);
}

void CheckList::showEntries() {
    const CheckCategory* category = findCheckCategory(*words_.book, cboSearchBy->text());
    const auto kind = category ? category->kind : CheckCategory::Text;
    const bool isPeriod = kind == CheckCategory::Period;
    cboCheckStatus->setVisible(kind == CheckCategory::Status);
    txtSearch->setVisible(!isPeriod && kind != CheckCategory::Status);
    for (QWidget* entry : QList<QWidget*>{txtFrom, lblTo, txtTo}) entry->setVisible(isPeriod);
    txtSearch->setKeyFilter(kind == CheckCategory::Date ? keys::date() : keys::freeText());
}

void CheckList::showAll() {
    txtSearch->clear();
    LoadGrid({});
}

CheckSearch CheckList::typedSearch() const {
    return {cboSearchBy->text(), trim(txtSearch->text()), cboCheckStatus->text(), txtFrom->text(),
            txtTo->text()};
}

void CheckList::SearchRecord() {
    const auto clause = checkSearchClause(*words_.book, typedSearch());
    if (const auto* fault = std::get_if<Fault>(&clause)) return showFault(*fault, this);
    LoadGrid(std::get<Sql>(clause));
}

// The search text is given up; a status or a period goes on.
void CheckList::RefreshRecord() {
    if (txtSearch->isVisible()) return showAll();
    SearchRecord();
}

void CheckList::LoadGrid(const Sql& where) {
    guarded([&] {
        frmStatus status;
        const auto loaded = loadChecks(StoreConnection(), *words_.book, cboView->text(), where, status);
        if (const auto* fault = std::get_if<Fault>(&loaded)) return showFault(*fault, this);
        search_ = where;
        showRows(*findCheckView(*words_.book, cboView->text()), std::get<QList<CheckRow>>(loaded));
    });
}

// The check that the list stood on stays the current one where it is still listed.
void CheckList::showRows(const CheckView& view, const QList<CheckRow>& rows) {
    const QString current = lvwRecord->text(lvwRecord->currentRow(), check_column::control);
    QList<QStringList> texts;
    texts.reserve(rows.size());
    checks_.clear();
    checks_.reserve(rows.size());
    for (const CheckRow& row : rows) {
        texts += row.texts;
        checks_.insert(row.texts[check_column::control], row.check);
    }
    view_ = &view;
    list_look::sayWhenEmpty(lvwRecord, QString("Nothing found in the view \"%1\".").arg(view.name));
    lvwRecord->setRows(texts);
    QStringList headings;
    for (const CheckColumn& column : words_.book->columns) headings += column.list.heading;
    headings[check_column::number] = view.numberHeading;
    headings[check_column::date] = view.dateHeading;
    lvwRecord->setHeadings(headings);
    imgNegotiate->setVisible(view.tags);
    if (!texts.isEmpty())
        lvwRecord->setCurrentRow(std::max(0, lvwRecord->findRow(check_column::control, current)));
}

void CheckList::markAll() { lvwRecord->setAllMarked(true); }
void CheckList::unmarkAll() { lvwRecord->setAllMarked(false); }

QList<StoredCheck> CheckList::marked() const {
    QList<StoredCheck> checks;
    for (const int row : lvwRecord->markedRows())
        checks += checks_.value(lvwRecord->text(row, check_column::control));
    return checks;
}

void CheckList::negotiate() {
    guarded([this] {
        const Outcome outcome = askUntilSettled([this, checks = marked()](const Answers& answers) {
            return tagAsCleared(StoreConnection(), *words_.book, checks, answers);
        });
        if (isDone(outcome)) LoadGrid(search_);
        settled(outcome, this);
    });
}

void CheckList::EditRecord() {
    const auto chosen = checks_.constFind(lvwRecord->text(lvwRecord->currentRow(), check_column::control));
    if (chosen == checks_.constEnd() || dialog_) return;
    txtSearch->clear();
    dialog_ = new CheckDialog(*words_.book, words_.dialogName, chosen->key);
    connect(dialog_, &CheckDialog::saved, this, &CheckList::RefreshRecord);
    ScreenRegistry::instance().show(dialog_);
}

void CheckList::PrintChecks() {
    guarded([this] { words_.print(*view_, checksOf(*words_.book, *view_, search_)); });
}

void CheckList::unloading() {
    if (dialog_) dialog_->unload();
}
