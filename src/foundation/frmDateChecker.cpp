#include "foundation/frmDateChecker.h"

#include "foundation/login.h"
#include "platform/clock.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QDateEdit>
#include <QSizePolicy>
#include <QTimeEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// What is to be confirmed must be read well while it cannot be changed.
void keepReadable(QWidget* widget) { form::keepReadable(widget, {QPalette::Text, QPalette::WindowText}); }

QDateTimeEdit* picker(QDateTimeEdit* edit, const QString& name, const QString& format) {
    edit->setObjectName(name);
    edit->setDisplayFormat(format);
    edit->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
    form::setFont(edit, 1.3);
    edit->setMinimumWidth(form::charactersWide(edit, 18));
    keepReadable(edit);
    return edit;
}

QDateTimeEdit* datePicker() {
    auto* edit = new QDateEdit;
    edit->setCalendarPopup(true);
    return picker(edit, "dtpDate", "MM/dd/yyyy");
}

QTimer* startedTimer(QObject* owner, const QString& name, int milliseconds) {
    auto* timer = new QTimer(owner);
    timer->setObjectName(name);
    timer->start(milliseconds);
    return timer;
}

}  // namespace

frmDateChecker::frmDateChecker()
    : ModalForm("frmDateChecker", "Current Date and Time"),
      date_(makeValue(0, "Date", datePicker(), "chkDate", "tmrCurrDate")),
      time_(makeValue(1, "Time", picker(new QTimeEdit, "dpTime", "hh:mm:ss AP"), "chkTime", "tmrCurrTime")),
      question_(form::label("Please make sure that the current time and date settings are correct!")) {
    build();
}

frmDateChecker::Value frmDateChecker::makeValue(int index, const QString& caption, QDateTimeEdit* picker,
                                                const QString& checkName, const QString& timerName) {
    auto* check = new QCheckBox("No,Let me adjust it!");
    check->setObjectName(checkName);
    check->setAccessibleName(caption + ": " + check->text());
    picker->setAccessibleName(caption);
    Value value{form::frame(QString("Frames_%1").arg(index), caption), picker, check,
                startedTimer(this, timerName, 1000)};
    keepReadable(value.frame);
    auto* inside = new QVBoxLayout(value.frame);
    inside->addWidget(picker);
    connect(check, &QCheckBox::toggled, this, [this, value](bool wanted) { adjust(value, wanted); });
    connect(value.timer, &QTimer::timeout, this, [this, value] { showNow(value); });
    adjust(value, false);
    return value;
}

void frmDateChecker::build() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    question_->setObjectName("Labels_0");
    question_->setWordWrap(true);
    form::setFont(question_, 1, true);
    QSizePolicy keepsRoom = question_->sizePolicy();
    keepsRoom.setRetainSizeWhenHidden(true);
    question_->setSizePolicy(keepsRoom);
    layout->addWidget(question_);

    auto* values = new QGridLayout;
    values->setHorizontalSpacing(16);
    int row = 0;
    for (const Value& value : {date_, time_}) {
        QLabel* label = form::label("Is this correct?");
        label->setObjectName(QString("Labels_%1").arg(row + 1));
        values->addWidget(value.frame, row, 0, 2, 1);
        values->addWidget(label, row, 1, Qt::AlignBottom);
        values->addWidget(value.check, row + 1, 1, Qt::AlignTop);
        row += 2;
    }
    layout->addLayout(values);

    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* leave = form::button("cmdClose", "&Close");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &frmDateChecker::cmdOK_Click);
    connect(leave, &QPushButton::clicked, this, &QWidget::close);
    layout->addLayout(form::buttonsAtRight({ok, leave}));
    ok->setFocus();

    connect(startedTimer(this, "tmrBlink", 500), &QTimer::timeout, this,
            [this] { question_->setVisible(question_->isHidden()); });
}

void frmDateChecker::adjust(const Value& value, bool wanted) {
    value.frame->setEnabled(wanted);
    if (wanted) {
        value.timer->stop();
        value.picker->setFocus();
    } else {
        showNow(value);
        value.timer->start();
    }
}

void frmDateChecker::showNow(const Value& value) { value.picker->setDateTime(Clock::now()); }

void frmDateChecker::cmdOK_Click() {
    std::optional<QDate> date;
    std::optional<QTime> time;
    if (date_.check->isChecked()) date = date_.picker->date();
    if (time_.check->isChecked()) time = time_.picker->time();
    const Boxes boxes = setClock(date, time);
    close();
    showBoxes(boxes);
}
