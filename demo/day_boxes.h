#pragma once
#include "platform/box.h"

#include <QList>
#include <QString>
#include <functional>

// Answers the message boxes of a played day: those that are expected, in their order, and says what they
// were. Any other box is answered as Esc would and remembered as a fault.
class DayBoxes {
  public:
    explicit DayBoxes(std::function<void(const QString& line)> say);
    ~DayBoxes();
    DayBoxes(const DayBoxes&) = delete;
    DayBoxes& operator=(const DayBoxes&) = delete;

    // The text is how it begins, an empty title any. A box that is expected may also stay away when it is
    // optional.
    struct Expected {
        QString title;
        QString text;
        BoxAnswer answer = BoxAnswer::Ok;
        bool optional = false;
    };
    void expect(const QList<Expected>& boxes) { expected_ = boxes; }
    // What came that was not expected, or did not come that was; empty: all as expected. Expects nothing
    // from then on.
    QString settle();

  private:
    BoxAnswer answer(const Box& box);

    std::function<void(const QString& line)> say_;
    QList<Expected> expected_;
    QString surprise_;
};
