#pragma once
#include <QString>
#include <Qt>

class QAbstractItemView;
class QWidget;

// What a person does with keys, mouse and eyes. Keys go where the focus is; every act waits until what it set
// going has settled.
namespace person {

// The control of this name on the screen; fails the test, and gives null, when there is none.
QWidget* control(QWidget* screen, const QString& name);
template <typename T>
T* find(QWidget* screen, const QString& name) {
    return dynamic_cast<T*>(control(screen, name));
}

void settle();                                    // until nothing is left to happen at once
void look(QWidget* screen);                       // shows it as the window in front
void goTo(QWidget* screen, const QString& name);  // the focus, as by its mnemonic
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(const QString& text);
// Goes to the field, replaces what it holds, and stays there.
void fill(QWidget* screen, const QString& name, const QString& text);
// Puts the text on the clipboard and pastes it where the focus is.
void paste(const QString& text);
void click(QWidget* widget);
void click(QWidget* screen, const QString& name);
void doubleClickRow(QAbstractItemView* list, int row, int column = 0);
void clickHeader(QAbstractItemView* list, int column);

// The text of a field, combo box, label or button of this name.
QString read(QWidget* screen, const QString& name);
QString focusName();  // the name of the control that has the focus; empty: none has

}  // namespace person
