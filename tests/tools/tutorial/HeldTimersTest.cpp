// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HeldTimers.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QTimerEvent>
#include <QWidget>

namespace sprout {
namespace {

class HeldTimersTest : public testing::Test {
protected:
    HeldTimersTest()
    {
        timer.setObjectName(QStringLiteral("BlinkTimer"));
        QObject::connect(&timer, &QTimer::timeout, &window, [this] { ++ticks; });
        timer.start(1'000'000);
    }

    void Fire()
    {
        QTimerEvent event(timer.timerId());
        QApplication::sendEvent(&timer, &event);
    }

    QWidget window;
    QTimer timer{&window};
    int ticks = 0;
};

TEST_F(HeldTimersTest, TickOnlyIfTheyAreTold)
{
    {
        const HeldTimers held;
        Fire();
        EXPECT_EQ(ticks, 0);
        EXPECT_EQ(HeldTimers::Tick(QStringLiteral("BlinkTimer")), 1);
        EXPECT_EQ(ticks, 1);
    }
    Fire();
    EXPECT_EQ(ticks, 2) << "they are free again";
}

TEST_F(HeldTimersTest, TickIfTheyRun)
{
    const HeldTimers held;
    EXPECT_EQ(HeldTimers::Tick(QStringLiteral("OtherTimer")), 0);
    timer.setSingleShot(true);
    EXPECT_EQ(HeldTimers::Tick(QStringLiteral("BlinkTimer")), 1);
    EXPECT_EQ(HeldTimers::Tick(QStringLiteral("BlinkTimer")), 0) << "a single shot is over";
    EXPECT_EQ(ticks, 1);
}

TEST_F(HeldTimersTest, AreFoundBelowOtherObjectsToo)
{
    const HeldTimers held;
    QObject owner;
    timer.setParent(&owner);
    EXPECT_EQ(HeldTimers::Tick(QStringLiteral("BlinkTimer")), 0);
    EXPECT_EQ(HeldTimers::Tick(QStringLiteral("BlinkTimer"), {&owner}), 1);
    timer.setParent(nullptr);
}

} // namespace
} // namespace sprout
