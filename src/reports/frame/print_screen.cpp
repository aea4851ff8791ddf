#include "reports/frame/print_screen.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/clock.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/form.h"
#include "reports/frame/print_choice.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QRadioButton* option(const char* name, const char* caption) {
    auto* button = new QRadioButton(caption);
    button->setObjectName(name);
    return button;
}

QCheckBox* checkBox(const char* name, const char* caption) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    return box;
}

QString inThisYear(const char* monthAndDay) {
    return monthAndDay + QString::number(Clock::now().date().year());
}
}  // namespace

PrintScreen::PrintScreen(const PrintBook& book)
    : ChildScreen(book.screen, book.caption), book_(book), fraChoice(new PrintChoice) {
    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* cancel = form::button("cmdCancel", "&Cancel");
    connect(ok, &QPushButton::clicked, this, &PrintScreen::PrintRecord);
    connect(cancel, &QPushButton::clicked, this, &PrintScreen::CloseRecord);
    auto* layout = new QVBoxLayout(this);
    addAsked(layout);
    layout->addWidget(fraChoice);
    layout->addStretch(1);
    layout->addLayout(form::buttonsAtRight({ok, cancel}));
    form::setAccessibleFromTexts(this);
}

void PrintScreen::addAsked(QBoxLayout* layout) {
    if (!book_.fields.isEmpty()) layout->addWidget(fields_ = new PrintFields(book_.fields));
    if (book_.selectionFrame) layout->addWidget(selectionFrame());
    for (const PrintTick& tick : book_.ticks) {
        ticks_ += checkBox(tick.name, tick.caption);
        layout->addWidget(ticks_.last());
    }
    if (book_.optionFrame) layout->addWidget(optionFrame());
    if (book_.periodFrame) layout->addWidget(periodFrame());
}

QGroupBox* PrintScreen::selectionFrame() {
    QGroupBox* frame = form::frame("fraSelection", book_.selectionFrame);
    cboSelection = new ComboBox(book_.selectionName, ComboBox::Open);
    cboSelection->setAccessibleName(frame->accessibleName());
    cboSelection->addItems(book_.selections);
    cboSelection->setText(book_.selections[book_.opensOn]);
    cboSelection->setMinimumWidth(form::charactersWide(cboSelection, 40));
    (new QVBoxLayout(frame))->addWidget(cboSelection);
    return frame;
}

QGroupBox* PrintScreen::optionFrame() {
    QGroupBox* frame = form::frame("fraParameters", book_.optionFrame);
    optSummary = option("optSummary", "Summary Report");
    optDetailed = option("optDetailed", "Detail Report");
    auto* layout = new QVBoxLayout(frame);
    for (QRadioButton* button : {optSummary, optDetailed}) layout->addWidget(button);
    return frame;
}

QGroupBox* PrintScreen::periodFrame() {
    QGroupBox* frame = form::frame("fraDate", book_.periodFrame);
    txtFrom = new DateBox("txtFrom");
    txtTo = new DateBox("txtTo");
    for (DateBox* date : {txtFrom, txtTo})
        date->setRefusal([this] { return periodFault(request(), book_.invalidDate); });
    auto* grid = new QGridLayout(frame);
    form::row(grid, 0, 0, "&From :", txtFrom);
    form::row(grid, 0, 2, "&To :", txtTo);
    grid->setColumnStretch(4, 1);
    if (book_.excluded) {
        chkExclude = checkBox("chkExclude", "&Exclude Filter");
        connect(chkExclude, &QCheckBox::toggled, this, &PrintScreen::showPeriod);
        grid->addWidget(chkExclude, 1, 0, 1, 5);
    }
    showPeriod();
    return frame;
}

void PrintScreen::showPeriod() {
    const bool isExcluded = chkExclude && chkExclude->isChecked();
    txtFrom->setText(isExcluded ? book_.excluded : inThisYear("01/01/"));
    txtTo->setText(isExcluded ? book_.excluded : inThisYear("12/31/"));
    for (DateBox* box : {txtFrom, txtTo}) box->setEnabled(!isExcluded);
}

bool PrintScreen::receive(const ScreenArguments& arguments) {
    kind_ = arguments.kind;
    if (fields_) fields_->setKind(kind_);
    if (optSummary) (arguments.choice == "optDetailed" ? optDetailed : optSummary)->setChecked(true);
    return ChildScreen::receive(arguments);
}

void PrintScreen::activated() { session().ReportFromEntry = false; }

QString PrintScreen::selection() const {
    if (cboSelection) return cboSelection->text();
    if (!optSummary) return {};
    return optDetailed->isChecked() ? optDetailed->objectName() : optSummary->objectName();
}

PrintRequest PrintScreen::request() const {
    PrintRequest request{.kind = kind_, .selection = selection()};
    request.allDays = !txtFrom || (chkExclude && chkExclude->isChecked());
    if (txtFrom) request.from = txtFrom->text();
    if (txtTo) request.to = txtTo->text();
    if (fields_) fields_->addTo(request);
    for (qsizetype i = 0; i < ticks_.size(); ++i) request.*book_.ticks[i].isSet = ticks_[i]->isChecked();
    return request;
}

bool PrintScreen::CheckContact() {
    bool found = false;
    guarded([&] {
        const QString name = request().contact;
        if (name.isEmpty())
            showFault({exclamation("Blank", "Please Enter Customer..."), "cboCustomer"}, this);
        else
            found = RecordFound(StoreConnection(), "tblContactMaster", "ContactName", name);
    });
    return found;
}

void PrintScreen::PrintRecord() {
    guarded([this] { print(); });
}

void PrintScreen::print() {
    session().ReportFromEntry = false;
    const PrintRequest asked = request();
    if (const auto fault = book_.check(StoreConnection(), asked)) return showFault(*fault, this);
    ReportTarget target = fraChoice->target();
    if (!readyToExport(this, target, book_.noFile, book_.badTextFile)) return;
    if (book_.printsFromPreview && target == ReportTarget::Printer) target = ReportTarget::Preview;
    runFromPrintScreen(book_.report(StoreConnection(), asked), target);
}
