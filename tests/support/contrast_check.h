#pragma once
#include <QStringList>

class QWidget;

namespace check {

// The texts on the screen that stand out from their background by less than 4.5 : 1, measured on its picture:
// labels, buttons, fields, headings and the rows of lists.
QStringList weakTexts(QWidget* screen);

}  // namespace check
