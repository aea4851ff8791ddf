#pragma once
#include <QElapsedTimer>
#include <functional>

// The seconds that a piece of work takes.
inline double secondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}
