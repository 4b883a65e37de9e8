// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/StretchService.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>
#include <thread>

#include "stretch/TestSounds.h"

namespace sprout {
namespace {

using Samples = std::vector<std::int16_t>;

Samples Stretched(const Stretch& service, const Samples& sound, float pitch, float duration, std::int32_t rate = 44100)
{
    return service.Change(sound, rate, pitch, duration);
}

} // namespace

TEST(StretchService, ReturnsTheInputBitForBitAtFactorsOneAndOne)
{
    const Samples noise = Rounded(NoiseFloats(3000, 32767));
    EXPECT_EQ(Stretched(*MakeStretch(), noise, 1, 1), noise);
    EXPECT_EQ(Stretched(*MakeStretch(), {-32768}, 1, 1), Samples{-32768});
}

TEST(StretchService, ClampsBothFactors)
{
    const auto service = MakeStretch();
    const Samples sound = Rounded(StruckFloats(6000, 0));
    const float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Stretched(*service, sound, 3, 9), Stretched(*service, sound, 2, 2));
    EXPECT_EQ(Stretched(*service, sound, infinite, 1), Stretched(*service, sound, 2, 1));
    EXPECT_EQ(Stretched(*service, sound, 0, -5), Stretched(*service, sound, 0.5F, 0.5F));
    EXPECT_EQ(Stretched(*service, sound, -infinite, 1), Stretched(*service, sound, 0.5F, 1));
}

TEST(StretchService, GivesALengthThatDependsOnCountAndDurationAlone)
{
    const auto service = MakeStretch();
    for (const float pitch : {0.5F, 0.7937F, 1.3348F, 2.0F}) {
        for (const float duration : {0.5F, 0.755F, 1.37F, 2.0F}) {
            const Samples left = Stretched(*service, Rounded(StruckFloats(7001, 2000)), pitch, duration);
            const Samples right = Stretched(*service, Rounded(NoiseFloats(7001)), pitch, duration);
            EXPECT_EQ(left.size(), right.size());
            EXPECT_EQ(std::ssize(left), static_cast<long>(std::floor(7001 * static_cast<double>(duration) + 0.5)));
        }
    }
}

TEST(StretchService, FailsWithoutACrashOnBadInput)
{
    const auto service = MakeStretch();
    const Samples sound(1000, 5);
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(Stretched(*service, {}, 2, 2).empty());
    EXPECT_TRUE(Stretched(*service, sound, 2, 2, 0).empty());
    EXPECT_TRUE(Stretched(*service, sound, 2, 2, -44100).empty());
    EXPECT_TRUE(Stretched(*service, sound, notANumber, 2).empty());
    EXPECT_TRUE(Stretched(*service, sound, 2, notANumber).empty());
}

TEST(StretchService, SurvivesEveryRateAndLength)
{
    const auto service = MakeStretch();
    for (const std::int32_t rate : {1, 11025, 22050, 44100, 48000, 2147483647}) {
        for (const std::size_t count : {1U, 255U, 256U, 511U, 512U, 1301U, 5000U}) {
            const Samples sound = Rounded(StruckFloats(count, count / 3));
            EXPECT_EQ(Stretched(*service, sound, 0.5F, 0.5F, rate).size(), (count + 1) / 2);
            EXPECT_EQ(Stretched(*service, sound, 2, 2, rate).size(), 2 * count);
            EXPECT_EQ(Stretched(*service, sound, 1.0001F, 1, rate).size(), count);
        }
    }
}

TEST(StretchService, GivesTheSameSamplesOnSeveralThreadsAtOnce)
{
    const auto service = MakeStretch();
    const std::array<Samples, 2> sounds{Rounded(StruckFloats(12000, 3000)), Rounded(NoiseFloats(9000))};
    const std::array<Samples, 2> alone{Stretched(*service, sounds[0], 1.4983F, 1.25F),
                                       Stretched(*service, sounds[1], 1.4983F, 1.25F)};
    std::array<Samples, 4> together;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < together.size(); ++i) {
        threads.emplace_back([&, i] {
            for (int again = 0; again < 3; ++again)
                together[i] = Stretched(*service, sounds[i % 2], 1.4983F, 1.25F);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (std::size_t i = 0; i < together.size(); ++i)
        EXPECT_EQ(together[i], alone[i % 2]) << i;
}

} // namespace sprout
