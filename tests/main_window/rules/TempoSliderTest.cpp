// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoSlider.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(TempoLabels, TellPercentAndTheWholeGridsSeconds)
{
    EXPECT_EQ(TempoLabel(100).English(), "100%");
    EXPECT_EQ(DurationLabel(320).English(), "240 sec");
    EXPECT_EQ(DurationLabel(160).English(), "480 sec");
    EXPECT_EQ(DurationLabel(640).English(), "120 sec");
    EXPECT_EQ(DurationLabel(0).English(), "0 sec");
}

} // namespace
} // namespace sprout
