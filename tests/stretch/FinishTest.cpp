// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Finish.h"

#include <gmock/gmock.h>

namespace sprout::stretch {

TEST(ToFloats, RemovesAnOffsetAbove64UnitsOnly)
{
    EXPECT_THAT(ToFloats(std::vector<std::int16_t>{64, 64}), testing::ElementsAre(64, 64));
    EXPECT_THAT(ToFloats(std::vector<std::int16_t>{100, 200}), testing::ElementsAre(-50, 50));
    EXPECT_THAT(ToFloats(std::vector<std::int16_t>{-100, -200}), testing::ElementsAre(50, -50));
    EXPECT_THAT(ToFloats({}), testing::IsEmpty());
}

TEST(FadeEnds, FadesTheLastTwoMillisecondsToZero)
{
    std::vector<float> sound(1000, 1.0F);
    FadeEnds(sound, false, SizesFor(44100));
    EXPECT_EQ(sound[999], 0);
    EXPECT_NEAR(sound[955], 0.5, 1e-3);
    EXPECT_EQ(sound[911], 1);
    EXPECT_EQ(sound[0], 1);
}

TEST(FadeEnds, FadesInWhereTheSoundStartedQuietly)
{
    std::vector<float> sound(1000, 1.0F);
    FadeEnds(sound, true, SizesFor(44100));
    EXPECT_EQ(sound[0], 0);
    EXPECT_NEAR(sound[4], 0.5, 1e-3);
    EXPECT_EQ(sound[8], 1);
}

TEST(FadeEnds, TakesSoundsShorterThanItsFades)
{
    std::vector<float> sound{1, 1, 1};
    FadeEnds(sound, true, SizesFor(44100));
    EXPECT_EQ(sound[0], 0);
    EXPECT_EQ(sound[2], 0);
}

TEST(StartsQuietly, LooksAtTheFirstSample)
{
    EXPECT_TRUE(StartsQuietly(std::vector<std::int16_t>{-63, 9000}));
    EXPECT_FALSE(StartsQuietly(std::vector<std::int16_t>{-32768, 0}));
}

TEST(ToSamples, RoundsAndNeverWraps)
{
    EXPECT_THAT(ToSamples(std::vector<float>{1.4F, -1.6F, 40000, -40000}), testing::ElementsAre(1, -2, 32767, -32768));
}

TEST(ToSamples, RoundsHalvesToTheEvenNumber)
{
    EXPECT_THAT(ToSamples(std::vector<float>{0.5F, 1.5F, 2.5F, -0.5F, -1.5F, 32766.5F, -32767.5F}),
                testing::ElementsAre(0, 2, 2, 0, -2, 32766, -32768));
}

} // namespace sprout::stretch
