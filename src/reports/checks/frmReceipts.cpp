#include "reports/checks/frmReceipts.h"

#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "reports/checks/form_setup.h"

#include <QRadioButton>
#include <QVBoxLayout>

// One frame of the screen, with what its two options stand for.
struct ChoiceWords {
    struct Option {
        const char* name;
        const char* caption;
        const char* letter;
    };
    const char* frame;
    const char* caption;
    Option first, second;
};

namespace {
constexpr const char* dotMatrix = "Dot Matrix Printer";
constexpr const char* laser = "Laser / Inkjet Printer";

constexpr ChoiceWords reportPrinter{
    "fraReports", "Other Reports Printer Type :", {"optDotMatrix", dotMatrix, "D"}, {"optLaser", laser, "L"}};
constexpr ChoiceWords checkPrinter{
    "fraChecks", "Check Printer Type :", {"optCDotMatrix", dotMatrix, "D"}, {"optCLaser", laser, "L"}};
constexpr ChoiceWords checkBook{"fraBook",
                                "Check Book Format :",
                                {"optCommercial", "Commercial Checks", "C"},
                                {"optPersonal", "Personal Checks", "P"}};

QRadioButton* optionIn(QGroupBox* frame, const ChoiceWords::Option& words) {
    auto* option = new QRadioButton(words.caption);
    option->setObjectName(words.name);
    frame->layout()->addWidget(option);
    return option;
}

QLabel* heading() {
    QLabel* label = form::label("Printer Form Setup");
    label->setObjectName("Label13");
    form::setFont(label, 1.4, true);
    return label;
}
}  // namespace

frmReceipts::frmReceipts() : ChildScreen("frmReceipts", "Printer Form Setup ...") {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading());
    reportPrinter_ = addChoice(reportPrinter);
    checkPrinter_ = addChoice(checkPrinter);
    checkBook_ = addChoice(checkBook);
    layout->addStretch();
    QPushButton* cmdSave = form::button("cmdSave", "&Save Printer Settings", "save");
    QPushButton* cmdExit = form::button("cmdExit", "&Close Window", "close");
    layout->addLayout(form::buttonsAtRight({cmdSave, cmdExit}));
    connect(cmdSave, &QPushButton::clicked, this, [this] { guarded([this] { save(); }); });
    connect(cmdExit, &QPushButton::clicked, this, &frmReceipts::CloseRecord);
    setMinimumWidth(form::charactersWide(this, 56));
}

frmReceipts::Choice frmReceipts::addChoice(const ChoiceWords& words) {
    QGroupBox* frame = form::frame(words.frame, words.caption);
    new QHBoxLayout(frame);
    layout()->addWidget(frame);
    return {optionIn(frame, words.first), optionIn(frame, words.second), words.first.letter,
            words.second.letter};
}

void frmReceipts::Choice::set(const QString& letter) const {
    first->setChecked(letter == firstLetter);
    second->setChecked(letter == secondLetter);
}

QString frmReceipts::Choice::letter() const {
    if (second->isChecked()) return secondLetter;
    return first->isChecked() ? firstLetter : "";
}

bool frmReceipts::receive(const ScreenArguments& arguments) {
    const FormSetup setup = loadFormSetup();
    checkBook_.set(setup.checkBook);
    checkPrinter_.set(setup.checkPrinter);
    reportPrinter_.set(setup.reportPrinter);
    return ChildScreen::receive(arguments);
}

void frmReceipts::save() {
    const Outcome outcome =
        saveFormSetup({checkBook_.letter(), checkPrinter_.letter(), reportPrinter_.letter()});
    if (const auto* fault = std::get_if<Fault>(&outcome)) return showFault(*fault, this);
    showBoxes(std::get<Done>(outcome).boxes);
    unload();
}
