#include "tools/calculator/frmCalculator.h"

#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/form.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_start.h"
#include "tools/calculator/machine_buttons.h"
#include "tools/calculator/prtTape.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

namespace {
constexpr int mostPlaces = 4;
constexpr const char* settingFile = "Zevrin.ini";
constexpr const char* longestDisplay = "-8.88888888888888E+888";

int placesSetting() {
    const QSettings settings(programFolder().filePath(settingFile), QSettings::IniFormat);
    bool isNumber = false;
    const int places = settings.value("Options/CalculatorFP", "2").toString().toInt(&isNumber);
    return isNumber && places >= 0 && places <= mostPlaces ? places : 2;
}

QLabel* displayLabel(const QString& name, double size) {
    QLabel* label = form::label({});
    label->setObjectName(name);
    form::setFont(label, size, true);
    return label;
}

void tell(AddingMachine::Answer answer) {
    using enum AddingMachine::Answer;
    if (answer == Full) QApplication::beep();
    if (answer == DividesByZero) showBox(exclamation("Error...", "Divide by zero Error"));
    if (answer == Overflow)
        showBox(exclamation("Error...", "The result is larger than the machine can hold."));
}
}  // namespace

frmCalculator::frmCalculator()
    : ChildScreen("frmCalculator", " Zevrin - Adding Machine"),
      places_(placesSetting()),
      machine_(deskTape(), places_),
      picSetFocus(new QWidget),
      lblMemory(displayLabel("lblMemory", 1)),
      lblOperator(displayLabel("lblOperator", 1.8)),
      lblResult(displayLabel("lblResult", 1.8)),
      lstTape(new QListWidget) {
    auto* left = new QVBoxLayout;
    left->addWidget(makeDisplay());
    left->addLayout(makePad());
    left->addWidget(makePlaces());
    lstTape->setObjectName("lstTape");
    lstTape->setAccessibleName("Tape");
    lstTape->setFocusPolicy(Qt::NoFocus);
    lstTape->setMinimumWidth(form::charactersWide(lstTape, 26));
    auto* halves = new QHBoxLayout;
    halves->addLayout(left);
    halves->addWidget(lstTape, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(halves, 1);
    layout->addLayout(makeFoot());
    showMachine();
}

QWidget* frmCalculator::makeDisplay() {
    picSetFocus->setObjectName("picSetFocus");
    picSetFocus->setAccessibleName("Adding machine");
    picSetFocus->setFocusPolicy(Qt::StrongFocus);
    picSetFocus->setFixedSize(1, 1);
    lblMemory->setText("M");
    lblResult->setMinimumWidth(lblResult->fontMetrics().horizontalAdvance(longestDisplay));
    lblResult->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblOperator->setMinimumWidth(lblOperator->fontMetrics().horizontalAdvance("–") * 2);
    lblOperator->setAlignment(Qt::AlignCenter);
    QSizePolicy keepsRoom = lblMemory->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    lblMemory->setSizePolicy(keepsRoom);

    auto* display = new QFrame;
    display->setFrameShape(QFrame::StyledPanel);
    display->setAutoFillBackground(true);
    display->setBackgroundRole(QPalette::Base);
    auto* row = new QHBoxLayout(display);
    for (QWidget* part : {picSetFocus, static_cast<QWidget*>(lblMemory)}) row->addWidget(part);
    row->addWidget(lblResult, 1);
    row->addWidget(lblOperator);
    return display;
}

QPushButton* frmCalculator::makeButton(const MachineButton& button) {
    QPushButton* made = form::button(button.name(), button.caption);
    if (*button.spoken) {
        made->setAccessibleName(button.spoken);
        made->setToolTip(button.spoken);
    }
    connect(made, &QPushButton::clicked, this, [this, &button] { press(button); });
    return made;
}

// The last button of the pad takes the rest of its row.
QLayout* frmCalculator::makePad() {
    auto* pad = new QGridLayout;
    for (int place = 0; place < padButtons; ++place) {
        QPushButton* button = makeButton(machineButtons().at(static_cast<size_t>(place)));
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance("Recall") * 3 / 2);
        const int column = place % padColumns;
        const bool last = place == padButtons - 1;
        pad->addWidget(button, place / padColumns, column, 1, last ? padColumns - column : 1);
    }
    return pad;
}

QWidget* frmCalculator::makePlaces() {
    QGroupBox* frame = form::frame("fraDecPlace", "Decimal Places :");
    auto* row = new QHBoxLayout(frame);
    for (int places = 0; places <= mostPlaces; ++places) {
        auto* option = new QRadioButton(QString::number(places));
        option->setObjectName(QString("optDecPlace_%1").arg(places));
        option->setAccessibleName(QString("%1 decimal places").arg(places));
        option->setChecked(places == places_);
        connect(option, &QRadioButton::clicked, this, [this, places] {
            machine_.setPlaces(places);
            picSetFocus->setFocus();
        });
        row->addWidget(option);
    }
    row->addStretch();
    return frame;
}

QLayout* frmCalculator::makeFoot() {
    auto* foot = new QHBoxLayout;
    for (size_t place = padButtons; place < machineButtons().size(); ++place)
        foot->addWidget(makeButton(machineButtons().at(place)));
    return foot;
}

void frmCalculator::showEvent(QShowEvent* event) {
    ChildScreen::showEvent(event);
    picSetFocus->setFocus();
}

// The tape is read with the keys of a page; every other key is the machine's.
void frmCalculator::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        return void(QApplication::sendEvent(lstTape->viewport(), event));
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const MachineButton* button =
        command ? nullptr : machineButtonFor(static_cast<Qt::Key>(key), event->text());
    if (!button) return QWidget::keyPressEvent(event);
    if (key == Qt::Key_Escape && machine_.isIdle()) return CloseRecord();
    press(*button);
}

void frmCalculator::press(const MachineButton& button) {
    picSetFocus->setFocus();
    switch (button.key) {
        case MachineKey::CopyTape:
            return copyTape();
        case MachineKey::PrintTape:
            guarded([] { runFromPrintScreen(tapeReport(deskTape()), ReportTarget::Printer); });
            return;
        case MachineKey::Close:
            return CloseRecord();
        default:
            return pressOnMachine(button);
    }
}

void frmCalculator::pressOnMachine(const MachineButton& button) {
    const AddingMachine::Answer answer = machine_.press(button.key, button.index);
    showMachine();
    tell(answer);
}

void frmCalculator::showMachine() {
    lblResult->setText(machine_.display());
    lblOperator->setText(machine_.operatorSign());
    lblMemory->setVisible(machine_.hasMemory());
    picSetFocus->setAccessibleDescription(machine_.display() + ' ' + machine_.operatorSign());
    const QStringList& lines = deskTape().lines;
    if (lstTape->count() > lines.size()) lstTape->clear();
    for (qsizetype line = lstTape->count(); line < lines.size(); ++line) {
        auto* item = new QListWidgetItem(lines.at(line), lstTape);
        item->setTextAlignment(Qt::AlignRight);
    }
    lstTape->setCurrentRow(lstTape->count() - 1);
}

void frmCalculator::copyTape() {
    const QString path = programFolder().filePath("Tape.txt");
    QString text = deskTape().lines.join('\n');
    if (!text.isEmpty()) text += '\n';
    const QString failure = reportOutput::writeFile(path, text.toUtf8());
    if (!failure.isEmpty())
        showBox(exclamation("Error...", failure));
    else if (!desk::openWithDesktop(path))
        showBox(exclamation("Error...", "Nothing on this computer opens " + path + "."));
}
