// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/Resampler.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <new>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "stretch/TestSounds.h"

namespace sprout {

// Sanitizers would need more address space than there is.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

/// The end of a child that resamples with `extraBytes` of memory beyond its own: 0 for success, 1 for an exception,
/// -1 for a signal.
int EndWithMemory(rlim_t extraBytes, double pitch)
{
    const std::vector<float> sound = SineFloats(200'000, 1000);
    const auto outCount = static_cast<std::int64_t>(200'000 / pitch);
    const pid_t child = ::fork();
    if (child == 0) {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        const rlim_t bytes = pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + extraBytes;
        const rlimit limit = {bytes, bytes};
        ::setrlimit(RLIMIT_AS, &limit);
        try {
            ::_exit(Resample(sound, pitch, outCount).size() == static_cast<std::size_t>(outCount) ? 0 : 2);
        } catch (const std::bad_alloc&) {
            ::_exit(1);
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Resample, EndsInAnExceptionWithoutMemory)
{
    for (const double pitch : {0.5, 0.97, 2.0}) {
        EXPECT_EQ(EndWithMemory(0, pitch), 1);
        EXPECT_EQ(EndWithMemory(64'000'000, pitch), 0);
        for (rlim_t bytes = 0; bytes < 8'000'000; bytes += 100'000)
            EXPECT_GE(EndWithMemory(bytes, pitch), 0) << bytes;
    }
}

#endif

TEST(Resample, PlaysASoundAsMuchFasterAsAsked)
{
    const std::vector<float> sound = SineFloats(20000, 1000);
    const std::vector<float> higher = Resample(sound, 1.5, 13333);
    const std::vector<float> lower = Resample(sound, 0.5, 40000);
    EXPECT_NEAR(LevelAt(std::span<const float>(higher), 1500), 16000, 50);
    EXPECT_NEAR(LevelAt(std::span<const float>(lower), 500), 16000, 50);
}

TEST(Resample, HasNoLatency)
{
    std::vector<float> sound(4000);
    sound[1000] = 10000;
    const std::vector<float> result = Resample(sound, 0.5, 8000);
    EXPECT_EQ(std::max_element(result.begin(), result.end()) - result.begin(), 2000);
}

TEST(Resample, CutsAndPadsToTheLengthAsked)
{
    const std::vector<float> sound(1000, 500.0F);
    EXPECT_EQ(Resample(sound, 2, 100).size(), 100U);
    const std::vector<float> padded = Resample(sound, 2, 900);
    ASSERT_EQ(padded.size(), 900U);
    EXPECT_EQ(padded[600], 0);
    EXPECT_EQ(Resample(sound, 1, 1200)[1100], 0);
    EXPECT_EQ(Resample(sound, 1, 900)[899], 500);
}

TEST(Resample, LeavesOutWhatWouldLieAboveHalfTheRate)
{
    const std::vector<float> result = Resample(SineFloats(20000, 15000), 2, 10000);
    for (std::size_t i = 1000; i < 9000; ++i)
        ASSERT_NEAR(result[i], 0, 4);
}

TEST(Resample, RingsLittleAheadOfAClick)
{
    std::vector<float> sound(4000);
    sound[2000] = 10000;
    const std::vector<float> result = Resample(sound, 0.6674, 5993);
    for (std::size_t i = 0; i < 2997 - 100; ++i)
        ASSERT_NEAR(result[i], 0, 5) << i;
}

} // namespace sprout
