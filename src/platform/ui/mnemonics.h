#pragma once
#include <QObject>

// The mnemonics of a screen's buttons and labels come before those of the frame's menus, which use the same
// letters: Alt+A is "&Add Item" where there is one, and "&Administration" elsewhere. A label gives the focus
// to its control. A button takes the focus first; where the field that is left keeps it, the button is not
// pressed. Controls that share a letter only take the focus, in turn.
class Mnemonics : public QObject {
    Q_OBJECT
  public:
    static void install();

  protected:
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    Mnemonics();
};
