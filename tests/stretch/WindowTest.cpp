// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Window.h"

#include <gmock/gmock.h>

#include <vector>

namespace sprout::stretch {

TEST(HannWindow, RisesFromZeroToOneInTheMiddle)
{
    const std::span<const float> window = HannWindow(8);
    EXPECT_FLOAT_EQ(window[0], 0);
    EXPECT_FLOAT_EQ(window[4], 1);
    EXPECT_FLOAT_EQ(window[1], window[7]);
}

TEST(WindowBlock, TakesSilenceForWhatLiesOutsideTheSound)
{
    const std::vector<float> sound{1, 2, 3};
    const std::vector<float> window{1, 1, 1, 2};
    std::vector<float> block(6, 9.0F);
    WindowBlock(sound, -1, window, block);
    EXPECT_THAT(block, testing::ElementsAre(0, 1, 2, 6, 0, 0));
    WindowBlock(sound, 1, window, block);
    EXPECT_THAT(block, testing::ElementsAre(2, 3, 0, 0, 0, 0));
    WindowBlock(sound, 5, window, block);
    EXPECT_THAT(block, testing::Each(0));
    WindowBlock(sound, -9, window, block);
    EXPECT_THAT(block, testing::Each(0));
}

} // namespace sprout::stretch
