#include "reports/frame/report_preview.h"

#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/icons.h"
#include "reports/frame/page_thumbnails.h"
#include "reports/frame/page_view.h"
#include "reports/frame/report_printer.h"
#include "reports/frame/save_as.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QKeyCombination>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
constexpr int sliceMilliseconds = 8;
}

struct ReportPreview::Command {
    const char* name;
    const char* icon;
    const char* text;
    const char* keys;  // the first stands in the tool tip, the others are the same on other keyboards
    void (ReportPreview::*run)();
    bool needsAllPages = false;
};

const QList<ReportPreview::Command>& ReportPreview::commands() {
    using P = ReportPreview;
    static const QList<Command> list{
        {"Print", "print", "Print", "Ctrl+P", &P::print, true},
        {"SavePdf", "save", "Save as PDF", "Ctrl+S", &P::savePdf, true},
        {"SaveRichText", "rich-text", "Save as rich text", "Ctrl+Shift+R", &P::saveRichText, true},
        {"SaveText", "text", "Save as text", "Ctrl+Shift+S", &P::saveText, true},
        {"SaveSpreadsheet", "spreadsheet", "Save as spreadsheet", "Ctrl+Shift+E", &P::saveSpreadsheet, true},
        {"Copy", "copy", "Copy the text of this page", "Ctrl+C", &P::copyPage},
        {"CopyAll", "copy-all", "Copy the text of all pages", "Ctrl+Shift+C", &P::copyReport, true},
        {"First", "first", "First page", "Ctrl+Home; Home", &P::FirstRecord},
        {"Previous", "previous", "Previous page", "Ctrl+PgUp", &P::PrevRecord},
        {"GoTo", "", "Go to page", "Ctrl+G", &P::goToPage},
        {"Next", "next", "Next page", "Ctrl+PgDown", &P::NextRecord},
        {"Last", "last", "Last page", "Ctrl+End; End", &P::LastRecord},
        {"Thumbnails", "thumbnails", "Small pictures of the pages", "Ctrl+T", &P::toggleThumbnails},
        {"Single", "page", "One page at a time", "Ctrl+3", &P::singlePage},
        {"Continuous", "pages", "Pages under each other", "Ctrl+4", &P::continuousPages},
        {"ZoomOut", "zoom-out", "Smaller", "Ctrl+-", &P::zoomOut},
        {"ZoomIn", "zoom-in", "Larger", "Ctrl++; Ctrl+=; Ctrl+Shift++; Ctrl+Shift+=", &P::zoomIn},
        {"Actual", "", "Actual size", "Ctrl+0", &P::zoomActual},
        {"FitPage", "fit-page", "Whole page", "Ctrl+1", &P::fitPage},
        {"FitWidth", "fit-width", "Width of the page", "Ctrl+2", &P::fitWidth},
        {"Find", "", "Find", "Ctrl+Shift+F", &P::findText},
        {"FindPrevious", "arrow-up", "Find previous", "Shift+F3", &P::findPrevious},
        {"FindNext", "arrow-down", "Find next", "F3", &P::findNext},
    };
    return list;
}

ReportPreview::ReportPreview(std::unique_ptr<ReportJob> job, PreviewHooks hooks)
    : ChildScreen(job->layout().name, job->layout().caption, FillsFrame),
      job_(std::move(job)),
      hooks_(std::move(hooks)) {
    if (job_->pages().pages.empty()) job_->layOutPage();
    view_ = new PageView(*job_, search_);
    buildBars();
    buildThumbnails();
    connectView();
    setFocusProxy(view_);
    view_->setFocus();
    view_->pagesAdded();
    showProgress();
    // Each slice starts the next: none comes while the box of a fault is open, or after it.
    slices_.setSingleShot(true);
    slices_.start(0);
}

ReportPreview::~ReportPreview() = default;

// Bars

QToolBar* ReportPreview::bar(const QString& name, const QString& caption) {
    auto* bar = new QToolBar(caption);
    bar->setObjectName(name);
    bar->setAccessibleName(caption);
    bar->setMovable(false);
    const int side = bar->style()->pixelMetric(QStyle::PM_SmallIconSize) * 5 / 4;
    bar->setIconSize({side, side});
    return bar;
}

void ReportPreview::addCommands(QToolBar* bar, const QStringList& names) {
    for (const QString& name : names) {
        const auto command = std::ranges::find(commands(), name, &Command::name);
        const QString keys =
            QKeySequence::listFromString(command->keys).first().toString(QKeySequence::NativeText);
        QAction* added = bar->addAction(bundledIcon(command->icon), QString());
        added->setObjectName(bar->objectName() + "_" + name);
        added->setToolTip(QString("%1 (%2)").arg(command->text, keys));
        connect(added, &QAction::triggered, this, [this, command] { run(*command); });
        actions_[name] = added;
        QWidget* button = bar->widgetForAction(added);
        button->setObjectName(added->objectName());
        button->setAccessibleName(command->text);
    }
}

QAction* ReportPreview::action(const QString& name) const { return actions_.value(name); }

void ReportPreview::buildBars() {
    txtPage = new QSpinBox;
    txtPage->setObjectName("txtPage");
    txtPage->setAccessibleName("Page");
    txtPage->setToolTip("Go to page (Ctrl+G)");
    txtPage->setButtonSymbols(QAbstractSpinBox::NoButtons);
    txtPage->setAlignment(Qt::AlignRight);
    txtPage->setKeyboardTracking(false);
    txtPage->setMinimumWidth(form::charactersWide(txtPage, 7));
    lblPages = form::label({});
    lblPages->setObjectName("lblPages");
    txtFind = new QLineEdit;
    txtFind->setObjectName("txtFind");
    txtFind->setAccessibleName("Find");
    txtFind->setPlaceholderText("Find");
    txtFind->setToolTip("Find (Ctrl+Shift+F)");
    txtFind->setClearButtonEnabled(true);
    txtFind->setMaximumWidth(form::charactersWide(txtFind, 28));
    lblHits = form::label({});
    lblHits->setObjectName("lblHits");
    buildZoom();

    auto* pages = bar("tbrPages", "Pages");
    addCommands(pages,
                {"Print", "SavePdf", "SaveRichText", "SaveText", "SaveSpreadsheet", "Copy", "CopyAll"});
    pages->addSeparator();
    addCommands(pages, {"First", "Previous"});
    pages->addWidget(txtPage);
    pages->addWidget(lblPages);
    addCommands(pages, {"Next", "Last"});
    pages->addSeparator();
    QAction* close = pages->addAction(bundledIcon("close"), QString());
    close->setObjectName("tbrPages_Close");
    pages->widgetForAction(close)->setObjectName("tbrPages_Close");
    pages->widgetForAction(close)->setAccessibleName("Close");
    close->setToolTip("Close (Esc)");
    connect(close, &QAction::triggered, this, &ReportPreview::CloseRecord, Qt::QueuedConnection);

    auto* view = bar("tbrView", "View");
    addCommands(view, {"Thumbnails"});
    view->addSeparator();
    addCommands(view, {"Single", "Continuous"});
    view->addSeparator();
    addCommands(view, {"ZoomOut"});
    view->addWidget(cboZoom);
    addCommands(view, {"ZoomIn", "FitWidth", "FitPage"});
    view->addSeparator();
    view->addWidget(txtFind);
    addCommands(view, {"FindPrevious", "FindNext"});
    view->addWidget(lblHits);
    for (const char* name : {"Thumbnails", "Single", "Continuous", "FitWidth", "FitPage"})
        action(name)->setCheckable(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pages);
    layout->addWidget(view);
}

void ReportPreview::buildZoom() {
    cboZoom = new QComboBox;
    cboZoom->setObjectName("cboZoom");
    cboZoom->setAccessibleName("Zoom");
    cboZoom->setToolTip("Size in percent, 10 to 800");
    cboZoom->setEditable(true);
    cboZoom->setInsertPolicy(QComboBox::NoInsert);
    cboZoom->setCompleter(nullptr);
    for (const int percent : {10, 25, 50, 75, 100, 125, 150, 200, 300, 400, 600, 800})
        cboZoom->addItem(QString("%1 %").arg(percent));
    cboZoom->setMinimumWidth(form::charactersWide(cboZoom, 10));
    connect(cboZoom, &QComboBox::textActivated, this, &ReportPreview::zoomAsTyped);
    connect(cboZoom->lineEdit(), &QLineEdit::returnPressed, this, &ReportPreview::zoomAsTyped);
}

void ReportPreview::buildThumbnails() {
    thumbnails_ = new PageThumbnails(*job_, devicePixelRatioF());
    thumbnails_->setParent(this);
    lvwPages = new QListView;
    lvwPages->setObjectName("lvwPages");
    lvwPages->setAccessibleName("Small pictures of the pages");
    lvwPages->setViewMode(QListView::IconMode);
    lvwPages->setFlow(QListView::TopToBottom);
    lvwPages->setWrapping(false);
    lvwPages->setMovement(QListView::Static);
    lvwPages->setUniformItemSizes(true);
    lvwPages->setVerticalScrollMode(QListView::ScrollPerPixel);
    lvwPages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lvwPages->setIconSize(thumbnails_->pictureSize());
    const QSize cell = thumbnails_->pictureSize() + QSize(24, lvwPages->fontMetrics().height() + 16);
    lvwPages->setGridSize(cell);
    lvwPages->setFixedWidth(cell.width() + lvwPages->verticalScrollBar()->sizeHint().width() + 8);
    lvwPages->setModel(thumbnails_);
    lvwPages->hide();
    connect(lvwPages->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& now) { view_->goToPage(now.row()); });

    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(lvwPages);
    middle->addWidget(view_, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(middle, 1);
}

void ReportPreview::connectView() {
    connect(&slices_, &QTimer::timeout, this, &ReportPreview::laySlice);
    connect(view_, &PageView::pageChanged, this, &ReportPreview::showPage);
    connect(view_, &PageView::zoomChanged, this, &ReportPreview::showZoom);
    connect(txtPage, &QSpinBox::valueChanged, this, [this](int page) { view_->goToPage(page - 1); });
    connect(txtFind, &QLineEdit::textChanged, this, &ReportPreview::searchAsTyped);
}

// Making the pages

void ReportPreview::laySlice() {
    QElapsedTimer clock;
    clock.start();
    const bool isWell = guarded([&] {
        while (!job_->isComplete() && clock.elapsed() < sliceMilliseconds) job_->layOutPage();
    });
    if (!isWell) return;
    if (job_->isComplete()) return complete();
    view_->pagesAdded();
    thumbnails_->pagesAdded();
    search_.searchTo(job_->pages(), job_->shownPages());
    showProgress();
    slices_.start(0);
}

void ReportPreview::complete() {
    view_->pagesChanged();
    thumbnails_->pagesChanged();
    searchCompletePages();
    showProgress();
    guarded([this] { tellFinished(); });
}

void ReportPreview::tellFinished() {
    if (hasTold_) return;
    hasTold_ = true;
    if (hooks_.finished) hooks_.finished(*this);
}

bool ReportPreview::queryUnload() {
    if (!job_->isComplete()) return true;
    tellFinished();
    if (hooks_.queryClose) hooks_.queryClose();
    return true;
}

void ReportPreview::showProgress() {
    const int pages = job_->shownPages();
    const QSignalBlocker blocker(txtPage);
    txtPage->setRange(1, std::max(1, pages));
    lblPages->setText(job_->isComplete() ? QString(" of %L1 ").arg(pages)
                                         : QString(" of ... (%L1 so far) ").arg(pages) + job_->progress());
    for (const Command& command : commands())
        if (QAction* tool = action(command.name); tool && command.needsAllPages)
            tool->setEnabled(job_->isComplete());
    showHitCount();
}

// Pages and zoom

void ReportPreview::showPage(int page) {
    const QSignalBlocker blocker(txtPage);
    txtPage->setMaximum(std::max(txtPage->maximum(), page + 1));
    txtPage->setValue(page + 1);
    const QSignalBlocker listBlocker(lvwPages->selectionModel());
    lvwPages->setCurrentIndex(thumbnails_->index(page));
    lvwPages->viewport()->update();
}

void ReportPreview::FirstRecord() { view_->goToPage(0); }
void ReportPreview::PrevRecord() { view_->goToPage(view_->page() - 1); }
void ReportPreview::NextRecord() { view_->goToPage(view_->page() + 1); }
void ReportPreview::LastRecord() { view_->goToPage(job_->shownPages() - 1); }

void ReportPreview::goToPage() {
    txtPage->setFocus();
    txtPage->selectAll();
}

void ReportPreview::toggleThumbnails() {
    lvwPages->setVisible(!lvwPages->isVisibleTo(this));
    action("Thumbnails")->setChecked(lvwPages->isVisibleTo(this));
    const QSignalBlocker blocker(lvwPages->selectionModel());
    lvwPages->setCurrentIndex(thumbnails_->index(view_->page()));
}

void ReportPreview::zoomIn() { view_->zoomIn(); }
void ReportPreview::zoomOut() { view_->zoomOut(); }
void ReportPreview::zoomActual() { view_->setZoom(100); }
void ReportPreview::fitWidth() { view_->setFit(PageView::FitWidth); }
void ReportPreview::fitPage() { view_->setFit(PageView::FitPage); }

void ReportPreview::singlePage() {
    view_->setContinuous(false);
    showZoom();
}

void ReportPreview::continuousPages() {
    view_->setContinuous(true);
    showZoom();
}

void ReportPreview::showZoom() {
    cboZoom->setEditText(QString("%1 %").arg(view_->zoom()));
    action("FitWidth")->setChecked(view_->fit() == PageView::FitWidth);
    action("FitPage")->setChecked(view_->fit() == PageView::FitPage);
    action("Single")->setChecked(!view_->isContinuous());
    action("Continuous")->setChecked(view_->isContinuous());
}

void ReportPreview::zoomAsTyped() {
    bool isNumber = false;
    const int percent = cboZoom->currentText().remove('%').trimmed().toInt(&isNumber);
    if (isNumber) view_->setZoom(percent);
    showZoom();
    view_->setFocus();
}

// Search

void ReportPreview::findText() {
    txtFind->setFocus();
    txtFind->selectAll();
}

void ReportPreview::searchAsTyped() {
    search_.setText(txtFind->text());
    search_.searchTo(job_->pages(), job_->shownPages());
    goToHit(search_.firstFrom(view_->page()));
}

// The footers have come: their texts are found, too, and the hit that was looked at stays the one.
void ReportPreview::searchCompletePages() {
    const auto before = hit_ < 0 ? PageSearch::Hit() : search_.hits()[static_cast<std::size_t>(hit_)];
    search_.searchAnew();
    search_.searchTo(job_->pages(), job_->shownPages());
    if (hit_ < 0) return;
    const auto [from, to] = search_.hitsOn(before.page);
    for (std::size_t i = from; i < to; ++i)
        if (search_.hits()[i].item == before.item && search_.hits()[i].from == before.from)
            hit_ = static_cast<qsizetype>(i);
    goToHit(hit_);
}

void ReportPreview::goToHit(qsizetype hit) {
    hit_ = hit;
    view_->showHit(hit);
    showHitCount();
}

void ReportPreview::findNext() {
    if (search_.text().isEmpty()) return findText();
    const auto count = static_cast<qsizetype>(search_.hits().size());
    if (count > 0) goToHit((hit_ + 1) % count);
}

void ReportPreview::findPrevious() {
    if (search_.text().isEmpty()) return findText();
    const auto count = static_cast<qsizetype>(search_.hits().size());
    if (count > 0) goToHit(hit_ > 0 ? hit_ - 1 : count - 1);
}

void ReportPreview::showHitCount() {
    const auto count = static_cast<qsizetype>(search_.hits().size());
    if (search_.text().isEmpty())
        lblHits->clear();
    else if (count == 0)
        lblHits->setText(" Not found");
    else if (hit_ < 0)
        lblHits->setText(QString(" %L1 found").arg(count));
    else
        lblHits->setText(QString(" %L1 of %L2").arg(hit_ + 1).arg(count));
}

// Outputs

void ReportPreview::print() {
    if (!job_->isComplete()) return;
    frmStatus status;
    reportPrinter::printWithDialog(job_->pages(), job_->rendering(), this, status);
}

void ReportPreview::savePdf() { save("Save as PDF", FileKind::pdf); }
void ReportPreview::saveRichText() { save("Save as Rich Text", FileKind::richText); }
void ReportPreview::saveText() { save("Save as Text", FileKind::plainText); }
void ReportPreview::saveSpreadsheet() { save("Save as Spreadsheet", FileKind::spreadsheet); }

void ReportPreview::save(const QString& title, const FileKind& kind) {
    if (job_->isComplete()) saveReportAs(this, title, kind, *job_);
}

void ReportPreview::copyPage() {
    if (job_->shownPages() == 0) return;
    const ReportPages& all = job_->pages();
    ReportPages one{all.caption, all.setup, all.styles, {}};
    one.pages.push_back(all.pages[static_cast<std::size_t>(view_->page())]);
    QApplication::clipboard()->setText(reportOutput::plainText(one));
}

void ReportPreview::copyReport() {
    if (!job_->isComplete()) return;
    frmStatus status;
    QApplication::clipboard()->setText(reportOutput::plainText(job_->pages(), status));
}

// Keys

const ReportPreview::Command* ReportPreview::commandFor(const QKeyEvent* event) const {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const QKeySequence pressed(QKeyCombination(modifiers, Qt::Key(event->key())));
    for (const Command& command : commands())
        if (QKeySequence::listFromString(command.keys).contains(pressed)) return &command;
    return nullptr;
}

void ReportPreview::run(const Command& command) {
    guarded([&] { (this->*command.run)(); });
    if (actions_.contains(command.name)) showZoom();
}

// Keys that the frame's menus have too are the preview's own, where the frame leaves them to its children.
bool ReportPreview::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && commandFor(static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return ChildScreen::event(event);
}

void ReportPreview::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = isEnterKey(event->key());
    if (const Command* command = commandFor(event))
        run(*command);
    else if (isEnter && txtFind->hasFocus())
        (event->modifiers() & Qt::ShiftModifier) ? findPrevious() : findNext();
    else if (isEnter)
        view_->setFocus();
    else
        ChildScreen::keyPressEvent(event);
}
