// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongModel.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/FakeServices.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class SongModel : public testing::Test {
protected:
    FakeServices fake;
    SongState& song = Shared().Song;
};

TEST_F(SongModel, NewSongHasTwoEmptyMusicTracks)
{
    song.Tempo = 1;
    SetSongMixValid(song, true);
    song.SongBeats.resize(4);
    song.SongBeatCount = 3;
    song.Tracks.resize(9);
    song.Tracks[1].TrackAudio.Length = 7;
    NewSong();
    EXPECT_EQ(song.SongTitle, "Untitled");
    EXPECT_EQ(song.SongCreatedBy, "Your name here");
    EXPECT_EQ(song.SongCells, 1280);
    EXPECT_EQ(song.Tempo, 320);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_EQ(song.TrackCount, 2);
    EXPECT_EQ(song.Tracks.size(), 3U);
    EXPECT_EQ(song.SongBeatCount, 0);
    EXPECT_EQ(song.SongBeats.size(), 1U);
    for (std::size_t track = 1; track <= 2; ++track) {
        EXPECT_TRUE(song.Tracks[track].IsMusic());
        EXPECT_EQ(song.Tracks[track].Painted, std::vector<std::int32_t>(1281));
        EXPECT_EQ(song.Tracks[track].TrackAudio.Length, 0);
        EXPECT_EQ(song.Tracks[track].TrackTune.StepCount, 16);
    }
}

TEST_F(SongModel, NewSongLeavesTheMarkOfChanges)
{
    SetSongChanged(song, true);
    NewSong();
    EXPECT_TRUE(song.SongChanged);
    SetSongChanged(song, false);
    NewSong();
    EXPECT_FALSE(song.SongChanged);
}

TEST_F(SongModel, NewSongTakesTheFirstFreeName)
{
    WriteBytes(Shared().UserSongs / "untitled.TQSNG", "");
    WriteBytes(Shared().UserSongs / "Untitled 1.TqSng", "");
    WriteBytes(Shared().UserSongs / "Untitled 3.TqSng", "");
    NewSong();
    EXPECT_EQ(song.SongTitle, "Untitled 2");
}

TEST_F(SongModel, ResetTrackKeepsTheAudio)
{
    NewSong();
    Track& track = song.Tracks[2];
    track.TrackType = 1;
    track.Painted.assign(5, 1);
    track.FirstPainted = 3;
    SetTrackRenderValid(track, true);
    track.TrackRender.Length = 4;
    track.TrackAudio.Length = 7;
    track.TrackTune.Name = "old";
    ResetTrack(2);
    EXPECT_EQ(track.TrackType, 0);
    EXPECT_EQ(track.Painted, std::vector<std::int32_t>(1281));
    EXPECT_EQ(track.FirstPainted, 0);
    EXPECT_FALSE(track.TrackRenderValid);
    EXPECT_EQ(track.TrackRender.Length, 0);
    EXPECT_EQ(track.TrackAudio.Length, 7);
    EXPECT_EQ(track.TrackTune.Name, "");
}

TEST_F(SongModel, ResetTrackIgnoresNumbersThatAreNoTrack)
{
    NewSong();
    song.Tracks[0].FirstPainted = 5;
    song.Tracks[1].FirstPainted = 5;
    for (const std::int32_t number : {0, -1, 3, std::numeric_limits<std::int32_t>::max()})
        ResetTrack(number);
    EXPECT_EQ(song.Tracks[0].FirstPainted, 5);
    EXPECT_EQ(song.Tracks[1].FirstPainted, 5);
}

TEST_F(SongModel, ResetTuneMakesSixteenSilentStepsThatBlink)
{
    Tune tune;
    tune.CreatedBy = tune.Name = tune.DateStamp = "x";
    SetTuneWaveValid(tune, true);
    tune.TuneWave.Length = 3;
    tune.Steps.resize(3);
    tune.Steps[1].OnPos = 1;
    SetStepWaveValid(tune.Steps[1], true);
    ResetTune(tune);
    EXPECT_EQ(tune.CreatedBy + tune.Name + tune.DateStamp, "");
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(tune.TuneWave.Length, 0);
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().BlankPic));
    EXPECT_EQ(tune.StepCount, 16);
    ASSERT_EQ(tune.Steps.size(), 17U);
    for (const TuneStep& step : tune.Steps) {
        EXPECT_EQ(step.OnPos, 0);
        EXPECT_EQ(step.PitchShift, 0);
        EXPECT_EQ(step.Volume, 100);
        EXPECT_EQ(step.Duration, 100);
        EXPECT_FALSE(step.StepWaveValid);
    }
    EXPECT_TRUE(fake.screen.tuneNotFilledTimer);
}

class SetTempoPercentTest : public testing::Test {
protected:
    SetTempoPercentTest()
    {
        NewSong();
        SetSongMixValid(song, true);
        SetTrackRenderValid(song.Tracks[1], true);
        SetTuneWaveValid(song.Tracks[2].TrackTune, true);
        SetSongChanged(song, false);
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

TEST_F(SongModel, PlainPicturesAreFour)
{
    MakePlainPictures();
    const std::vector<Picture> pictures = {Shared().BlankPic, Shared().BlankStarPic, Shared().DefaultTunePicture,
                                           Shared().NewTunePicture};
    for (std::size_t a = 0; a < pictures.size(); ++a) {
        EXPECT_EQ(pictures[a].Width(), 32);
        EXPECT_EQ(pictures[a].Height(), 32);
        for (std::size_t b = 0; b < a; ++b) {
            EXPECT_FALSE(SamePicture(pictures[a], pictures[b]));
            EXPECT_NE(pictures[a].Pixel(0, 0), pictures[b].Pixel(0, 0));
        }
    }
}

} // namespace
} // namespace sprout
