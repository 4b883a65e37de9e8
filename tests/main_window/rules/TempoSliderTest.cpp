// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoSlider.h"

#include <gtest/gtest.h>

#include "core/SongModel.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

constexpr TempoSlider kSlider{20, 170, 20};

TEST(TempoSlider, PutsThePointerByThePercentage)
{
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(50), 20);
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(100), 70);
    EXPECT_DOUBLE_EQ(kSlider.LeftOf(200), 170);
}

TEST(TempoSlider, ReadsThePercentageBackFromEveryPlace)
{
    const TempoSlider narrow{7, 93, 11};
    for (std::int32_t percent = 50; percent <= 200; ++percent)
        EXPECT_EQ(narrow.PercentAt(narrow.LeftOf(percent)), percent);
}

TEST(TempoSlider, KeepsPercentageAndPointerInTheSlot)
{
    EXPECT_EQ(kSlider.PercentAt(-500), 50);
    EXPECT_EQ(kSlider.PercentAt(500), 200);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, -400, 5), 20);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, 400, 5), 170);
    EXPECT_DOUBLE_EQ(kSlider.Dragged(70, 15, 5), 80);
}

TEST(TempoLabels, TellPercentAndTheWholeGridsSeconds)
{
    EXPECT_EQ(TempoLabel(100), "100%");
    EXPECT_EQ(DurationLabel(320), "240 sec");
    EXPECT_EQ(DurationLabel(TempoOfPercent(50)), "480 sec");
    EXPECT_EQ(DurationLabel(TempoOfPercent(200)), "120 sec");
    EXPECT_EQ(DurationLabel(0), "0 sec");
}

class SetTempoPercentTest : public testing::Test {
protected:
    SetTempoPercentTest()
    {
        NewSong();
        song.SongMixValid = true;
        song.Tracks[1].TrackRenderValid = true;
        song.Tracks[2].TrackTune.TuneWaveValid = true;
        song.SongChanged = false;
    }

    FakeServices services;
    SongState& song = Shared().Song;
};

TEST_F(SetTempoPercentTest, MarksNothingWhereTheRoundedTempoIsTheSame)
{
    EXPECT_FALSE(SetTempoPercent(100));
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_TRUE(song.Tracks[1].TrackRenderValid);
    EXPECT_FALSE(song.SongChanged);
}

TEST_F(SetTempoPercentTest, MakesEveryRenderStale)
{
    EXPECT_TRUE(SetTempoPercent(50));
    EXPECT_EQ(song.Tempo, 160);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_FALSE(song.Tracks[1].TrackRenderValid);
    EXPECT_FALSE(song.Tracks[2].TrackTune.TuneWaveValid);
    EXPECT_TRUE(song.SongChanged);
}

} // namespace
} // namespace sprout
