#pragma once
#include <QDialog>

class QLayout;
class QPushButton;

// A modal screen: Enter moves to the next field (or presses the button that has the focus), Esc unloads.
class ModalForm : public QDialog {
    Q_OBJECT
  public:
    ModalForm(const QString& name, const QString& caption);
    // Shows it over the active window, until it unloads.
    void showModal();

  protected:
    // The fields, and the buttons at the right below them.
    void layOut(QLayout* fields, const QList<QPushButton*>& buttons);
    void keyPressEvent(QKeyEvent* event) override;
};
