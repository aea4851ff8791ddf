#pragma once
#include <QObject>

class QKeyEvent;
class QWidget;

// Alt and a letter go to the child screen that has the focus before they go to the menu bar: "&Add Item"
// before "&Administration". What the child does not know is the menu bar's.
class ChildMnemonics : public QObject {
    Q_OBJECT
  public:
    explicit ChildMnemonics(QWidget* frame);
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    QWidget* controlFor(QObject* target, const QKeyEvent* event) const;

    QWidget* frame_;
};
