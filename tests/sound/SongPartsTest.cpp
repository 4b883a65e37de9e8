// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/SongParts.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "base/Errors.h"
#include "sound/SameSong.h"
#include "sound/SongTest.h"

namespace sprout {
namespace {

/// A song with a music and an audio track, beside the shared one.
class SongPartsTest : public SongTest {
protected:
    SongPartsTest()
    {
        const std::int32_t music = AddNumberedTrack(3);
        Paint(music, 2, 7);
        Paint(AddAudioTrack(LevelWave(2 * kCellFrames, 70)), 4, 9);
        song = std::exchange(Shared().Song, {});
    }

    SongState song;
    StepCache cache{std::numeric_limits<std::size_t>::max()};
};

TEST_F(SongPartsTest, MixesTheSongThatIsGivenAndShowsNothing)
{
    SongState given = song;
    const SongState shared = Shared().Song;
    const WaveData mix = MixParts({given, cache});
    ExpectSame(Shared().Song, shared);
    EXPECT_EQ(cache.Count(), 3u);
    EXPECT_EQ(TheStepCache().Count(), 0u);
    EXPECT_EQ(services.screen.processPicsShown, 0);
    EXPECT_EQ(services.screen.hourglassesShown, 0);
    EXPECT_EQ(given.SongFirstPos, 2);
    EXPECT_TRUE(given.Tracks[2].TrackRenderValid);
    EXPECT_FALSE(given.SongMixValid);
    Shared().Song = song;
    MixSong();
    EXPECT_EQ(mix, Shared().Song.SongMix);
}

TEST_F(SongPartsTest, AnyProgressMayEndTheWork)
{
    const auto stop = [](std::size_t, std::size_t) { throw WorkStopped(); };
    EXPECT_THROW(static_cast<void>(MixParts({song, cache, UnloadedBeats::AreRead, {}, stop})), WorkStopped);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid) << "stopped is not failed";
    EXPECT_THROW(static_cast<void>(MixParts({song, cache, UnloadedBeats::AreRead, stop, {}})), WorkStopped);
}

TEST_F(SongPartsTest, BeatsAreReadOnlyWhereThatIsWanted)
{
    song.SongBeats[1].Loaded = false;
    EXPECT_THROW(static_cast<void>(MixParts({song, cache, UnloadedBeats::AreRefused, {}, {}})), WorkStopped);
    EXPECT_FALSE(song.SongBeats[1].Loaded);
    static_cast<void>(MixParts({song, cache}));
    EXPECT_TRUE(song.SongBeats[1].Loaded);
}

} // namespace
} // namespace sprout
