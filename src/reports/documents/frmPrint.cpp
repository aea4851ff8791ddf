#include "reports/documents/frmPrint.h"

#include "foundation/comes_later.h"
#include "foundation/session.h"
#include "platform/progress_scope.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_view.h"
#include "reports/documents/print_kinds.h"
#include "reports/frame/print_choice.h"

#include <QRadioButton>
#include <QSignalBlocker>

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
      fraChoice(new PrintChoice(ReportTarget::Printer)) {
    build();
    connect(optPrinted, &QRadioButton::toggled, this, [this](bool on) {
        if (on) LoadGrid("True");
    });
    connect(optUnPrinted, &QRadioButton::toggled, this, [this](bool on) {
        if (on) LoadGrid("False");
    });
}

void frmPrint::build() {
    lvwRecord->setAccessibleName("Documents");
    lvwRecord->setSortsByHeader(true);
    auto* layout = new QGridLayout(this);
    layout->addWidget(lvwRecord, 0, 0, 3, 1);
    layout->addWidget(listFrame(), 0, 1);
    layout->addWidget(fraChoice, 1, 1);
    layout->addLayout(buttonRow(), 3, 0, 1, 2);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(0, 1);
}

QGroupBox* frmPrint::listFrame() {
    QGroupBox* frame = form::frame("fraList", "List :");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(optPrinted);
    layout->addWidget(optUnPrinted);
    return frame;
}

QLayout* frmPrint::buttonRow() {
    auto* row = new QHBoxLayout;
    auto* imgExit = form::imageButton("imgExit", "exit", "Exit Report");
    connect(imgExit, &QToolButton::clicked, this, &frmPrint::CloseRecord);
    row->addStretch(1);
    row->addWidget(imgExit);
    return row;
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
    if (kind != kind_) load(*kind);
    return ChildScreen::receive(arguments);
}

void frmPrint::load(const PrintKind& kind) {
    kind_ = &kind;
    lvwRecord->setHeadings({kind.numberHead, kind.dateHead});
    optPrinted->setText(kind.printed);
    optUnPrinted->setText(kind.unprinted);
    fraChoice->setTarget(ReportTarget::Printer);
    const QSignalBlocker quiet(optUnPrinted);
    optUnPrinted->setChecked(true);
    LoadGrid("False");
}

void frmPrint::LoadGrid(const QString& flag) {
    guarded([&] {
        frmStatus status;
        const ProgressScope scope(status, "Please Wait While System is Loading Sales Details...", 0);
        lvwRecord->clear();
        lvwRecord->setRows(documentsToPrint(StoreConnection(), *kind_, flag));
    });
}

// The printed list is asked for by another value than the store keeps: refreshed it is empty.
void frmPrint::RefreshRecord() { LoadGrid(optPrinted->isChecked() ? "1" : "0"); }
