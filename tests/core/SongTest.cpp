// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Song.h"

#include <gtest/gtest.h>

#include <limits>

namespace sprout {
namespace {

TEST(TuneStep, OnlyTheValueOneIsOn)
{
    TuneStep step;
    EXPECT_FALSE(step.IsOn());
    for (const std::int32_t value : {-1, 2, 255}) {
        step.OnPos = value;
        EXPECT_FALSE(step.IsOn()) << value;
    }
    step.OnPos = 1;
    EXPECT_TRUE(step.IsOn());
    step.SetOn(false);
    EXPECT_EQ(step.OnPos, 0);
    step.SetOn(true);
    EXPECT_EQ(step.OnPos, 1);
}

TEST(Track, OnlyTheBrushsNumberIsPaint)
{
    Track track;
    track.Painted = {1, 0, 1, 2, 3}; // element 0 is no cell
    EXPECT_FALSE(track.IsPainted(1));
    EXPECT_TRUE(track.IsPainted(2));
    EXPECT_FALSE(track.IsPainted(3));
    EXPECT_FALSE(track.IsPainted(4));
}

TEST(Track, HasNoPaintOutsideItsCells)
{
    Track track;
    track.Painted.assign(3, 1);
    EXPECT_TRUE(track.IsPainted(2));
    for (const std::int32_t cell : {-1, 0, 3, std::numeric_limits<std::int32_t>::max()})
        EXPECT_FALSE(track.IsPainted(cell)) << cell;
    track.Painted.clear();
    EXPECT_FALSE(track.IsPainted(0));
}

} // namespace
} // namespace sprout
