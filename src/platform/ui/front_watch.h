#pragma once
#include "platform/ui/child_screen.h"

#include <QObject>
#include <QPointer>

// Something that tells when a person comes to it and leaves it for another control of the program: not for a
// box, a menu, another program, and not when its own screen closes.
class FocusField {
  public:
    virtual ~FocusField() = default;
    virtual void fieldGained() = 0;
    virtual void fieldLost() = 0;
};

// Follows the focus through the program: which field and which screens a person is at.
class FrontWatch : public QObject {
    Q_OBJECT
  public:
    static FrontWatch& instance();

    // The screen in front; the last one that was while a box, the frame or another program has the focus.
    ChildScreen* front() const { return front_; }
    // While held, by a box or the progress box, nobody gains or loses anything.
    void hold() { ++holds_; }
    void release();
    // Looks where the focus is, at once instead of at the next turn of the event loop.
    void settle();
    // The screen has gone; what it held is nobody's.
    void forget(ChildScreen* screen);

  private:
    FrontWatch();
    void focusChanged(QWidget* now);
    void moveField(QWidget* now);
    void settleLater();
    bool outsideTheWork(QWidget* now) const;
    void bringToFront(ChildScreen* screen);

    QPointer<QWidget> field_;
    QPointer<ChildScreen> front_;
    QList<QPointer<ChildScreen>> active_;
    int holds_ = 0;
    bool settling_ = false;
};

// Holds the watch for a scope, and gives the focus back to the window that had it.
class FrontHold {
  public:
    FrontHold();
    ~FrontHold();
    FrontHold(const FrontHold&) = delete;
    FrontHold& operator=(const FrontHold&) = delete;

  private:
    QPointer<QWidget> window_;
};
