#include "platform/ui/modal_form.h"

#include "platform/ui/child_screen.h"

#include <QApplication>
#include <QKeyEvent>

ModalForm::ModalForm(const QString& name, const QString& caption) : QDialog(QApplication::activeWindow()) {
    setObjectName(name);
    setWindowTitle(caption);
}

void ModalForm::showModal() { exec(); }

void ModalForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        focusNextField(this);
    else
        QDialog::keyPressEvent(event);
}
