// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/PcmFeed.h"

#include <gtest/gtest.h>

#include <thread>

namespace sprout {
namespace {

using std::chrono::milliseconds;
using Bytes = std::vector<std::byte>;

// Mono bytes at 11,025 Hz: one byte per frame, and about 11 frames per millisecond.
const SoundFormat kByteFormat{1, 11025, 8};
const PcmFeed::Time kStart(std::chrono::hours(5));
constexpr auto kSilence = std::byte{0x80};

/// Bytes 1, 2, 3 ... up to `count`.
Bytes Counting(int count)
{
    Bytes bytes;
    for (int i = 1; i <= count; ++i)
        bytes.push_back(static_cast<std::byte>(i));
    return bytes;
}

Bytes Join(Bytes a, const Bytes& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Bytes Taken(PcmFeed& feed, std::size_t bytes, PcmFeed::Time now = kStart)
{
    Bytes out(bytes, std::byte{0x55});
    feed.Fill(out, now);
    return out;
}

void LoadAll(PcmFeed& feed, const Bytes& bytes)
{
    feed.Load(bytes, bytes.size());
}

TEST(PcmFeed, GivesSilenceBeforeItIsStarted)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(4));
    EXPECT_EQ(Taken(feed, 2), Bytes(2, kSilence));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
}

TEST(PcmFeed, GivesSilenceWhileTheDeviceSettlesAndThenTheSoundFromItsBeginning)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(4));
    feed.SettleDevice(2);
    feed.Start(StartFrom::Beginning, Loop::No);
    EXPECT_EQ(Taken(feed, 2), Bytes(2, kSilence));
    EXPECT_EQ(Taken(feed, 2), Bytes(2, kSilence));
    EXPECT_FALSE(feed.FirstTaken());
    EXPECT_TRUE(feed.PlaceAt(kStart).Playing);
    EXPECT_EQ(Taken(feed, 4), Counting(4));
}

TEST(PcmFeed, SilenceOf16BitsIsZero)
{
    PcmFeed feed({2, 44100, 16}, 0);
    EXPECT_EQ(Taken(feed, 4), Bytes(4));
}

TEST(PcmFeed, GivesTheSoundAndThenSilence)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(5));
    feed.Start(StartFrom::Beginning, Loop::No);
    EXPECT_EQ(Taken(feed, 3), Bytes({std::byte{1}, std::byte{2}, std::byte{3}}));
    EXPECT_EQ(Taken(feed, 4), Bytes({std::byte{4}, std::byte{5}, kSilence, kSilence}));
}

TEST(PcmFeed, PlaysUntilTheDeviceAsksAgainAfterTheLastFrame)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(4));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 4);
    EXPECT_TRUE(feed.PlaceAt(kStart).Playing);
    EXPECT_EQ(Taken(feed, 4), Bytes(4, kSilence));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
}

TEST(PcmFeed, TellsWhenTheFirstFrameWasTaken)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(9));
    Taken(feed, 4);
    EXPECT_EQ(feed.FirstTaken(), std::nullopt);
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 4, kStart + milliseconds(7));
    Taken(feed, 4, kStart + milliseconds(9));
    EXPECT_EQ(feed.FirstTaken(), kStart + milliseconds(7));
    feed.Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_EQ(feed.FirstTaken(), kStart + milliseconds(7));
    feed.Start(StartFrom::Beginning, Loop::No);
    EXPECT_EQ(feed.FirstTaken(), std::nullopt);
}

TEST(PcmFeed, LoopsWithoutAGapAlsoWithinOneRequest)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(3));
    feed.Start(StartFrom::Beginning, Loop::Yes);
    Bytes expected;
    for (int pass = 0; pass < 5; ++pass)
        expected = Join(expected, Counting(3));
    const Bytes first = Taken(feed, 7);
    EXPECT_EQ(Join(first, Taken(feed, 8)), expected);
    EXPECT_TRUE(feed.PlaceAt(kStart).Playing);
}

TEST(PcmFeed, ALoopThatIsSwitchedOffEndsWithItsPass)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(3));
    feed.Start(StartFrom::Beginning, Loop::Yes);
    Taken(feed, 4);
    feed.SetLooping(Loop::No);
    EXPECT_EQ(Taken(feed, 4), Bytes({std::byte{2}, std::byte{3}, kSilence, kSilence}));
}

TEST(PcmFeed, LoopingSwitchedOnAtTheLastFrameGoesOn)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(3));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 3);
    feed.SetLooping(Loop::Yes);
    EXPECT_EQ(Taken(feed, 3), Counting(3));
}

TEST(PcmFeed, LoopingSwitchedOnBehindTheEndComesTooLate)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(3));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 4);
    feed.SetLooping(Loop::Yes);
    EXPECT_EQ(Taken(feed, 3), Bytes(3, kSilence));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
}

TEST(PcmFeed, GoesOnWhereItStoppedWithoutLosingAFrame)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(6));
    feed.Start(StartFrom::Beginning, Loop::No);
    const Bytes first = Taken(feed, 2);
    feed.Stop();
    EXPECT_EQ(Taken(feed, 3), Bytes(3, kSilence));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
    feed.Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_EQ(Join(first, Taken(feed, 4)), Counting(6));
}

TEST(PcmFeed, StartsAgainFromTheBeginning)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(6));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 4);
    feed.Start(StartFrom::Beginning, Loop::No);
    EXPECT_EQ(feed.PlaceAt(kStart).Cursor, 0);
    EXPECT_EQ(Taken(feed, 6), Counting(6));
}

TEST(PcmFeed, LoadStopsAndStartsANewSound)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Counting(6));
    feed.Start(StartFrom::Beginning, Loop::Yes);
    Taken(feed, 4);
    LoadAll(feed, Counting(2));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
    feed.Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_EQ(Taken(feed, 2), Counting(2));
}

TEST(PcmFeed, SilenceFillsASoundThatIsLongerThanItsSamples)
{
    PcmFeed feed(kByteFormat, 0);
    feed.Load(Counting(2), 3);
    feed.Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_EQ(Taken(feed, 4), Bytes({std::byte{1}, std::byte{2}, kSilence, std::byte{1}}));
}

TEST(PcmFeed, OnlyWholeFramesAreASound)
{
    PcmFeed feed({2, 44100, 16}, 0);
    LoadAll(feed, Counting(7));
    feed.Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_EQ(Taken(feed, 8), Join(Counting(4), Counting(4)));
}

TEST(PcmFeed, AnEmptySoundDoesNotPlay)
{
    PcmFeed feed(kByteFormat, 0);
    feed.Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_EQ(Taken(feed, 2), Bytes(2, kSilence));
    EXPECT_FALSE(feed.PlaceAt(kStart).Playing);
    EXPECT_EQ(feed.PlaceAt(kStart).Cursor, 0);
}

TEST(PcmFeed, TheCursorRunsWithTheClockBetweenTwoRequests)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(11025, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    EXPECT_EQ(feed.PlaceAt(kStart).Cursor, 0);
    Taken(feed, 512, kStart);
    EXPECT_EQ(feed.PlaceAt(kStart).Cursor, 0);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(20)).Cursor, 220);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(40)).Cursor, 441);
}

TEST(PcmFeed, TheCursorLagsByWhatTheDeviceHoldsUnheard)
{
    PcmFeed feed(kByteFormat, 441); // 40 ms
    LoadAll(feed, Bytes(11025, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 512, kStart);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(39)).Cursor, 0);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(60)).Cursor, 220);
}

TEST(PcmFeed, TheCursorNeverPassesWhatWasHandedOver)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(11025, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 100, kStart);
    EXPECT_EQ(feed.PlaceAt(kStart + std::chrono::hours(1)).Cursor, 99);
}

TEST(PcmFeed, TheCursorNeverGoesBack)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(11025, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 512, kStart);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(40)).Cursor, 441);
    // The device asks late: its clock seems to be slow.
    Taken(feed, 512, kStart + milliseconds(60));
    const std::int32_t cursor = feed.PlaceAt(kStart + milliseconds(60)).Cursor;
    EXPECT_NEAR(cursor, 512, 1);
    Taken(feed, 512, kStart + milliseconds(200));
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(60)).Cursor, cursor);
}

TEST(PcmFeed, TheCursorOfALoopCountsWithinThePass)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(200, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::Yes);
    Taken(feed, 512, kStart);
    EXPECT_EQ(feed.PlaceAt(kStart + milliseconds(20)).Cursor, 20); // 220 frames
}

TEST(PcmFeed, TheCursorStaysInsideTheSoundAtItsEnd)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(200, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 512, kStart);
    const SoundPlace place = feed.PlaceAt(kStart + milliseconds(40));
    EXPECT_EQ(place.Cursor, 199);
    EXPECT_TRUE(place.Playing);
}

TEST(PcmFeed, TheCursorGoesOnFromThePlaceAfterAPause)
{
    PcmFeed feed(kByteFormat, 0);
    LoadAll(feed, Bytes(11025, std::byte{1}));
    feed.Start(StartFrom::Beginning, Loop::No);
    Taken(feed, 441, kStart);
    feed.Stop();
    const auto later = kStart + std::chrono::seconds(10);
    EXPECT_EQ(feed.PlaceAt(later).Cursor, 440);
    feed.Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_EQ(feed.PlaceAt(later).Cursor, 440);
    Taken(feed, 441, later);
    EXPECT_EQ(feed.PlaceAt(later + milliseconds(20)).Cursor, 441 + 220);
}

TEST(PcmFeed, ADeviceThreadTakesWholeSoundsWhileTheyAreReplaced)
{
    PcmFeed feed(kByteFormat, 0);
    std::atomic<bool> done = false;
    int mixed = 0;
    int sounds = 0;
    std::thread device([&] {
        Bytes out(64);
        while (!done) {
            feed.Fill(out, std::chrono::steady_clock::now());
            // Each sound repeats one byte, so a request holds at most one sound, followed by silence.
            for (const std::byte byte : out)
                mixed += byte != out[0] && byte != kSilence;
            sounds += out[0] != kSilence;
        }
    });
    for (int i = 0; i < 500; ++i) {
        LoadAll(feed, Bytes(static_cast<std::size_t>(10 + i % 500), static_cast<std::byte>(i % 100)));
        feed.Start(StartFrom::Beginning, i % 2 == 0 ? Loop::Yes : Loop::No);
        while (feed.PlaceAt(std::chrono::steady_clock::now()).Playing && i % 2 == 1)
            std::this_thread::yield();
    }
    done = true;
    device.join();
    EXPECT_EQ(mixed, 0);
    EXPECT_GT(sounds, 0);
}

} // namespace
} // namespace sprout
