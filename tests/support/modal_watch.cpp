#include "support/modal_watch.h"

#include <gtest/gtest.h>

#include <QApplication>

ModalWatch::ModalWatch() { startTimer(200); }

void ModalWatch::timerEvent(QTimerEvent*) {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != seen_) {
        seen_ = modal;
        since_.start();
    }
    if (!modal || since_.elapsed() < 5000) return;
    ADD_FAILURE() << "nobody closes " << qPrintable(modal->objectName() + " \"" + modal->windowTitle() + '"');
    modal->close();
}
