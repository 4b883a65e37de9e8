// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/WaveData.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/MemoryWatch.h"

namespace sprout {
namespace {

Channel Of(std::vector<std::int16_t> samples)
{
    return Channel::FromSamples(samples);
}

TEST(Channel, StartsWithOneElementOfZero)
{
    const Channel channel;
    EXPECT_EQ(channel.UpperBound(), 0);
    EXPECT_EQ(channel[0], 0);
    EXPECT_TRUE(channel.Samples().empty());
    EXPECT_EQ(Channel(3)[3], 0);
}

TEST(Channel, CountsFramesFromOne)
{
    const Channel channel = Of({5, 6, 7});
    EXPECT_EQ(channel.UpperBound(), 3);
    EXPECT_EQ(channel[0], 0);
    EXPECT_EQ(channel[1], 5);
    EXPECT_EQ(channel[3], 7);
    EXPECT_EQ(channel.Samples()[0], 5);
}

TEST(Channel, CopiesShareUntilOneIsChanged)
{
    Channel a = Of({1, 2});
    const Channel b = a;
    EXPECT_TRUE(a.SharesBlockWith(b));
    EXPECT_EQ(a.Identity(), b.Identity());
    a.Change()[1] = 9;
    EXPECT_FALSE(a.SharesBlockWith(b));
    EXPECT_EQ(b[1], 1);
    EXPECT_EQ(a[2], 2);
    const void* before = a.Identity();
    a.Change()[2] = 8;
    EXPECT_EQ(a.Identity(), before); // it is the only one, so nothing is copied
}

TEST(Channel, WritesElementZeroOfAnEmptyOne)
{
    Channel channel;
    ASSERT_EQ(channel.Change().size(), 1U);
    channel.Change()[0] = 4;
    EXPECT_EQ(channel[0], 4);
}

TEST(Channel, ResizeKeepsWhatFits)
{
    Channel channel = Of({1, 2, 3});
    const Channel copy = channel;
    channel.Resize(5);
    EXPECT_EQ(channel, Of({1, 2, 3, 0, 0}));
    channel.Resize(2);
    EXPECT_EQ(channel, Of({1, 2}));
    channel.Resize(0);
    EXPECT_EQ(channel, Channel());
    EXPECT_EQ(copy, Of({1, 2, 3}));
}

TEST(Channel, ComparesFramesAndNotElementZero)
{
    Channel a = Of({1, 2});
    const Channel b = Of({1, 2});
    a.Change()[0] = 7;
    EXPECT_EQ(a, b);
    EXPECT_FALSE(a == Of({1}));
    EXPECT_FALSE(a == Of({1, 3}));
}

TEST(WaveData, IsAValue)
{
    WaveData a;
    a.WavL = Of({1, 2});
    a.Length = 2;
    WaveData b = a;
    b.WavL.Change()[1] = 3;
    EXPECT_EQ(a.WavL[1], 1);
    EXPECT_FALSE(a == b);
}

TEST(Channel, TakesLongSoundsAloneFromTheDefaultResource)
{
    const MemoryWatch watch;
    const Channel small(1'000'000);
    EXPECT_EQ(watch.Blocks(), 0U);
    Channel large(3'000'000);
    EXPECT_EQ(watch.Blocks(), 1U);
    EXPECT_EQ(watch.Alignment(), std::size_t{1} << 21); // a large page
    EXPECT_EQ(large[1], 0);
    EXPECT_EQ(large[3'000'000], 0);
    Channel copy = large;
    copy.Change()[3'000'000] = 7;
    EXPECT_EQ(large[3'000'000], 0);
    EXPECT_EQ(copy[3'000'000], 7);
    copy.Resize(2'500'000);
    EXPECT_EQ(copy[2'500'000], 0);
    EXPECT_EQ(Channel::Unfilled(3'000'000)[0], 0);
}

TEST(Channel, UnfilledHasAPlaceForEachFrameAndNoneWhereThereIsNone)
{
    EXPECT_EQ(Channel::Unfilled(0).Identity(), nullptr);
    const Channel one = Channel::Unfilled(1);
    EXPECT_NE(one.Identity(), nullptr);
    EXPECT_EQ(one[0], 0);
}

} // namespace
} // namespace sprout
