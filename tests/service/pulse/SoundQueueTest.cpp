// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/SoundQueue.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

using Bytes = std::vector<std::byte>;

// Mono bytes: one byte per frame.
const SoundFormat kByteFormat{1, 11025, 8};
constexpr auto kSilence = std::byte{0x80};

Bytes Counting(int count)
{
    Bytes bytes;
    for (int i = 1; i <= count; ++i)
        bytes.push_back(static_cast<std::byte>(i));
    return bytes;
}

class SoundQueueTest : public ::testing::Test {
protected:
    SoundQueueTest() { queue.Load(Counting(4), 4); }

    Bytes Filled(std::size_t bytes)
    {
        Bytes out(bytes, std::byte{0x55});
        queue.Fill(out);
        return out;
    }

    static Bytes Of(std::initializer_list<int> values)
    {
        Bytes bytes;
        for (const int value : values)
            bytes.push_back(value == 0 ? kSilence : static_cast<std::byte>(value));
        return bytes;
    }

    SoundQueue queue{kByteFormat};
};

TEST(BytesOfATime, AreWholeFrames)
{
    EXPECT_EQ(BytesOf(SoundFormat{2, 44100, 16}, std::chrono::milliseconds(10)), 441 * 4);
    EXPECT_EQ(BytesOf(SoundFormat{2, 44100, 16}, std::chrono::microseconds(30)), 4); // one frame and a third
    EXPECT_EQ(BytesOf(SoundFormat{1, 11025, 8}, std::chrono::seconds(2)), 22050);
}

TEST_F(SoundQueueTest, SilenceFollowsTheEnd)
{
    queue.Start(0, Loop::No);
    EXPECT_EQ(Filled(3), Of({1, 2, 3}));
    EXPECT_EQ(Filled(3), Of({4, 0, 0}));
    EXPECT_EQ(queue.Filled(), 6);
    EXPECT_FALSE(queue.EndsBy(3));
    EXPECT_TRUE(queue.EndsBy(4));
}

TEST_F(SoundQueueTest, PassesOfALoopFollowOneAnotherAlsoWithinOneRequest)
{
    queue.Start(0, Loop::Yes);
    EXPECT_EQ(Filled(10), Of({1, 2, 3, 4, 1, 2, 3, 4, 1, 2}));
    EXPECT_EQ(Filled(3), Of({3, 4, 1}));
    EXPECT_FALSE(queue.EndsBy(1000000));
}

TEST_F(SoundQueueTest, GoesOnAtAPlaceToTheEndOfItsPass)
{
    queue.Start(6, Loop::No);
    EXPECT_EQ(Filled(4), Of({3, 4, 0, 0}));
    EXPECT_TRUE(queue.EndsBy(8));
}

TEST_F(SoundQueueTest, ASoundThatHasEndedEndsAtOnceAndGoesOnInALoop)
{
    queue.Start(4, Loop::No);
    EXPECT_TRUE(queue.EndsBy(4));
    queue.Start(4, Loop::Yes);
    EXPECT_FALSE(queue.EndsBy(4));
    EXPECT_EQ(Filled(2), Of({1, 2}));
}

TEST_F(SoundQueueTest, ALoopSwitchedOffTakesBackWhatFollowsItsPass)
{
    queue.Start(0, Loop::Yes);
    Filled(10);
    EXPECT_EQ(queue.SetLooping(Loop::No, 2), 6U);
    EXPECT_EQ(queue.Filled(), 4);
    EXPECT_EQ(Filled(6), Bytes(6, kSilence));
    EXPECT_TRUE(queue.EndsBy(4));
}

TEST_F(SoundQueueTest, ALoopSwitchedOffInALaterPassEndsWithThatPass)
{
    queue.Start(0, Loop::Yes);
    Filled(10);
    EXPECT_EQ(queue.SetLooping(Loop::No, 5), 2U);
    EXPECT_TRUE(queue.EndsBy(8));
    EXPECT_FALSE(queue.EndsBy(7));
}

TEST_F(SoundQueueTest, ALoopSwitchedOffExactlyBetweenTwoPassesEndsThere)
{
    queue.Start(0, Loop::Yes);
    Filled(10);
    EXPECT_EQ(queue.SetLooping(Loop::No, 4), 6U);
    EXPECT_TRUE(queue.EndsBy(4));
}

TEST_F(SoundQueueTest, ALoopSwitchedOffBeforeItBeganPlaysOnePass)
{
    queue.Start(0, Loop::Yes);
    Filled(10);
    EXPECT_EQ(queue.SetLooping(Loop::No, 0), 6U);
    EXPECT_TRUE(queue.EndsBy(4));
}

TEST_F(SoundQueueTest, ALoopSwitchedOffBeforeItsEndIsFilledTakesNothingBack)
{
    queue.Start(0, Loop::Yes);
    Filled(3);
    EXPECT_EQ(queue.SetLooping(Loop::No, 1), 0U);
    EXPECT_EQ(Filled(3), Of({4, 0, 0}));
}

TEST_F(SoundQueueTest, LoopingSwitchedOnTakesTheSilenceBack)
{
    queue.Start(0, Loop::No);
    Filled(7);
    EXPECT_EQ(queue.SetLooping(Loop::Yes, 3), 3U);
    EXPECT_EQ(Filled(5), Of({1, 2, 3, 4, 1}));
}

TEST_F(SoundQueueTest, LoopingSwitchedOnBehindTheEndComesTooLate)
{
    queue.Start(0, Loop::No);
    Filled(7);
    EXPECT_EQ(queue.SetLooping(Loop::Yes, 4), 0U);
    EXPECT_TRUE(queue.EndsBy(4));
}

TEST_F(SoundQueueTest, WhatIsAskedAgainChangesNothing)
{
    queue.Start(0, Loop::Yes);
    Filled(7);
    EXPECT_EQ(queue.SetLooping(Loop::Yes, 3), 0U);
    queue.Start(0, Loop::No);
    Filled(7);
    EXPECT_EQ(queue.SetLooping(Loop::No, 3), 0U);
}

TEST_F(SoundQueueTest, AnEmptySoundEndsAtOnceAlsoInALoop)
{
    queue.Load({}, 0);
    queue.Start(0, Loop::Yes);
    EXPECT_TRUE(queue.EndsBy(0));
    EXPECT_EQ(queue.FrameAt(0), 0);
    EXPECT_EQ(Filled(2), Bytes(2, kSilence));
}

TEST_F(SoundQueueTest, FramesCountWithinTheirPass)
{
    SoundQueue wide({2, 44100, 16});
    wide.Load(Counting(40), 40); // 10 frames
    wide.Start(0, Loop::Yes);
    EXPECT_EQ(wide.FrameAt(0), 0);
    EXPECT_EQ(wide.FrameAt(36), 9);
    EXPECT_EQ(wide.FrameAt(40), 0);
    EXPECT_EQ(wide.FrameAt(48), 2);
}

TEST_F(SoundQueueTest, TheLastFrameStandsForTheEnd)
{
    queue.Start(0, Loop::No);
    EXPECT_EQ(queue.FrameAt(4), 3);
    EXPECT_EQ(queue.FrameAt(9), 3);
}

} // namespace
} // namespace sprout
