#include "platform/clock.h"

#include <gtest/gtest.h>

#include <QThread>

TEST(Clock, RunsOnFromTheConfirmedMoment) {
    const QDateTime confirmed(QDate(2031, 5, 6), QTime(7, 8, 9));
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
