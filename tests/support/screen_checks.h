#pragma once
#include <QStringList>

class QWidget;

// What every screen must keep, whatever it does. Each check gives its faults, one line each; the screen is
// shown at its present size.
namespace check {

// Labels, buttons, headings and boxes whose text does not fit, and controls that stand outside their screen.
QStringList clippedTexts(QWidget* screen);
// Controls that take the focus without an accessible name or an object name.
QStringList unnamedControls(QWidget* screen);
// Steps of the tab order that go back against the eye: up, or to the left in a row. A step up to a column
// further right is a new column.
QStringList tabOrderFaults(QWidget* screen);

// All of these.
QStringList faults(QWidget* screen);

}  // namespace check
