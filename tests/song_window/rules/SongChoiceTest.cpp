// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/rules/SongChoice.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(LayoutOf, TellsTheTopsAndHeightsOfEachMode)
{
    const SongSelLayout& open = LayoutOf(SongSelMode::Open);
    EXPECT_EQ(open.ListHeight, 257);
    EXPECT_EQ(open.ListTop, 56);
    EXPECT_EQ(open.ListTitleTop, 32);
    for (const SongSelMode mode : {SongSelMode::Save, SongSelMode::New}) {
        EXPECT_EQ(LayoutOf(mode).ListHeight, 211);
        EXPECT_EQ(LayoutOf(mode).ListTop, 44);
        EXPECT_EQ(LayoutOf(mode).ListTitleTop, 20);
    }
}

TEST(RowAfterChange, StaysWhereItWasHeldToTheLastLine)
{
    EXPECT_EQ(RowAfterChange(1, 3), 1);
    EXPECT_EQ(RowAfterChange(3, 3), 2);
    EXPECT_EQ(RowAfterChange(0, 0), -1);
}

TEST(LayoutOf, TellsWhatEachModeHas)
{
    EXPECT_FALSE(LayoutOf(SongSelMode::Open).HasNameBox);
    EXPECT_FALSE(LayoutOf(SongSelMode::Open).HasSoundFiles);
    EXPECT_TRUE(LayoutOf(SongSelMode::Save).HasNameBox);
    EXPECT_TRUE(LayoutOf(SongSelMode::Save).HasSoundFiles);
    EXPECT_TRUE(LayoutOf(SongSelMode::New).HasNameBox);
    EXPECT_FALSE(LayoutOf(SongSelMode::New).HasSoundFiles);
}

} // namespace
} // namespace sprout
