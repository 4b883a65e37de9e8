// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/AheadMix.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <memory_resource>
#include <mutex>

#include "sound/AheadTest.h"
#include "sound/SameSong.h"

namespace sprout {
namespace {

/// Notes which threads release memory of long sounds.
class ReleaseWatch : public std::pmr::memory_resource {
public:
    ReleaseWatch() { std::pmr::set_default_resource(this); }
    ReleaseWatch(const ReleaseWatch&) = delete;
    ReleaseWatch& operator=(const ReleaseWatch&) = delete;
    ~ReleaseWatch() override { std::pmr::set_default_resource(nullptr); }

    [[nodiscard]] std::set<std::thread::id> Threads()
    {
        const std::lock_guard lock(mutex);
        return threads;
    }

private:
    void* do_allocate(std::size_t bytes, std::size_t alignment) override
    {
        return ::operator new (bytes, std::align_val_t{alignment});
    }
    void do_deallocate(void* memory, std::size_t /*bytes*/, std::size_t alignment) override
    {
        {
            const std::lock_guard lock(mutex);
            threads.insert(std::this_thread::get_id());
        }
        ::operator delete (memory, std::align_val_t{alignment});
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    std::mutex mutex;
    std::set<std::thread::id> threads;
};

class AheadMixTest : public AheadTest {
protected:
    AheadMixTest() : threads(Threads()) {}
    ~AheadMixTest() override { begun.Open(); }

    /// The sounds of the steps of `keys`.
    static StepCache SoundsOf(const std::vector<StepKey>& keys)
    {
        StepCache sounds(std::numeric_limits<std::size_t>::max());
        for (const StepKey& key : keys)
            sounds.Keep(key, RenderKey(key));
        return sounds;
    }

    std::optional<ReadyMix> Finish(AheadMix& mix)
    {
        while (!mix.IsFinished())
            bell.WaitForNext();
        return mix.Take();
    }

    AheadThreads threads;
};

TEST_F(AheadMixTest, MakesTheMixOfTheSongAsItWas)
{
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2}, 2, 6);
    AddAudioTrack(LevelWave(2 * kCellFrames, 70));
    Paint(2, 4, 9);
    SongState& song = Shared().Song;
    const SongState fresh = song;
    begun.Close();
    AheadMix mix(song, SoundsOf({KeyOf(beat, 1), KeyOf(beat, 2)}), threads);
    song = SongState();
    EXPECT_FALSE(mix.Take());
    begun.Open();
    std::optional<ReadyMix> made = Finish(mix);
    ASSERT_TRUE(made);
    EXPECT_EQ(services.screen.processPicsShown, 0);
    EXPECT_FALSE(made->FitsTo(song));
    song = fresh;
    MixSong();
    const SongState played = std::exchange(song, fresh);
    ASSERT_TRUE(made->FitsTo(song));
    made->HandTo(song);
    ExpectSame(song, played);
    EXPECT_FALSE(mix.Take()) << "only once";
}

TEST_F(AheadMixTest, IsNotMadeIfABeatWouldHaveToBeRead)
{
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1}, 1, 1);
    At(Shared().Song.SongBeats, beat).Loaded = false;
    AheadMix mix(Shared().Song, SoundsOf({}), threads);
    EXPECT_FALSE(Finish(mix));
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(AheadMixTest, IsNotMadeIfItFails)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    Shared().Song.TrackCount = 30;
    AheadMix mix(Shared().Song, SoundsOf({}), threads);
    EXPECT_FALSE(Finish(mix));
    Shared().Song.TrackCount = 1;
    services.stretch.lacksMemory = true;
    AheadMix without(Shared().Song, SoundsOf({}), threads);
    EXPECT_FALSE(Finish(without));
}

TEST_F(AheadMixTest, GivenUpItEndsWithoutAMixAndNobodyWaits)
{
    AddAudioTrack(LevelWave(20, 70));
    Paint(1, 1, 1);
    begun.Close();
    AheadMix mix(Shared().Song, SoundsOf({}), threads);
    begun.WaitFor(1);
    mix.GiveUp(); // returns although the thread does not
    EXPECT_FALSE(mix.IsFinished());
    begun.Open();
    EXPECT_FALSE(Finish(mix));
}

TEST_F(AheadMixTest, NoSoundOfTheSongIsReleasedByTheThread)
{
    ReleaseWatch watch;
    constexpr std::int32_t longSound = 2'200'000;
    AddAudioTrack(LevelWave(longSound, 7));
    Paint(1, 1, kSongCells);
    begun.Close();
    auto mix = std::make_unique<AheadMix>(Shared().Song, SoundsOf({}), threads);
    begun.WaitFor(1);
    Shared().Song = SongState(); // nobody else holds the sound now
    EXPECT_TRUE(watch.Threads().empty());
    begun.Open();
    EXPECT_TRUE(Finish(*mix));
    EXPECT_TRUE(watch.Threads().count(std::this_thread::get_id()) == 1) << "with what Finish has given";
    mix.reset();
    EXPECT_EQ(watch.Threads(), (std::set{std::this_thread::get_id()}));
}

} // namespace
} // namespace sprout
