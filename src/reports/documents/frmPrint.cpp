#include "reports/documents/frmPrint.h"

#include "foundation/comes_later.h"
#include "foundation/session.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"
#include "reports/checks/check_choice.h"
#include "reports/checks/check_report.h"
#include "reports/documents/print_kinds.h"
#include "reports/frame/export_file.h"
#include "reports/frame/print_choice.h"

#include <QBoxLayout>
#include <QRadioButton>
#include <QScopeGuard>

namespace {
QRadioButton* option(const char* name) {
    auto* result = new QRadioButton;
    result->setObjectName(name);
    return result;
}
}  // namespace

frmPrint::frmPrint()
    : ChildScreen("frmPrint", "Print Report . . ."),
      lvwRecord(new ListView("lvwRecord", {{"", 26}, {"", 16, ListColumn::Date}})),
      optPrinted(option("optPrinted")),
      optUnPrinted(option("optUnPrinted")),
      fraChoice(new PrintChoice(ReportTarget::Printer)),
      fraParameters(new CheckChoice) {
    build();
    connect(optPrinted, &QRadioButton::clicked, this, [this] { LoadGrid("True"); });
    connect(optUnPrinted, &QRadioButton::clicked, this, [this] { LoadGrid("False"); });
}

void frmPrint::build() {
    lvwRecord->setAccessibleName("Documents");
    lvwRecord->keepSort();
    lvwRecord->showMarks();
    auto* layout = new QGridLayout(this);
    layout->addWidget(lvwRecord, 0, 0, 4, 1);
    layout->addWidget(listFrame(), 0, 1);
    layout->addWidget(fraChoice, 1, 1);
    layout->addWidget(fraParameters, 2, 1);
    layout->addLayout(buttonRow(), 4, 0, 1, 2);
    layout->setRowStretch(3, 1);
    layout->setColumnStretch(0, 1);
}

QGroupBox* frmPrint::listFrame() {
    QGroupBox* frame = form::frame("fraDocuments", "Documents :");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(optPrinted);
    layout->addWidget(optUnPrinted);
    return frame;
}

QLayout* frmPrint::buttonRow() {
    auto* row = new QHBoxLayout;
    addButton(row, "imgFind", "search", "Find Item", &frmPrint::find);
    addButton(row, "imgMark", "mark", "Mark All Items", &frmPrint::markAll);
    addButton(row, "imgUnMark", "unmark", "UnMark All Items", &frmPrint::unmarkAll);
    row->addStretch(1);
    addButton(row, "imgPrint", "print", "Print Report", &frmPrint::PrintRecord);
    addButton(row, "imgExit", "exit", "Exit Report", &frmPrint::CloseRecord);
    return row;
}

void frmPrint::addButton(QBoxLayout* row, const char* name, const char* icon, const char* text,
                         void (frmPrint::*command)()) {
    QToolButton* button = form::imageButton(name, icon, text);
    connect(button, &QToolButton::clicked, this, command);
    row->addWidget(button);
}

QSize frmPrint::sizeHint() const {
    const QSize roomy(form::charactersWide(this, 84), fontMetrics().height() * 28);
    return roomy.expandedTo(minimumSizeHint());
}

bool frmPrint::receive(const ScreenArguments& arguments) {
    const QString code = arguments.kind.isEmpty() ? "DR" : arguments.kind;
    const PrintKind* kind = findPrintKind(code);
    if (!kind) {
        showBox(notInThisVersion(laterPrintKind(code)));
        return false;
    }
    if (kind != kind_) {
        if (!leavesKind()) return false;
        load(*kind);
    }
    return ChildScreen::receive(arguments);
}

void frmPrint::load(const PrintKind& kind) {
    kind_ = &kind;
    lvwRecord->setHeadings({kind.numberHead, kind.dateHead});
    optPrinted->setText(kind.printed);
    optUnPrinted->setText(kind.unprinted);
    fraChoice->setTarget(ReportTarget::Printer);
    fraChoice->setExportsVisible(!kind.hasChecks);
    fraParameters->setVisible(kind.hasChecks);
    fraParameters->startAnew();
    optUnPrinted->setChecked(true);
    LoadGrid("False");
}

void frmPrint::LoadGrid(const QString& flag) {
    guarded([&] {
        frmStatus status;
        const ProgressScope scope(status, "Please Wait While System is Loading Sales Details...", 0);
        lvwRecord->clear();
        list_look::sayWhenEmpty(lvwRecord, "No documents here. The other choice at the right lists others.");
        lvwRecord->setRows(documentsToPrint(StoreConnection(), *kind_, flag));
    });
}

// The printed list is asked for by another value than the store keeps: refreshed it is empty.
void frmPrint::RefreshRecord() { LoadGrid(optPrinted->isChecked() ? "1" : "0"); }

// A document that is printed from here is never taken for one from its entry screen.
void frmPrint::activated() { session().ReportFromEntry = false; }

void frmPrint::find() {
    const QString typed = desk::askText(this, "Zevrin", "Please Enter Reference No. : ");
    if (typed.isEmpty()) return;
    const int row = lvwRecord->findRow(0, trim(typed));
    if (row < 0) {
        showBox(exclamation("Not Found!", "System has not Found any Item Matching your Search!"));
        return;
    }
    lvwRecord->setCurrentRow(row);
    lvwRecord->setMarked(row);
}

void frmPrint::markAll() { lvwRecord->setAllMarked(true); }
void frmPrint::unmarkAll() { lvwRecord->setAllMarked(false); }

QStringList frmPrint::markedNumbers() const {
    QStringList numbers;
    for (const int row : lvwRecord->markedRows()) numbers += lvwRecord->text(row, 0);
    return numbers;
}

void frmPrint::PrintRecord() {
    guarded([this] { printMarked(); });
}

// In the order that they stand in. What has been printed stays listed and marked until the next load.
void frmPrint::printMarked() {
    session().ReportFromEntry = false;
    if (lvwRecord->rowCount() == 0) return;
    if (kind_->hasChecks)
        if (const auto fault = fraParameters->fault()) return showFault(*fault, this);
    const QStringList numbers = markedNumbers();
    const ReportTarget target = fraChoice->target();
    if (numbers.isEmpty() || !readyFor(numbers, target)) return;
    if (kind_->readSettings) kind_->readSettings();
    if (isExport(target) && numbers.size() > 1) return printToFiles(numbers, target);
    for (const QString& number : numbers)
        if (!print(number, target)) return;
}

bool frmPrint::readyFor(const QStringList& numbers, ReportTarget target) {
    return numbers.size() > 1 ? readyToExportSeveral(this, target) : readyToExport(this, target);
}

// Each document goes to a file of its own; the name that was chosen stays the one to begin with.
void frmPrint::printToFiles(const QStringList& numbers, ReportTarget target) {
    const QString chosen = session().ExportFileName;
    const auto restored = qScopeGuard([&chosen] { session().ExportFileName = chosen; });
    for (const QString& number : numbers) {
        session().ExportFileName = fileOfDocument(chosen, number, exportKind(target));
        if (!printToFile(number, target)) return;
    }
}

// A file that may not be written over is left out.
bool frmPrint::printToFile(const QString& number, ReportTarget target) {
    auto report = kind_->report(StoreConnection(), number);
    if (report && !mayWrite(session().ExportFileName, "Export")) return true;
    return runFromPrintScreen(std::move(report), target, &kind_->tagging());
}

// False: the walk over the marked documents ends.
bool frmPrint::print(const QString& number, ReportTarget target) {
    Connection& store = StoreConnection();
    if (kind_->hasChecks && fraParameters->printsChecks())
        return runChecks(store, checkPaper(fraParameters->book()), number, target);
    return runFromPrintScreen(kind_->report(store, number), target, &kind_->tagging());
}

// The check book that was chosen here becomes the setting.
bool frmPrint::leavesKind() {
    if (!kind_ || !kind_->hasChecks) return true;
    const auto fault = fraParameters->keepBook();
    if (fault) showFault(*fault, this);
    return !fault;
}

bool frmPrint::queryUnload() { return leavesKind(); }
