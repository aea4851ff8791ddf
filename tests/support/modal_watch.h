#pragma once
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

// A modal window that nobody closes fails its test after five seconds and is closed, instead of holding the
// program for good.
class ModalWatch : public QObject {
  public:
    ModalWatch();

  protected:
    void timerEvent(QTimerEvent* event) override;

  private:
    QPointer<QWidget> seen_;
    QElapsedTimer since_;
};
