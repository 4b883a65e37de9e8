// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongModel.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/Errors.h"
#include "support/FakeServices.h"

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
    song.SongMixValid = true;
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
    song.SongChanged = true;
    NewSong();
    EXPECT_TRUE(song.SongChanged);
    song.SongChanged = false;
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
    track.TrackRenderValid = true;
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
    tune.TuneWaveValid = true;
    tune.TuneWave.Length = 3;
    tune.Steps.resize(3);
    tune.Steps[1].OnPos = 1;
    tune.Steps[1].StepWaveValid = true;
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

TEST_F(SongModel, TurnsTempoIntoPercentAndBack)
{
    EXPECT_EQ(TempoOfPercent(50), 160);
    EXPECT_EQ(TempoOfPercent(100), 320);
    EXPECT_EQ(TempoOfPercent(200), 640);
    EXPECT_EQ(TempoPercent(160), 50);
    EXPECT_EQ(TempoPercent(640), 200);
    EXPECT_EQ(TempoPercent(1), 50);
    EXPECT_EQ(TempoPercent(-5), 50);
    EXPECT_EQ(TempoPercent(100000), 200);
    EXPECT_EQ(TempoPercent(324), 101);   // 101.25
    EXPECT_EQ(TempoPercent(325), 102);   // 101.5625
    EXPECT_EQ(TempoPercent(328), 102);   // 102.5 rounds to even
    EXPECT_EQ(TempoPercent(344), 108);   // 107.5
    EXPECT_EQ(TempoOfPercent(101), 323); // 323.2
    EXPECT_EQ(TempoOfPercent(102), 326); // 326.4
    EXPECT_EQ(TempoOfPercent(104), 333); // 332.8
    for (std::int32_t percent = 50; percent <= 200; ++percent)
        EXPECT_EQ(TempoPercent(TempoOfPercent(percent)), percent);
}

TEST_F(SongModel, MeasuresTheWholeGrid)
{
    EXPECT_EQ(SongSeconds(320), 240);
    EXPECT_EQ(SongSeconds(160), 480);
    EXPECT_EQ(SongSeconds(640), 120);
    EXPECT_EQ(SongSeconds(333), 231); // 230.63
    EXPECT_EQ(SongSeconds(30720), 2); // 2.5 rounds to even
    EXPECT_THROW(static_cast<void>(SongSeconds(0)), RunTimeError);
}

TEST_F(SongModel, PlacesCellsInFrames)
{
    EXPECT_EQ(CellOffset(5, 5, 320, 44100), 0);
    EXPECT_EQ(CellOffset(2, 1, 320, 44100), 8269); // 8268.75
    EXPECT_EQ(CellOffset(1, 3, 320, 44100), -16538);
    EXPECT_THROW(static_cast<void>(CellOffset(2, 1, 0, 44100)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CellOffset(1, 1, 0, 44100)), RunTimeError);
}

TEST_F(SongModel, CountsTheCellsOfAnAudioWaveAtTheReferenceTempo)
{
    song.Tempo = 640;
    WaveData audio;
    audio.Length = 44100 * 3;
    EXPECT_EQ(AudioCycleCells(audio), 16);
    audio.Rate = 16; // three frames per cell
    for (const auto& [length, cells] :
         {std::pair(4, 1), std::pair(5, 2), std::pair(6, 2), std::pair(7, 2), std::pair(8, 3), std::pair(1, 1)}) {
        audio.Length = length;
        EXPECT_EQ(AudioCycleCells(audio), cells) << length;
    }
    audio.Rate = 32; // six: a half rounds to even
    for (const auto& [length, cells] : {std::pair(3, 1), std::pair(9, 2), std::pair(15, 2), std::pair(21, 4)}) {
        audio.Length = length;
        EXPECT_EQ(AudioCycleCells(audio), cells) << length;
    }
    audio.Rate = 44100;
    audio.Length = 0;
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Rate = 0;
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Length = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Rate = 1;
    EXPECT_EQ(AudioCycleCells(audio), std::numeric_limits<std::int32_t>::max());
}

TEST_F(SongModel, FindsTheFirstCellThatHoldsOne)
{
    Track track;
    track.Painted = {1, 0, 2, 1, 1}; // element 0 is not a cell, 2 counts as 0
    EXPECT_EQ(FindFirstPainted(track, 4), 3);
    EXPECT_EQ(FindFirstPainted(track, 2), 0);
    track.Painted = {1, 2};
    EXPECT_EQ(FindFirstPainted(track, 1280), 0);
}

TEST_F(SongModel, ANewTempoMakesEveryRenderStale)
{
    NewSong();
    song.SongMixValid = true;
    song.SongChanged = false;
    for (Track& track : song.Tracks)
        track.TrackRenderValid = track.TrackTune.TuneWaveValid = true;
    song.Tracks[1].TrackTune.Steps[1].StepWaveValid = true;
    InvalidateForTempo();
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
    EXPECT_FALSE(song.Tracks[2].TrackTune.TuneWaveValid);
    EXPECT_TRUE(song.Tracks[1].TrackTune.Steps[1].StepWaveValid);
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
