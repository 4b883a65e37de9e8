// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/Transport.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

Track MusicTrack(std::string tuneName, std::int32_t onPos)
{
    Track track;
    track.Painted.assign(kSongCells + 1, 0);
    track.TrackTune.Name = std::move(tuneName);
    track.TrackTune.Steps.resize(3);
    track.TrackTune.StepCount = 2;
    track.TrackTune.Steps[2].OnPos = onPos;
    return track;
}

SongState SongOf(std::int32_t trackCount, const Track& track)
{
    SongState song;
    song.TrackCount = trackCount;
    song.Tracks.assign(static_cast<std::size_t>(trackCount) + 1, track);
    return song;
}

constexpr TwoLines kNoMessage{};

TEST(CheckSong, AsksForATuneAndGoesOn)
{
    const PlayCheck check = CheckSong(SongOf(2, MusicTrack("", 0)));
    EXPECT_EQ(check.message, (TwoLines{Words::Later("Please select tune for track using tune button."), {}}));
    EXPECT_TRUE(check.goesOn);
}

TEST(CheckSong, AsksForPaintAndStops)
{
    const PlayCheck check = CheckSong(SongOf(2, MusicTrack("Rain", 1)));
    EXPECT_EQ(check.message, (TwoLines{Words::Later("Please paint on the track."),
                                       Words::Later("Use the paint button and draw on the track.")}));
    EXPECT_FALSE(check.goesOn);
}

TEST(CheckSong, CountsAnAudioTrackAsContent)
{
    SongState song = SongOf(2, MusicTrack("", 0));
    song.Tracks[2].TrackType = 1;
    EXPECT_FALSE(CheckSong(song).goesOn);
    At(song.Tracks[1].Painted, 9) = 1;
    EXPECT_EQ(CheckSong(song).message, kNoMessage);
    EXPECT_TRUE(CheckSong(song).goesOn);
}

TEST(CheckSong, TakesContentAndPaintOfAnyTrack)
{
    for (std::int32_t withTune = 1; withTune <= 3; ++withTune)
        for (std::int32_t withPaint = 1; withPaint <= 3; ++withPaint) {
            SongState song = SongOf(3, MusicTrack("", 0));
            At(song.Tracks, withTune).TrackTune.Name = "Rain";
            EXPECT_EQ(CheckSong(song).message.line1.English(), "Please paint on the track.") << withTune;
            At(At(song.Tracks, withPaint).Painted, 9) = 1;
            EXPECT_EQ(CheckSong(song).message, kNoMessage) << withTune << ' ' << withPaint;
            EXPECT_TRUE(CheckSong(song).goesOn);
        }
}

TEST(CheckSongFromCell, ChecksFewerThanFiveTracksAlone)
{
    EXPECT_FALSE(CheckSongFromCell(SongOf(4, MusicTrack("Rain", 1))).goesOn);
    EXPECT_TRUE(CheckSongFromCell(SongOf(5, MusicTrack("Rain", 1))).goesOn);
    EXPECT_EQ(CheckSongFromCell(SongOf(5, MusicTrack("", 0))).message, kNoMessage);
}

TEST(CheckTrack, AsksForAStepThenForPaint)
{
    Track track = MusicTrack("Rain", 0);
    for (const std::int32_t off : {0, 2}) {
        track.TrackTune.Steps[2].OnPos = off;
        EXPECT_EQ(CheckTrack(track, kSongCells).message, (TwoLines{Words::Later("Please select a tune or edit it."),
                                                                   Words::Later("Use the first button on the left.")}));
    }
    track.TrackTune.Steps[2].OnPos = 1;
    EXPECT_EQ(CheckTrack(track, kSongCells).message,
              (TwoLines{Words::Later("This track is not painted."),
                        Words::Later("Use the Brush button and paint on the track.")}));
    At(track.Painted, 1280) = 1;
    EXPECT_TRUE(CheckTrack(track, kSongCells).goesOn);
}

TEST(CheckTrack, LooksAtNoStepsOfAnAudioTrack)
{
    Track track = MusicTrack("", 0);
    track.TrackType = 1;
    At(track.Painted, 4) = 1;
    EXPECT_TRUE(CheckTrack(track, kSongCells).goesOn);
}

TEST(CheckTrackFromCell, GoesOnWherePaintLiesToTheRight)
{
    Track track = MusicTrack("Rain", 1);
    At(track.Painted, 50) = 1;
    EXPECT_TRUE(CheckTrackFromCell(track, kSongCells, 10).goesOn);
    EXPECT_TRUE(CheckTrackFromCell(track, kSongCells, 50).goesOn);
}

TEST(CheckTrackFromCell, TellsAClickBehindAllPaintFromATrackWithoutAny)
{
    Track track = MusicTrack("Rain", 1);
    At(track.Painted, 60) = 2; // erased is not the same as painted
    EXPECT_EQ(CheckTrackFromCell(track, kSongCells, 51).message,
              (TwoLines{Words::Later("Please paint on the track, after that you can play it."),
                        Words::Later("Use the paint button and draw on the track.")}));
    At(track.Painted, 50) = 1;
    EXPECT_EQ(CheckTrackFromCell(track, kSongCells, 51).message,
              (TwoLines{Words::Later("Please click on the painted area on the track to play from there."), {}}));
    EXPECT_FALSE(CheckTrackFromCell(track, kSongCells, 51).goesOn);
}

TEST(TuneHoverInterval, IsTheCycleAndASecond)
{
    EXPECT_EQ(TuneHoverInterval(100, 16, 320), 4000);
    EXPECT_EQ(TuneHoverInterval(0, 16, 320), 1000);
    EXPECT_EQ(TuneHoverInterval(100, 16, 0), 1000);
}

TEST(AudioHoverInterval, IsTheLengthAndASecond)
{
    WaveData audio;
    EXPECT_EQ(AudioHoverInterval(audio), 1000);
    audio.Length = 44100 * 2;
    EXPECT_EQ(AudioHoverInterval(audio), 3000);
    audio.Rate = 0;
    EXPECT_EQ(AudioHoverInterval(audio), 1000);
}

} // namespace
} // namespace sprout
