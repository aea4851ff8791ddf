#pragma once
#include "platform/ui/key_filters.h"

#include <QLineEdit>

// A text box: selects its whole text on focus, takes the keys of its filter (beeps at others), and says when
// it is full; a paste that would not fit whole is refused with a box, never cut.
class TextBox : public QLineEdit {
    Q_OBJECT
  public:
    explicit TextBox(const QString& name, QWidget* parent = nullptr);

    void setKeyFilter(const KeyFilter& filter) { filter_ = filter; }
    // The most characters it holds; 0 (at the start): 32,000.
    void setCapacity(int characters);
    int capacity() const { return capacity_; }
    void selectAllText() { selectAll(); }

  signals:
    void focusGained();
    void focusLost();  // the told LostFocus: the focus went to another control of the program, or closed
    void keyTyped();   // the told KeyPress: a key went into the box
    void keyReleased();
    void entered();  // Enter

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    KeyFilter filter_;
    int capacity_;
};

// A read-only figure or text on a screen: a TextBox that takes no focus and shows it.
TextBox* readOnlyBox(const QString& name, Qt::Alignment alignment = Qt::AlignLeft);
