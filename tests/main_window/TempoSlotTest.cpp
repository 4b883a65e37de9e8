// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoSlot.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace sprout {
namespace {

TEST(TempoSlot, ReportsWhereTheLeftButtonWasPressedInItsParent)
{
    QWidget window;
    TempoSlot slot(&window);
    slot.move(30, 5);
    window.show();
    QSignalSpy pressed(&slot, &TempoSlot::Pressed);
    QTest::mousePress(&slot, Qt::RightButton, {}, QPoint(20, 10));
    EXPECT_EQ(pressed.count(), 0);
    QTest::mousePress(&slot, Qt::LeftButton, {}, QPoint(20, 10));
    ASSERT_EQ(pressed.count(), 1);
    EXPECT_EQ(pressed.front().front().toDouble(), 50);
}

TEST(TempoSlot, HasAKnotAtEveryHalfOfTheUsualTempoAndALongerOneAtIt)
{
    QWidget window;
    TempoSlot slot(&window);
    const QImage shown = slot.grab().toImage();
    const auto isDark = [&shown](int x, int y) { return shown.pixelColor(x, y).lightness() < 150; };
    const int middle = slot.height() / 2;
    for (const int knot : {17, 67, 117, 166}) // one pixel for each percent
        EXPECT_TRUE(isDark(knot, middle - 6)) << knot;
    EXPECT_TRUE(isDark(67, middle - 9));
    EXPECT_FALSE(isDark(117, middle - 9));
    EXPECT_FALSE(isDark(90, middle - 6));
}

} // namespace
} // namespace sprout
