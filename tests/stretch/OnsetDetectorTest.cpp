// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/OnsetDetector.h"

#include <gmock/gmock.h>

#include "stretch/TestSounds.h"

namespace sprout::stretch {

TEST(FindOnsets, PlacesAStrokeToAGrain)
{
    for (const Index at : {1000, 4410, 5003}) {
        const std::vector<Index> onsets =
            FindOnsets(StruckFloats(20000, static_cast<std::size_t>(at)), SizesFor(44100));
        ASSERT_EQ(onsets.size(), 1U);
        EXPECT_LE(onsets.front(), at + 1);
        EXPECT_GT(onsets.front(), at - 16);
    }
}

TEST(FindOnsets, FindsAStrokeThatRingsIntoTheNext)
{
    std::vector<float> sound = StruckFloats(30000, 0);
    const std::vector<float> second = StruckFloats(30000, 9000, 1200);
    for (std::size_t i = 0; i < sound.size(); ++i)
        sound[i] = sound[i] / 2 + second[i] / 2;
    const std::vector<Index> onsets = FindOnsets(sound, SizesFor(44100));
    ASSERT_EQ(onsets.size(), 2U);
    EXPECT_EQ(onsets[0], 0);
    EXPECT_NEAR(static_cast<double>(onsets[1]), 9000, 16);
}

TEST(FindOnsets, KeepsTwelveHopsApart)
{
    std::vector<float> sound(20000);
    sound[5000] = 1000;
    sound[6400] = 9000;
    EXPECT_THAT(FindOnsets(sound, SizesFor(44100)), testing::ElementsAre(4992));
    sound[8000] = 30000;
    EXPECT_THAT(FindOnsets(sound, SizesFor(44100)), testing::ElementsAre(4992, 8000));
}

TEST(FindOnsets, IgnoresWhatIsAThousandthOfTheLargest)
{
    std::vector<float> sound(20000);
    sound[3000] = 100;
    sound[9000] = 10000;
    EXPECT_THAT(FindOnsets(sound, SizesFor(44100)), testing::ElementsAre(8992));
}

TEST(FindOnsets, FindsNothingInSilenceOrInNothing)
{
    EXPECT_THAT(FindOnsets(std::vector<float>(5000), SizesFor(44100)), testing::IsEmpty());
    EXPECT_THAT(FindOnsets({}, SizesFor(44100)), testing::IsEmpty());
}

TEST(FindOnsets, FindsAStrokeInEveryHopUpToTheLast)
{
    for (const std::size_t count : {4096U, 4100U, 4500U})
        for (std::size_t at = 0; at < count; at += 128) {
            std::vector<float> sound(count);
            sound[at] = 1000;
            EXPECT_THAT(FindOnsets(sound, SizesFor(44100)), testing::ElementsAre(static_cast<Index>(at))) << count;
        }
}

} // namespace sprout::stretch
