// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/Slider.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr Slider kSlider{20, 170, 20, 50, 200};

TEST(Slider, PutsThePointerByThePercentage)
{
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(50), 20);
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(100), 70);
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(200), 170);
}

TEST(Slider, ReadsThePercentageBackFromEveryPlace)
{
    const Slider narrow{7, 93, 11, 50, 200};
    for (std::int32_t percent = 50; percent <= 200; ++percent)
        EXPECT_EQ(narrow.PercentAt(narrow.LeftOf(percent)), percent);
}

TEST(Slider, KeepsPercentageAndPointerInTheSlot)
{
    EXPECT_EQ(kSlider.PercentAt(-500), 50);
    EXPECT_EQ(kSlider.PercentAt(500), 200);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, -400, 5), 20);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, 400, 5), 170);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, 15, 5), 80);
}

} // namespace
} // namespace sprout
