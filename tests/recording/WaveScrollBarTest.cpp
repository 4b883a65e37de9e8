// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WaveScrollBar.h"

#include <QWheelEvent>

#include "recording/AudioEditFixture.h"

namespace sprout {
namespace {

class WaveScrollBarTest : public AudioEditFixture {};

TEST_F(WaveScrollBarTest, ScrollsFromWhereTheViewStands)
{
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    QTest::keyClick(&Pic(), Qt::Key_Home);
    EXPECT_EQ(Boxed(), "-1--1");
    const QImage before = Pic().Draw(1);
    Bar().setValue(50);
    const QImage once = Pic().Draw(1);
    EXPECT_NE(once, before);
    Bar().setValue(51);
    const QImage twice = Pic().Draw(1);
    Bar().setValue(50);
    EXPECT_NE(Pic().Draw(1), once); // the same value now means another place
}

TEST_F(WaveScrollBarTest, ScrollsOnceForAThumbThatIsLetGo)
{
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    const QImage before = Pic().Draw(1);
    Bar().setSliderDown(true);
    Bar().setSliderPosition(40);
    Bar().setSliderPosition(60);
    EXPECT_EQ(Pic().Draw(1), before);
    Bar().setSliderDown(false);
    EXPECT_EQ(Bar().value(), 60);
    EXPECT_NE(Pic().Draw(1), before);
}

TEST_F(WaveScrollBarTest, ScrollsByArrowsPagesKeysAndWheel)
{
    Bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(Bar().value(), 1);
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(Bar().value(), 11);
    QTest::keyClick(&Bar(), Qt::Key_Right);
    EXPECT_EQ(Bar().value(), 12);
    QTest::keyClick(&Bar(), Qt::Key_Left);
    EXPECT_EQ(Bar().value(), 11);
    QTest::keyClick(&Bar(), Qt::Key_PageDown);
    EXPECT_EQ(Bar().value(), 21);
    QWheelEvent wheel({5, 5}, Bar().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Bar(), &wheel);
    EXPECT_GT(Bar().value(), 21);
}

} // namespace
} // namespace sprout
