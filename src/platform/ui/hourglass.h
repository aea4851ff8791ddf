#pragma once
#include <QApplication>

// The pointer is an hourglass while this lives.
class Hourglass {
  public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};
