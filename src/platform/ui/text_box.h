#pragma once
#include "platform/ui/front_watch.h"
#include "platform/ui/key_filters.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>

// A text box: selects its whole text on focus, takes the keys of its filter (beeps at others), and says when
// it is full: a key is refused with a beep and a line beside the box, a paste that would not fit whole with a
// box. It holds one line: a paste with line breaks is refused with a box, too. What is set by the program is
// never refused or cut.
//
// Enter: a box whose entered() somebody is connected to has dealt with the key; from any other box Enter goes
// on to the screen, which moves to the next field. The keys of the frame (Shift+Del, Ctrl+S, F5, ...) are not
// taken.
class TextBox : public QLineEdit, public FocusField {
    Q_OBJECT
  public:
    explicit TextBox(const QString& name, QWidget* parent = nullptr);

    void setKeyFilter(const KeyFilter& filter) { filter_ = filter; }
    // The most characters it holds; 0 (at the start): 32,000.
    void setCapacity(int characters);
    void selectAllText() { selectAll(); }

    void fieldGained() override;
    void fieldLost() override { emit focusLost(); }

  signals:
    void focusGained();
    void focusLost();  // the focus went to another control of the program (see FocusField)
    void keyTyped();   // a key went into the box, or a person cut or pasted
    void keyReleased();
    void entered();  // Enter

  protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    // True when somebody deals with Enter in this box.
    virtual bool takesEnter() const;

  private:
    bool refusesKeys(const QString& typed) const;
    bool holdsWhole(const QString& text) const;
    void typeKey(QKeyEvent* event);
    QString takeRefused();
    void refused();
    void sayFull();
    void sayRefusedPaste();

    friend class OneLineValidator;
    KeyFilter filter_;
    int capacity_;
    bool clicked_ = false;  // the focus came by the mouse
    bool typing_ = false;   // a key is on its way into the box
    QString refusedText_;   // what the last paste would have made of the box
};

// A read-only figure or text on a screen: a TextBox that takes no focus, in the colour of the screen, so that
// a person sees where typing is possible.
TextBox* readOnlyBox(const QString& name, Qt::Alignment alignment = Qt::AlignLeft);
