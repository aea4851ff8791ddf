#include "shell/frame_activation.h"

#include "platform/ui/boxes.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace {

// Between two windows of one program a desktop may tell that it lost the focus, for a moment.
constexpr qint64 momentBetweenWindows = 200;  // ms

}  // namespace

FrameActivation::FrameActivation(QWidget* frame) : QObject(frame), frame_(frame) {
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &FrameActivation::stateChanged);
}

bool FrameActivation::frameIsFree() const {
    return frame_->isVisible() && !boxIsOpen() && !QApplication::activeModalWidget();
}

void FrameActivation::stateChanged(Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive)
        returned();
    else if (!away_.isValid()) {
        leftFrame_ = frameIsFree();
        away_.start();
    }
}

void FrameActivation::returned() {
    if (!away_.isValid()) return;
    const bool wasOutside = leftFrame_ && away_.elapsed() >= momentBetweenWindows;
    away_.invalidate();
    if (!wasOutside) return;
    QTimer::singleShot(0, this, [this] {
        if (frameIsFree() && frame_->isActiveWindow()) emit cameBack();
    });
}
