// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/RandomTune.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

/// Numbers for a tune, set by hand; requesting more of them fails the test.
class HandNumbers {
public:
    HandNumbers(std::initializer_list<double> given) : numbers(given) {}

    float operator()()
    {
        if (used == numbers.size()) {
            ADD_FAILURE() << "more numbers are drawn than are needed";
            return 0;
        }
        return static_cast<float>(numbers[used++]);
    }

    [[nodiscard]] bool AllUsed() const { return used == numbers.size(); }

private:
    std::vector<double> numbers;
    std::size_t used = 0;
};

std::string Lamps(const Tune& tune)
{
    std::string lamps;
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        lamps += At(tune.Steps, i).OnPos == 1 ? 'x' : '.';
    return lamps;
}

void MakeBeat(const std::string& name, std::int32_t frames = 600, const char* extension = ".wav")
{
    WaveData wave = EmptyWave();
    wave.Length = frames;
    wave.WavL = Channel(frames);
    wave.WavR = Channel(frames);
    SaveWaveFile(wave, Shared().UserBeats / (name + extension));
}

class RandomTuneTest : public testing::Test {
protected:
    /// The fake reader colours a picture by the size of its file.
    static void MakeStar(const std::string& name, std::size_t bytes)
    {
        WriteBytes(Shared().UserStars / name, std::string(bytes, 'p'));
    }

    /// A tune of 8 steps by hand: picture, 8 steps, two pitches (-6 and 6), one beat; then all steps are drawn as on.
    void DrawEightSteps(double pictureNumber, double firstBeatNumber)
    {
        numbers.assign({pictureNumber, 0.0, 0.0, 0.0, 0.999, 0.0, firstBeatNumber});
        Make();
    }

    /// Draws the set numbers, and then 0.5 endlessly.
    void Make()
    {
        used = 0;
        MakeRandomTune(tune, [this] { return used < numbers.size() ? static_cast<float>(numbers[used++]) : 0.5F; });
    }

    FakeServices services;
    Tune tune;
    std::vector<double> numbers;
    std::size_t used = 0;
};

TEST_F(RandomTuneTest, DrawsInItsOrder)
{
    MakeBeat("Apple");
    MakeBeat("berry");
    MakeStar("Sun.bmp", 10);
    HandNumbers hand{
        0.9,               // picture
        0.38,              // 39: 8 steps
        0.3,               // 3 pitches
        0.0,  0.5,  0.999, // -6, 0, 6
        0.25,              // 2 beats
        0.6,  0.0,         // berry, Apple
        0.99,              // step 1: pitch 6
        0.34, 0.5,  0.34,  // on, Apple, 0
        0.33, 0.0,  0.0,   // off, berry, -6
        0.0,  0.5,  0.999, // off, Apple, 6
        0.0,  0.34,        // two off-steps: on without a draw; berry, 0
        0.9,  0.9,  0.0,   // on, Apple, -6
        0.9,  0.0,  0.0,   // on, berry, -6
        0.9,  0.0,  0.0,   // on, berry, -6
    };
    MakeRandomTune(tune, std::ref(hand));
    EXPECT_TRUE(hand.AllUsed());
    EXPECT_EQ(tune.Name, "New");
    EXPECT_EQ(tune.CreatedBy, "Random");
    EXPECT_EQ(tune.Picture.Pixel(0, 0), 10U);
    EXPECT_EQ(Lamps(tune), "xx..xxxx");
    std::string beats;
    std::string pitches;
    for (std::int32_t i = 1; i <= 8; ++i) {
        beats += At(tune.Steps, i).StepBeat.Name.substr(0, 1);
        pitches += std::to_string(At(tune.Steps, i).PitchShift) + " ";
    }
    EXPECT_EQ(beats, "bAbAbAbb");
    EXPECT_EQ(pitches, "6 0 -6 6 0 -6 -6 -6 ");
}

TEST_F(RandomTuneTest, SwitchesOffTheStepBehindFourThatAreOnWithoutADraw)
{
    HandNumbers hand{0,   0, 0, 0,   0, 0, 0.5, // no beats: one empty one, which is not drawn; step 1
                     0.9, 0, 0, 0.9, 0, 0, 0.9, 0, 0, /* off */ 0, 0, 0.9, 0, 0, 0.9, 0, 0, 0.9, 0, 0};
    MakeRandomTune(tune, std::ref(hand));
    EXPECT_TRUE(hand.AllUsed());
    EXPECT_EQ(Lamps(tune), "xxxx.xxx");
}

TEST_F(RandomTuneTest, MakesFreshStepsAndAStaleTune)
{
    tune.Steps.assign(3, TuneStep());
    SetStepWaveValid(tune.Steps[1], true);
    tune.Steps[1].BeatIndex = 7;
    SetTuneWaveValid(tune, true);
    DrawEightSteps(0, 0);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(tune.Steps.size(), 9U);
    for (std::int32_t i = 1; i <= 8; ++i) {
        EXPECT_EQ(At(tune.Steps, i).Volume, 100);
        EXPECT_EQ(At(tune.Steps, i).BeatIndex, 0);
        EXPECT_FALSE(At(tune.Steps, i).StepWaveValid);
    }
}

TEST_F(RandomTuneTest, DrawsTheNumberOfSteps)
{
    for (const auto& [number, steps] :
         {std::pair{0.0, 8}, {0.385, 8}, {0.395, 16}, {0.885, 16}, {0.895, 32}, {0.9999, 32}}) {
        numbers = {0.0, number};
        Make();
        EXPECT_EQ(tune.StepCount, steps) << number;
    }
}

TEST_F(RandomTuneTest, FallsToTheDefaultPictureWithoutStars)
{
    DrawEightSteps(0.9, 0);
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().DefaultTunePicture));
    EXPECT_EQ(tune.StepCount, 8) << "a number was drawn for the picture all the same";
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(RandomTuneTest, RoundsToThePlaceOfThePicture)
{
    MakeStar("b.BMP", 2);
    MakeStar("A.bmp", 1);
    MakeStar("c.bmp", 3);
    MakeStar("d.txt", 4);
    for (const auto& [number, bytes] :
         {std::pair{0.0, 1U}, {0.16, 1U}, {0.49, 1U}, {0.5, 2U}, {0.83, 2U}, {0.84, 3U}}) {
        DrawEightSteps(number, 0);
        EXPECT_EQ(tune.Picture.Pixel(0, 0), bytes) << number;
    }
}

TEST_F(RandomTuneTest, KeepsEmptyBeatsWhereThereAreNone)
{
    DrawEightSteps(0, 0);
    for (std::int32_t i = 1; i <= 8; ++i)
        EXPECT_EQ(At(tune.Steps, i).StepBeat.Name, "");
}

TEST_F(RandomTuneTest, KnowsBeatsWithCapitalsInTheirExtension)
{
    MakeBeat("Drum", 600, ".WAV");
    DrawEightSteps(0, 0);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "Drum");
    EXPECT_TRUE(tune.Steps[1].StepBeat.Loaded);
}

TEST_F(RandomTuneTest, DrawsAgainForABeatThatIsTooLong)
{
    MakeBeat("Long", 20000); // 80044 bytes
    MakeBeat("Short", 600);
    numbers = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, /* Long, Long, Short */ 0.1, 0.4, 0.6};
    Make();
    EXPECT_EQ(used, numbers.size());
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "Short");
}

TEST_F(RandomTuneTest, TakesABeatOf79999BytesAndNoneOf80000)
{
    MakeBeat("Above", 19989); // 44 + 79956 = 80000 bytes
    MakeBeat("Below", 19988);
    ASSERT_EQ(std::filesystem::file_size(Shared().UserBeats / "Above.wav"), 80000U);
    numbers = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.1, 0.6};
    Make();
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "Below");
}

TEST_F(RandomTuneTest, TakesTheFirstDrawnWhereAllBeatsAreTooLong)
{
    MakeBeat("Long", 20000);
    MakeBeat("Longer", 30000);
    DrawEightSteps(0, 0.7);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "Longer");
    EXPECT_EQ(used, numbers.size()) << "one number decides";
}

TEST_F(RandomTuneTest, GivesOffStepsABeatAndAPitchToo)
{
    MakeBeat("Drum");
    numbers = {0.0, 0.0, 0.0, 0.999, 0.999, 0.0, 0.0, /* step 1 */ 0.0, /* off */ 0.0};
    Make();
    ASSERT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "Drum");
    EXPECT_TRUE(tune.Steps[2].StepBeat.Loaded);
    EXPECT_EQ(tune.Steps[2].PitchShift, 6);
}

/// The duration that the rule gives a step.
std::int32_t ToldDuration(const std::string& lamps, std::size_t step)
{
    const auto isOff = [&lamps](std::size_t place) { return place <= lamps.size() && lamps[place - 1] == '.'; };
    if (!isOff(step + 1))
        return 70;
    return isOff(step + 2) ? 200 : 150;
}

/// What is counted in 10,000 tunes of one seed.
struct Counts {
    std::map<std::int32_t, int> stepCounts;
    std::map<std::int32_t, int> pitches;
    std::map<std::string, int> firstBeats;
    int mostPitches = 0; ///< in one tune
    int mostBeats = 0;
    int longestOn = 0;
    int longestOff = 0;
    int free = 0; ///< steps whose lamp was drawn
    int freeOn = 0;
    int firstOff = 0; ///< tunes whose first step is off
    int wrongDurations = 0;
};

void CountLamps(const std::string& lamps, Counts& counts)
{
    int on = 0;
    int off = 0;
    for (std::size_t i = 0; i < lamps.size(); ++i) {
        if (i > 0 && off < 2 && on < 4) {
            ++counts.free;
            counts.freeOn += lamps[i] == 'x' ? 1 : 0;
        }
        on = lamps[i] == 'x' ? on + 1 : 0;
        off = lamps[i] == 'x' ? 0 : off + 1;
        counts.longestOn = std::max(counts.longestOn, on);
        counts.longestOff = std::max(counts.longestOff, off);
    }
    counts.firstOff += lamps.front() == '.' ? 1 : 0;
}

void CountTune(const Tune& tune, Counts& counts)
{
    ++counts.stepCounts[tune.StepCount];
    ++counts.firstBeats[tune.Steps[1].StepBeat.Name];
    const std::string lamps = Lamps(tune);
    CountLamps(lamps, counts);
    std::set<std::int32_t> pitches;
    std::set<std::string> beats;
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        const TuneStep& step = At(tune.Steps, i);
        pitches.insert(step.PitchShift);
        beats.insert(step.StepBeat.Name);
        counts.wrongDurations += step.Duration != ToldDuration(lamps, static_cast<std::size_t>(i)) ? 1 : 0;
    }
    ++counts.pitches[tune.Steps[1].PitchShift];
    counts.mostPitches = std::max(counts.mostPitches, static_cast<int>(pitches.size()));
    counts.mostBeats = std::max(counts.mostBeats, static_cast<int>(beats.size()));
}

constexpr int kTunes = 10000;

Counts CountManyTunes()
{
    const FakeServices services;
    for (const char* name : {"a", "b", "c", "d", "e", "f"})
        MakeBeat(name, 1);
    Counts counts;
    Tune tune;
    RandomSequence numbers(20101);
    for (int i = 0; i < kTunes; ++i) {
        MakeRandomTune(tune, std::ref(numbers));
        CountTune(tune, counts);
    }
    return counts;
}

void ExpectLimitsKept(const Counts& counts)
{
    EXPECT_EQ(counts.longestOn, 4);
    EXPECT_EQ(counts.longestOff, 2);
    EXPECT_EQ(counts.firstOff, 0);
    EXPECT_EQ(counts.mostPitches, 5);
    EXPECT_EQ(counts.mostBeats, 4);
    EXPECT_EQ(counts.wrongDurations, 0);
}

void ExpectToldShares(const Counts& counts)
{
    EXPECT_NEAR(static_cast<double>(counts.freeOn) / counts.free, 0.66, 0.005);
    ASSERT_EQ(counts.stepCounts.size(), 3U);
    EXPECT_NEAR(counts.stepCounts.at(8), 0.39 * kTunes, 0.015 * kTunes);
    EXPECT_NEAR(counts.stepCounts.at(16), 0.50 * kTunes, 0.015 * kTunes);
    EXPECT_NEAR(counts.stepCounts.at(32), 0.11 * kTunes, 0.01 * kTunes);
    ASSERT_EQ(counts.pitches.size(), 13U);
    EXPECT_EQ(counts.pitches.begin()->first, -6);
    for (const auto& [pitch, count] : counts.pitches)
        EXPECT_NEAR(count, kTunes / 13.0, 0.01 * kTunes) << pitch;
    ASSERT_EQ(counts.firstBeats.size(), 6U);
    for (const auto& [name, count] : counts.firstBeats)
        EXPECT_NEAR(count, kTunes / 6.0, 0.01 * kTunes) << name;
}

// One test, so the tunes are made only once.
TEST(TenThousandRandomTunes, HoldToTheRule)
{
    const Counts counts = CountManyTunes();
    ExpectLimitsKept(counts);
    ExpectToldShares(counts);
}

TEST(RandomSequence, StaysBelow1AndRepeatsForItsSeed)
{
    RandomSequence numbers(7);
    RandomSequence again(7);
    for (int i = 0; i < 10000; ++i) {
        const float number = numbers();
        EXPECT_GE(number, 0.0F);
        EXPECT_LT(number, 1.0F);
        EXPECT_EQ(number, again());
    }
}

} // namespace
} // namespace sprout
