#include "platform/clock.h"

#include <gtest/gtest.h>

namespace {
const QDateTime confirmed(QDate(2031, 5, 6), QTime(7, 8, 9));

class ClockTest : public testing::Test {
  protected:
    void TearDown() override {
        Clock::unfreeze();
        Clock::clearOffset();
        Clock::setSystemClockDoor({});
    }
};
}  // namespace

TEST_F(ClockTest, RunsOnFromTheConfirmedMoment) {
    Clock::setNow(confirmed);
    const qint64 first = confirmed.msecsTo(Clock::now());
    EXPECT_GE(first, 0);
    EXPECT_LT(first, 5000);
    QThread::msleep(20);
    EXPECT_GT(confirmed.msecsTo(Clock::now()), first);
    EXPECT_EQ(Clock::today(), confirmed.date());
    Clock::clearOffset();
    EXPECT_LT(qAbs(Clock::now().msecsTo(QDateTime::currentDateTime())), 5000);
}

TEST_F(ClockTest, StandsStillWhileFrozen) {
    Clock::freeze(confirmed);
    QThread::msleep(5);
    EXPECT_EQ(Clock::now(), confirmed);
    Clock::setNow(confirmed.addDays(1));
    EXPECT_EQ(Clock::now(), confirmed.addDays(1));
    Clock::unfreeze();
    EXPECT_EQ(Clock::today(), confirmed.date().addDays(1));
}

TEST_F(ClockTest, ARefusedSystemClockChangesNothing) {
    Clock::setNow(confirmed);
    Clock::setSystemClockDoor([](const QDateTime&) { return false; });
    EXPECT_FALSE(Clock::setSystemClock(confirmed.addYears(1)));
    EXPECT_EQ(Clock::today(), confirmed.date());
}

TEST_F(ClockTest, ASetSystemClockNeedsNoOffset) {
    QDateTime given;
    Clock::setNow(confirmed);
    Clock::setSystemClockDoor([&](const QDateTime& moment) {
        given = moment;
        return true;
    });
    EXPECT_TRUE(Clock::setSystemClock(confirmed));
    EXPECT_EQ(given, confirmed);
    EXPECT_LT(qAbs(Clock::now().msecsTo(QDateTime::currentDateTime())), 5000);
}
