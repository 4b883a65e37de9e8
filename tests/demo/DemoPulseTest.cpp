// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoPulse.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QTimerEvent>

#include <cstdlib>

namespace sprout {
namespace {

class DemoPulseTest : public testing::Test {
protected:
    DemoPulseTest()
    {
        picture.resize(200, 100);
        picture.show();
    }

    [[nodiscard]] QTimer& Timer() const { return *pulse.findChild<QTimer*>(QStringLiteral("DemoPulseTimer")); }
    void Tick() const
    {
        ASSERT_TRUE(Timer().isActive());
        QTimerEvent tick(Timer().timerId());
        QApplication::sendEvent(&Timer(), &tick);
    }
    /// How far the picture is from its ground where the ring lies.
    [[nodiscard]] int Strength()
    {
        const QColor ground = picture.grab().toImage().pixelColor(190, 90);
        const QColor ring = picture.grab().toImage().pixelColor(pulse.geometry().center().x(), pulse.y() + 3);
        return std::abs(ground.red() - ring.red()) + std::abs(ground.green() - ring.green()) +
               std::abs(ground.blue() - ring.blue());
    }

    QWidget picture;
    DemoPulse pulse{&picture};
};

TEST_F(DemoPulseTest, WaitsForFiveSeconds)
{
    EXPECT_FALSE(Timer().isActive());
    pulse.Await({40, 30, 20, 20});
    EXPECT_TRUE(pulse.isHidden());
    EXPECT_EQ(Timer().interval(), 5000);
    Tick();
    EXPECT_FALSE(pulse.isHidden());
    EXPECT_EQ(pulse.geometry(), QRect(35, 25, 30, 30));
    EXPECT_EQ(Timer().interval(), 50);
}

TEST_F(DemoPulseTest, SwellsAndFades)
{
    pulse.Await({40, 30, 40, 40});
    Tick();
    const int first = Strength();
    for (int tick = 1; tick < 16; ++tick)
        Tick();
    const int strongest = Strength();
    for (int tick = 16; tick < 32; ++tick)
        Tick();
    EXPECT_GT(strongest, first);
    EXPECT_GT(strongest, 100);
    EXPECT_LT(Strength(), 10);
    EXPECT_FALSE(pulse.isHidden());
}

TEST_F(DemoPulseTest, StaysInsideThePicture)
{
    pulse.Await({0, 0, 200, 100});
    EXPECT_EQ(pulse.geometry(), QRect(0, 0, 200, 100));
}

TEST_F(DemoPulseTest, Rests)
{
    pulse.Await({40, 30, 20, 20});
    Tick();
    pulse.Rest();
    EXPECT_TRUE(pulse.isHidden());
    EXPECT_FALSE(Timer().isActive());
    pulse.Await({40, 30, 20, 20});
    EXPECT_TRUE(pulse.isHidden());
    EXPECT_EQ(Timer().interval(), 5000);
}

TEST_F(DemoPulseTest, LetsTheMouseThrough)
{
    EXPECT_TRUE(pulse.testAttribute(Qt::WA_TransparentForMouseEvents));
}

} // namespace
} // namespace sprout
