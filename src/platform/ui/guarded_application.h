#pragma once
#include <QApplication>

// The application object, and the net under every screen: an exception that a handler of an event lets
// through ends there. Its text comes up in a box "Error..." once the event is over; while that box waits or
// is open, others like it are dropped.
class GuardedApplication : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void tellLater(const QString& text);
    bool telling_ = false;
};
