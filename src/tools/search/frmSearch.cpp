#include "tools/search/frmSearch.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/text_box.h"
#include "reports/frame/report_start.h"
#include "tools/search/search_report.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace {
constexpr int firstRows = 100;
constexpr int furtherRows = 500;

bool isPlain(const QKeyEvent& event) { return !(event.modifiers() & ~Qt::KeypadModifier); }
}  // namespace

frmSearch::frmSearch()
    : ChildScreen("frmSearch", "Search...", FillsFrame),
      cboType(new ComboBox("cboType", ComboBox::Closed)),
      cboJournal(new ComboBox("cboJournal", ComboBox::Closed)),
      cmdPrint(form::button("cmdPrint", "Print Data Found [ F8 ]", "print")) {
    for (const SearchJournal& journal : searchJournals()) cboJournal->addItem(journal.name);
    build();
    connect(cboType, &ComboBox::picked, this, &frmSearch::kindChosen);
    connect(cboJournal, &ComboBox::picked, this, &frmSearch::journalChosen);
    connect(&more_, &QTimer::timeout, this, [this] {
        if (!guarded([this] { readOn(furtherRows); })) clearGrid();
    });
    guarded([this] { fillTypes(); });
    kindChosen();
}

// ---- building

static void sayWhatFills(ListView* list) {
    list_look::sayWhenEmpty(list, "Type above what to look for, or press F9 for all records.");
}

void frmSearch::build() {
    auto* layout = new QVBoxLayout(this);
    QLabel* heading = form::label("Search Database...");
    form::setFont(heading, 1.3, true);
    layout->addWidget(heading);
    layout->addLayout(typeLine());
    for (const SearchKind& kind : searchKinds()) panels_ += makePanel(kind);
    for (const Panel& panel : panels_) layout->addWidget(panel.frame);
    for (const Panel& panel : panels_) layout->addWidget(panel.list, 1);
    layout->addLayout(makeFoot());
    form::setAccessibleFromTexts(this);
}

QLayout* frmSearch::typeLine() {
    cboType->setMinimumWidth(form::charactersWide(cboType, 34));
    auto* line = new QHBoxLayout;
    line->addWidget(form::label("Select What to Inquire :"));
    line->addWidget(form::label("Search Type [ F7 ] :", cboType));
    line->addWidget(cboType);
    line->addStretch();
    return line;
}

frmSearch::Panel frmSearch::makePanel(const SearchKind& kind) {
    Panel panel{&kind, form::frame(kind.frame, kind.caption), new ListView(kind.list, kind.columns), {}};
    panel.list->setAccessibleName(QString("%1 found").arg(kind.caption));
    panel.list->setSortsByHeader(true);
    sayWhatFills(panel.list);
    panel.frame->setLayout(makeFilters(kind, panel));
    return panel;
}

QLayout* frmSearch::makeFilters(const SearchKind& kind, Panel& panel) {
    auto* line = new QHBoxLayout;
    if (kind.hasJournals) {
        line->addWidget(form::label("Journal :", cboJournal));
        line->addWidget(cboJournal);
    }
    for (const SearchFilter& filter : kind.filters) {
        TextBox* box = makeFilter(kind, filter);
        panel.filters += box;
        QLabel* label = form::label(filter.label, box);
        if (kind.hasJournals && !lblReference) {
            lblReference = label;
            label->setObjectName("lblReference");
        }
        line->addWidget(label);
        line->addWidget(box, 1);
    }
    QPushButton* clear = form::button(kind.clear, "Clea&r");
    connect(clear, &QPushButton::clicked, this, &frmSearch::clearPanel);
    line->addWidget(clear);
    return line;
}

static TextBox* emptyFilter(const SearchFilter& filter) {
    if (filter.match == SearchFilter::Date) return new DateBox(filter.control);
    auto* box = new TextBox(filter.control);
    box->setKeyFilter(keys::freeText());
    box->setCapacity(width::search);
    return box;
}

TextBox* frmSearch::makeFilter(const SearchKind& kind, const SearchFilter& filter) {
    TextBox* box = emptyFilter(filter);
    box->installEventFilter(this);
    if (kind.followsKeys)
        connect(box, &TextBox::keyTyped, this, [this] { search(); });
    else
        connect(box, &TextBox::focusLost, this, [this] { search(); });
    return box;
}

QLayout* frmSearch::makeFoot() {
    QPushButton* again = form::button("cmdNewSearch", "Perform New Search [ F5 ]", "refresh");
    QPushButton* all = form::button("cmdShowAll", "Show All Record [ F9 ]");
    QPushButton* clear = form::button("cmdClearGrid", "Clear Data Grid [ F11 ]");
    QPushButton* exit = form::button("cmdExit", "&Close Window [ ESC ]", "exit");
    connect(again, &QPushButton::clicked, this, &frmSearch::RefreshRecord);
    connect(cmdPrint, &QPushButton::clicked, this, &frmSearch::print);
    connect(all, &QPushButton::clicked, this, &frmSearch::showAll);
    connect(clear, &QPushButton::clicked, this, &frmSearch::clearGrid);
    connect(exit, &QPushButton::clicked, this, &frmSearch::CloseRecord);
    return form::buttonsAtRight({again, cmdPrint, all, clear, exit});
}

// Only what the user may ask.
void frmSearch::fillTypes() {
    for (const SearchKind& kind : searchKinds())
        if (UserHasAccess(StoreConnection(), kind.inquireRight)) cboType->addItem(kind.name);
}

// ---- kinds and filters

const frmSearch::Panel* frmSearch::panel() const {
    const auto found = std::ranges::find_if(
        panels_, [this](const Panel& panel) { return cboType->text() == panel.kind->name; });
    return found == panels_.end() ? nullptr : &*found;
}

const frmSearch::Panel* frmSearch::chosenPanel() {
    const Panel* chosen = panel();
    if (chosen) return chosen;
    const SearchAnswer refused = prepareSearch({});
    showFault(std::get<Fault>(refused), this);
    return nullptr;
}

void frmSearch::kindChosen() {
    more_.stop();
    const Panel* chosen = panel();
    for (const Panel& each : panels_) {
        each.list->clear();
        each.frame->setVisible(chosen == &each);
        each.list->setVisible(chosen == &each);
    }
    cboJournal->setText(searchJournals().front().name);
    journalChosen();
    guarded(
        [&] { cmdPrint->setEnabled(chosen && UserHasAccess(StoreConnection(), chosen->kind->printRight)); });
    if (chosen) chosen->filters.first()->setFocus();
}

void frmSearch::journalChosen() {
    const SearchJournal* journal = findSearchJournal(cboJournal->text());
    lblReference->setText(QString("%1 :").arg(journal->refLabel));
    lblReference->buddy()->setAccessibleName(journal->refLabel);
    if (panel() && panel()->kind->hasJournals) clearGrid();
}

void frmSearch::clearFilters() {
    if (!panel()) return;
    for (TextBox* filter : panel()->filters) filter->clear();
    panel()->filters.first()->setFocus();
}

void frmSearch::NewRecord() {
    if (chosenPanel()) clearFilters();
}

void frmSearch::clearPanel() {
    clearGrid();
    clearFilters();
}

void frmSearch::clearGrid() {
    more_.stop();
    const Panel* chosen = chosenPanel();
    if (!chosen) return;
    chosen->list->clear();
    sayWhatFills(chosen->list);
}

void frmSearch::RefreshRecord() {
    if (!chosenPanel()) return;
    search();
    clearFilters();
}

void frmSearch::showAll() {
    if (!chosenPanel()) return;
    clearFilters();
    search(true);
}

// ---- the search

SearchRequest frmSearch::request(bool all) const {
    SearchRequest request{cboType->text(), cboJournal->text(), {}, {}, all};
    if (panel())
        for (const TextBox* filter : panel()->filters) request.filters += filter->text();
    request.itemDate = findChild<TextBox*>("txtRefDate")->text();
    return request;
}

void frmSearch::search(bool all) {
    const SearchAnswer answer = prepareSearch(request(all));
    if (const auto* fault = std::get_if<Fault>(&answer)) return showFault(*fault, this);
    clearGrid();
    const auto* found = std::get_if<Search>(&answer);
    if (!found) return;
    sayWhatWasSought();
    guarded([&] { begin(*found); });
}

void frmSearch::sayWhatWasSought() {
    QStringList typed;
    for (const TextBox* filter : panel()->filters) typed += trim(filter->text());
    typed.removeAll({});
    list_look::sayWhenEmpty(panel()->list,
                            typed.isEmpty() ? "Nothing found." : list_look::nothingFound(typed.join(", ")));
}

void frmSearch::begin(const Search& search) {
    running_ = search;
    after_ = std::numeric_limits<qint64>::min();
    readOn(firstRows);
}

// The keys that come in between are answered between two pages.
void frmSearch::readOn(int rows) {
    const SearchPage page = readPage(StoreConnection(), *running_, after_, rows);
    for (const QStringList& row : page.rows) panel()->list->addRow(row);
    more_.stop();
    if (!page.last) return;
    after_ = *page.last;
    more_.start(0);
}

void frmSearch::print() {
    const Panel* chosen = chosenPanel();
    if (!chosen) return;
    guarded([&] {
        if (!UserHasAccess(StoreConnection(), chosen->kind->printRight)) return;
        const QStringList typed = request(false).filters;
        const bool all =
            std::ranges::all_of(typed, [](const QString& text) { return text.trimmed().isEmpty(); });
        const SearchAnswer answer = prepareSearch(request(all));
        if (const auto* fault = std::get_if<Fault>(&answer)) return showFault(*fault, this);
        auto report = searchReport(StoreConnection(), std::get<Search>(answer));
        if (report)
            previewFromEntry(std::move(report));
        else
            showBox(exclamation("Nothing to Print!", "No Records to print..."));
    });
}

// ---- keys

bool frmSearch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !panel()) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const int step = key->key() == Qt::Key_Right ? 1 : key->key() == Qt::Key_Left ? -1 : 0;
    const QList<TextBox*>& filters = panel()->filters;
    const qsizetype place = filters.indexOf(static_cast<TextBox*>(watched));
    if (!step || !isPlain(*key) || place < 0) return false;
    if (TextBox* next = filters.value(place + step)) next->setFocus(Qt::TabFocusReason);
    return true;
}

void frmSearch::keyPressEvent(QKeyEvent* event) {
    switch (isPlain(*event) ? event->key() : 0) {
        case Qt::Key_F5:
            return RefreshRecord();
        case Qt::Key_F7:
            return cboType->setFocus();
        case Qt::Key_F8:
            return print();
        case Qt::Key_F9:
            return showAll();
        case Qt::Key_F11:
            return clearGrid();
        default:
            return ChildScreen::keyPressEvent(event);
    }
}
