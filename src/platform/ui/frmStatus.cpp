#include "platform/ui/frmStatus.h"

#include "platform/store/connection.h"
#include "platform/ui/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

// The bar counts in thousandths: its own maximum is a 32-bit number.
static constexpr int barSteps = 1000;
static constexpr qint64 paintEveryMs = 50;

frmStatus::frmStatus() : lblStatus(form::label("")), pbrStatus(new QProgressBar) {
    setObjectName("frmStatus");
    setWindowTitle("Please Wait...");
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    lblStatus->setObjectName("lblStatus");
    lblStatus->setWordWrap(true);
    lblStatus->setMinimumWidth(form::charactersWide(lblStatus, 60));
    pbrStatus->setObjectName("pbrStatus");
    pbrStatus->setRange(0, barSteps);
    pbrStatus->setAccessibleName("Progress");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblStatus);
    layout->addWidget(pbrStatus);
}

frmStatus::~frmStatus() = default;

void frmStatus::begin(const QString& text, qint64 maximum) {
    works_ += {text, maximum, 0};
    if (works_.size() == 1) comeUp();
    showWork();
}

void frmStatus::comeUp() {
    hold_ = std::make_unique<FrontHold>();
    lblStatus->setText(works_.last().text);
    adjustSize();
    QWidget* front = QApplication::activeWindow();
    const QRect area = front ? front->frameGeometry() : screen()->availableGeometry();
    move(area.center() - rect().center());
    show();
    if (front && front->windowHandle()) windowHandle()->setTransientParent(front->windowHandle());
}

void frmStatus::setText(const QString& text) {
    if (works_.isEmpty()) return;
    works_.last().text = text;
    lblStatus->setText(text);
    if (sincePaint_.hasExpired(paintEveryMs)) showWork();
}

void frmStatus::setValue(qint64 value) {
    if (works_.isEmpty()) return;
    works_.last().value = value;
    if (sincePaint_.hasExpired(paintEveryMs)) showWork();
}

void frmStatus::end() {
    if (works_.isEmpty()) return;
    works_.removeLast();
    if (!works_.isEmpty()) return showWork();
    hide();
    hold_.reset();
}

static int stepOf(qint64 value, qint64 maximum) {
    if (maximum <= 0) return 0;
    const double part =
        static_cast<double>(std::clamp<qint64>(value, 0, maximum)) / static_cast<double>(maximum);
    return static_cast<int>(part * barSteps);
}

void frmStatus::showWork() {
    lblStatus->setText(works_.last().text);
    pbrStatus->setValue(stepOf(works_.last().value, works_.last().maximum));
    paintNow();
}

// What is typed meanwhile waits until the work is done.
void frmStatus::paintNow() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    sincePaint_.start();
}

// The work closes it, nobody else.
void frmStatus::closeEvent(QCloseEvent* event) { event->setAccepted(works_.isEmpty()); }

void installIdleHook() {
    Connection::setIdleHook([] { QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
}
