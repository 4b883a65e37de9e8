// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SelectionFrame.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

class SelectionFrameTest : public testing::Test {
protected:
    QWidget grid;
    SelectionFrame frame{&grid};
};

TEST_F(SelectionFrameTest, IsOutOfSightAndStillAtFirstAndAfterItLeaves)
{
    EXPECT_LT(frame.geometry().right(), 0);
    EXPECT_FALSE(frame.BlinkSelectedTimer().isActive());
    frame.Surround({5, 45});
    frame.Leave();
    EXPECT_LT(frame.geometry().right(), 0);
    EXPECT_FALSE(frame.BlinkSelectedTimer().isActive());
}

TEST_F(SelectionFrameTest, SurroundsAPictureOnAllSidesAndBlinks)
{
    frame.Surround({45, 85});
    EXPECT_EQ(frame.geometry(), QRect(40, 80, 42, 42));
    EXPECT_TRUE(frame.BlinkSelectedTimer().isActive());
    EXPECT_EQ(frame.BlinkSelectedTimer().interval(), 400);
}

TEST_F(SelectionFrameTest, EachPictureBeginsWithTheFirstArtworkForTwoTicks)
{
    for (int picture = 0; picture < 2; ++picture) {
        frame.Surround({picture * 40, 0});
        std::vector<int> phases{frame.Phase()};
        for (int tick = 0; tick < 4; ++tick) {
            frame.Blink();
            phases.push_back(frame.Phase());
        }
        EXPECT_EQ(phases, (std::vector{0, 0, 1, 0, 1}));
        frame.Blink(); // leaves it at the first artwork's second tick
        frame.Blink();
    }
}

} // namespace
} // namespace sprout
