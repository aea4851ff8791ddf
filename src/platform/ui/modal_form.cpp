#include "platform/ui/modal_form.h"

#include "platform/ui/child_screen.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/popup_frame.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

ModalForm::ModalForm(const QString& name, const QString& caption) : QDialog(QApplication::activeWindow()) {
    setObjectName(name);
    setWindowTitle(caption);
    PopupFrame::dress(this);
}

void ModalForm::showModal() { exec(); }

void ModalForm::layOut(QLayout* fields, const QList<QPushButton*>& buttons) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addLayout(form::buttonsAtRight(buttons));
    form::setAccessibleFromTexts(this);
}

void ModalForm::keyPressEvent(QKeyEvent* event) {
    if (isEnterKey(event->key()))
        focusNextField(this);
    else
        QDialog::keyPressEvent(event);
}
