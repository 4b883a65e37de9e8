// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongSizes.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(SongSizes, TracksAndTheirCountAgree)
{
    SongState song;
    ResizeTracks(song, 3);
    EXPECT_EQ(song.TrackCount, 3);
    EXPECT_EQ(song.Tracks.size(), 4U);
    song.Tracks[1].FirstPainted = 10;
    song.Tracks[2].FirstPainted = 20;
    song.Tracks[3].FirstPainted = 30;
    EraseTrack(song, 2);
    EXPECT_EQ(song.TrackCount, 2);
    ASSERT_EQ(song.Tracks.size(), 3U);
    EXPECT_EQ(song.Tracks[1].FirstPainted, 10);
    EXPECT_EQ(song.Tracks[2].FirstPainted, 30);
    ResizeTracks(song, 1);
    EXPECT_EQ(song.TrackCount, 1);
    EXPECT_EQ(song.Tracks[1].FirstPainted, 10);
}

TEST(SongSizes, ASongThatCouldNotBeReadHasNoTracks)
{
    SongState song;
    ResizeTracks(song, 3);
    ForgetTracks(song);
    EXPECT_EQ(song.TrackCount, 0);
}

TEST(SongSizes, BeatsAndTheirCountAgree)
{
    SongState song;
    Beat bell;
    bell.Name = "bell";
    EXPECT_EQ(AppendSongBeat(song, bell), 1);
    EXPECT_EQ(AppendSongBeat(song, Beat()), 2);
    EXPECT_EQ(song.SongBeatCount, 2);
    EXPECT_EQ(song.SongBeats.at(1).Name, "bell");
    ResizeSongBeats(song, 1);
    EXPECT_EQ(song.SongBeatCount, 1);
    EXPECT_EQ(song.SongBeats.size(), 2U);
    ReplaceSongBeats(song, std::vector<Beat>(6));
    EXPECT_EQ(song.SongBeatCount, 5);
}

TEST(SongSizes, StepsAndTheirCountAgree)
{
    Tune tune;
    ResizeSteps(tune, 8);
    EXPECT_EQ(tune.StepCount, 8);
    EXPECT_EQ(tune.Steps.size(), 9U);
    EXPECT_EQ(tune.Steps[8].Volume, 100);
    tune.Steps[2].PitchShift = 5;
    ResizeSteps(tune, 2);
    EXPECT_EQ(tune.Steps.size(), 3U);
    EXPECT_EQ(tune.Steps[2].PitchShift, 5);
    TuneStep quiet;
    quiet.Volume = 30;
    AssignSteps(tune, 4, quiet);
    EXPECT_EQ(tune.StepCount, 4);
    ASSERT_EQ(tune.Steps.size(), 5U);
    EXPECT_EQ(tune.Steps[2].Volume, 30);
    EXPECT_EQ(tune.Steps[2].PitchShift, 0);
}

} // namespace
} // namespace sprout
