#pragma once
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

class QHBoxLayout;

// Small builders, so that every screen labels and names its controls alike.
namespace form {
// A label with plain text; its buddy's accessible name is the label without the colon and mnemonic.
QLabel* label(const QString& text, QWidget* buddy = nullptr);
// A label and its control in a row of a grid; the control takes the columns that follow.
void row(QGridLayout* grid, int row, int column, const QString& text, QWidget* control, int span = 1);
QPushButton* button(const QString& name, const QString& caption, const QString& icon = {});
// A button with a picture only: the text is its tool tip and accessible name (the controls named img...).
QToolButton* imageButton(const QString& name, const QString& icon, const QString& text);
QGroupBox* frame(const QString& name, const QString& caption);
// The buttons at the foot of a screen: side by side at the right end.
QHBoxLayout* buttonsAtRight(const QList<QPushButton*>& buttons);
void setAccessibleFromTexts(QWidget* screen);  // gives every unnamed control the name of its buddy or text
// The widget's own font, this many times as large, bold or not.
void setFont(QWidget* widget, double factor, bool bold = false);
// Keeps the full colour of these parts while the widget, or what stands in it, is disabled: it is there to be
// read.
void keepReadable(QWidget* widget, std::initializer_list<QPalette::ColorRole> roles);
// Width for this many average characters of the widget's font.
int charactersWide(const QWidget* widget, int characters);
}  // namespace form
