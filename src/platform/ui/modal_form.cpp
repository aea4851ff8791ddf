#include "platform/ui/modal_form.h"

#include "platform/ui/child_screen.h"
#include "platform/ui/enter_key.h"

#include <QApplication>
#include <QKeyEvent>

ModalForm::ModalForm(const QString& name, const QString& caption) : QDialog(QApplication::activeWindow()) {
    setObjectName(name);
    setWindowTitle(caption);
}

void ModalForm::showModal() { exec(); }

void ModalForm::keyPressEvent(QKeyEvent* event) {
    if (isEnterKey(event->key()))
        focusNextField(this);
    else
        QDialog::keyPressEvent(event);
}
