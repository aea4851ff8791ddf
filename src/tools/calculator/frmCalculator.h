#pragma once
#include "platform/ui/child_screen.h"
#include "tools/calculator/adding_machine.h"

#include <QLayout>
#include <QPushButton>

class QLabel;
class QListWidget;
struct MachineButton;

// The adding machine with its paper tape. It works by the keys of the keyboard and by its buttons; after each
// button the keyboard is back at the machine. Esc cancels the sum, and closes a machine with nothing on it.
class frmCalculator : public ChildScreen {
    Q_OBJECT
  public:
    frmCalculator();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QWidget* makeDisplay();
    QLayout* makePad();
    QWidget* makePlaces();
    QLayout* makeFoot();
    QPushButton* makeButton(const MachineButton& button);
    void press(const MachineButton& button);
    void pressOnMachine(const MachineButton& button);
    void showMachine();
    void copyTape();

    int places_;
    AddingMachine machine_;
    QWidget* picSetFocus;
    QLabel* lblMemory;
    QLabel* lblOperator;
    QLabel* lblResult;
    QListWidget* lstTape;
};
