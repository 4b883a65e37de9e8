// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/PcmSound.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

using Bytes = std::vector<std::byte>;

Bytes Copied(const PcmSound& sound, std::size_t place, std::size_t room)
{
    Bytes out(room, std::byte{0x55});
    out.resize(sound.CopyFrom(place, out));
    return out;
}

TEST(PcmSound, SilenceFillsASoundThatIsLongerThanItsSamples)
{
    PcmSound bytes({1, 11025, 8});
    bytes.Load(Bytes(2, std::byte{7}), 3);
    EXPECT_EQ(Copied(bytes, 0, 9), Bytes({std::byte{7}, std::byte{7}, std::byte{0x80}}));
    PcmSound words({1, 11025, 16});
    words.Load(Bytes(2, std::byte{7}), 4);
    EXPECT_EQ(Copied(words, 2, 9), Bytes(2, std::byte{0}));
}

TEST(PcmSound, OnlyWholeFramesAreASound)
{
    PcmSound sound({2, 44100, 16});
    sound.Load(Bytes(7, std::byte{7}), 7);
    EXPECT_EQ(sound.Size(), 4U);
}

TEST(PcmSound, SamplesBeyondItsSizeAreCutOff)
{
    PcmSound sound({1, 11025, 8});
    sound.Load(Bytes(7, std::byte{7}), 5);
    EXPECT_EQ(sound.Size(), 5U);
}

TEST(PcmSound, CopiesUpToItsEndOrAsMuchAsThereIsRoom)
{
    PcmSound sound({1, 11025, 8});
    sound.Load(Bytes({std::byte{1}, std::byte{2}, std::byte{3}}), 3);
    EXPECT_EQ(Copied(sound, 1, 1), Bytes({std::byte{2}}));
    EXPECT_EQ(Copied(sound, 1, 5), Bytes({std::byte{2}, std::byte{3}}));
    EXPECT_EQ(Copied(sound, 3, 5), Bytes());
}

} // namespace
} // namespace sprout
