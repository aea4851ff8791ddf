#include "documents/ask.h"

#include <QWidget>

void tellFault(const Fault& fault, QWidget* screen) {
    if (!fault.box.text.isEmpty()) return showFault(fault, screen);
    if (auto* control = screen->findChild<QWidget*>(fault.focus)) control->setFocus();
}
