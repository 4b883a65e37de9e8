// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/ReadyMix.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/SongSizes.h"
#include "sound/AheadTest.h"
#include "sound/SameSong.h"
#include "sound/TuneRender.h"
#include "support/Flags.h"

namespace sprout {
namespace {

/// A song of a music track that is painted, one that is not, and an audio track.
class ReadyMixTest : public AheadTest {
protected:
    ReadyMixTest()
    {
        Shared().Song.Tempo = kSlowTempo;
        beat = AddToneBeat(5);
        const std::int32_t painted = AddPitchTrack(beat, {1, 1, 2, 3}, 2, 6);
        At(TrackAt(painted).TrackTune.Steps, 4).OnPos = kStepOff;
        AddPitchTrack(beat, {3}, 2, 1);
        AddAudioTrack(LevelWave(2 * kCellFrames, 70));
        Paint(3, 4, 9);
        fresh = Shared().Song;
    }

    /// The mix of the fresh song, made on a copy.
    [[nodiscard]] ReadyMix Made() const
    {
        const SongState kept = Shared().Song;
        Shared().Song = fresh;
        const SongState before = CopyForMix(fresh);
        MixSong();
        ReadyMix ready(before, std::exchange(Shared().Song, kept));
        return ready;
    }

    /// What a play leaves of the shared song as it is now.
    static SongState Played()
    {
        const SongState kept = Shared().Song;
        MixSong();
        return std::exchange(Shared().Song, kept);
    }

    std::int32_t beat = 0;
    SongState fresh;
};

TEST_F(ReadyMixTest, LeavesTheSongAsItsMixWould)
{
    ReadyMix ready = Made();
    const SongState played = Played();
    ASSERT_TRUE(ready.FitsTo(Shared().Song));
    ready.HandTo(Shared().Song);
    EXPECT_TRUE(Shared().Song.SongMixValid);
    ExpectSame(Shared().Song, played);
}

TEST_F(ReadyMixTest, FitsAfterATrackOrATuneWasPlayedAlone)
{
    const std::vector<std::function<void()>> plays = {
        [] { RenderTuneTrack(1); }, [] { RenderTuneTrack(2); }, [] { RenderAudioTrack(3); },
        [] { RenderStarCycle(TrackAt(1).TrackTune); }, [] { RenderStarCycle(TrackAt(2).TrackTune); }};
    for (const auto& play : plays) {
        Shared().Song = fresh;
        ReadyMix ready = Made();
        play();
        const SongState played = Played();
        ASSERT_TRUE(ready.FitsTo(Shared().Song));
        ready.HandTo(Shared().Song);
        ExpectSame(Shared().Song, played);
    }
}

TEST_F(ReadyMixTest, StepsThatTheMixDoesNotRenderKeepWhatTheyHold)
{
    Paint(1, 2, 6, kErasedCell);
    Paint(1, 2, 2);
    At(TrackAt(1).TrackTune.Steps, 1).OnPos = kStepOff;
    ResizeTracks(Shared().Song, 2); // now no cell sounds
    fresh = Shared().Song;
    ReadyMix ready = Made();
    At(TrackAt(1).TrackTune.Steps, 3).StepWave = LevelWave(3, 3); // not valid
    const SongState played = Played();
    ASSERT_TRUE(ready.FitsTo(Shared().Song));
    ready.HandTo(Shared().Song);
    ExpectSame(Shared().Song, played);
}

TEST_F(ReadyMixTest, FitsNoSongWhoseMixWouldDiffer)
{
    const ReadyMix ready = Made();
    const std::vector<std::function<void(SongState&)>> changes = {
        [](SongState& song) { song.Tempo = 300; },
        [](SongState& song) { song.SongCells = 8; },
        [](SongState& song) { song.TrackCount = 2; },
        [](SongState& song) { song.Tracks.resize(3); },
        [](SongState& song) { At(song.Tracks[1].Painted, 7) = kPaintedCell; },
        [](SongState& song) { At(song.Tracks[1].Painted, 6) = kErasedCell; },
        [](SongState& song) { song.Tracks[1].TrackType = 9; },
        [](SongState& song) { song.Tracks[1].TrackTune.StepCount = 2; },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps.resize(2); },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[1].OnPos = kStepOff; },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[1].BeatIndex = 0; },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[1].PitchShift = 5; },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[1].Volume = 50; },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[1].Duration = 50; },
        [](SongState& song) { SetStepWaveValid(song.Tracks[1].TrackTune.Steps[1], true); },
        [](SongState& song) { song.Tracks[1].TrackTune.Steps[4].StepWave = LevelWave(3, 3); }, // it is off
        [](SongState& song) { At(song.Tracks[2].Painted, 6) = kPaintedCell; },
        [](SongState& song) { song.Tracks[3].TrackAudio = LevelWave(5, 3); },
        [](SongState& song) { song.Tracks[3].FirstPainted = 2; },
        [](SongState& song) { SetTrackRenderValid(song.Tracks[3], true); },
        [](SongState& song) { song.SongBeats[1].Sound = LevelWave(600, 9); },
        [](SongState& song) { song.SongBeats[1].Loaded = false; },
        [](SongState& song) { song.SongBeatCount = 0; },
        [](SongState& song) { song.SongBeats.resize(1); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SongState changed = fresh;
        changes[i](changed);
        EXPECT_FALSE(ready.FitsTo(changed)) << i;
    }
    EXPECT_TRUE(ready.FitsTo(fresh));
}

TEST_F(ReadyMixTest, FitsASongThatDiffersInWhatIsNotHeard)
{
    const ReadyMix ready = Made();
    SongState song = fresh;
    song.SongTitle = "Another";
    song.Tracks[2].TrackTune.Steps[1].Volume = 3; // without paint
    song.Tracks[1].TrackRender = LevelWave(3, 3); // of a music track
    song.Tracks[1].TrackTune.Name = "Walk";
    song.SongMix = LevelWave(4, 4);
    song.Tracks[1].TrackTune.Steps[1].StepWave = LevelWave(3, 3); // not valid
    EXPECT_TRUE(ready.FitsTo(song));
}

} // namespace
} // namespace sprout
