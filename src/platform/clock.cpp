#include "platform/clock.h"

#include <time.h>
#include <optional>

namespace {
struct State {
    qint64 offsetMs = 0;
    std::optional<QDateTime> frozen;
    std::function<bool(const QDateTime&)> systemClockDoor;
};

State& state() {
    static State clock;
    return clock;
}

bool setMachineClock(const QDateTime& moment) {
    const qint64 ms = moment.toMSecsSinceEpoch();
    timespec time{};
    time.tv_sec = ms / 1000;
    time.tv_nsec = ms % 1000 * 1'000'000;
    return clock_settime(CLOCK_REALTIME, &time) == 0;
}
}  // namespace

QDateTime Clock::now() {
    if (state().frozen) return *state().frozen;
    return QDateTime::currentDateTime().addMSecs(state().offsetMs);
}

QDate Clock::today() { return now().date(); }

void Clock::setNow(const QDateTime& moment) {
    state().offsetMs = QDateTime::currentDateTime().msecsTo(moment);
    if (state().frozen) state().frozen = moment;
}

void Clock::clearOffset() { state().offsetMs = 0; }

void Clock::freeze(const QDateTime& moment) { state().frozen = moment; }

void Clock::unfreeze() { state().frozen.reset(); }

bool Clock::setSystemClock(const QDateTime& moment) {
    const auto& door = state().systemClockDoor;
    const bool done = door ? door(moment) : setMachineClock(moment);
    if (done) clearOffset();  // the machine itself now reads the moment
    return done;
}

void Clock::setSystemClockDoor(std::function<bool(const QDateTime&)> door) {
    state().systemClockDoor = std::move(door);
}
