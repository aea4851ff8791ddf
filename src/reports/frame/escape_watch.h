#pragma once
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <memory>
#include <utility>
#include <vector>

class QEvent;

// While it lives, Esc breaks off a long piece of work that runs in one go. What else is typed waits until the
// work is done, and the mouse does nothing.
class EscapeWatch : public QObject {
  public:
    EscapeWatch();
    ~EscapeWatch() override;
    // Looks for the key some ten times a second, however often it is asked.
    bool isPressed();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    QElapsedTimer sinceLook_;
    bool isPressed_ = false;
    std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>> waiting_;
};
