// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoSlider.h"

#include <gtest/gtest.h>

#include "core/SongModel.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

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
