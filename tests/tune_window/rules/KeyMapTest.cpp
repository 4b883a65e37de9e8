// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/KeyMap.h"

#include <gtest/gtest.h>

#include "tune_window/BlackKeys.h"

#include <array>
#include <string>
#include <string_view>

namespace sprout {
namespace {

/// The rows of an octave from the top: the key of columns 1 to 18 and that of columns 20 to 28, "-" for none. Keys 10
/// to 12 are A to C.
constexpr std::array<std::string_view, kOctaveHeight> kRows{
    "--", "CC", "CC", "CC", "CC", "CC", "-C", "BC", "BC", "B-", "BA", "BA", "BA", "-A", "AA", "AA", "AA", "AA", "-A",
    "9A", "9A", "9-", "98", "98", "98", "-8", "88", "88", "88", "88", "-8", "78", "78", "7-", "76", "76", "76", "-6",
    "66", "66", "66", "66", "--", "55", "55", "55", "55", "55", "-5", "45", "45", "4-", "43", "43", "43", "-3", "33",
    "33", "33", "33", "-3", "23", "23", "2-", "21", "21", "21", "-1", "11", "11", "11", "11", "--"};

std::int32_t KeyOfLetter(char letter)
{
    constexpr std::string_view kLetters = "0123456789ABC";
    return letter == '-' ? kNoKey : static_cast<std::int32_t>(kLetters.find(letter));
}

/// The key of the map at a pixel; a key that is in both parts also has the column between them.
std::int32_t ExpectedKey(std::int32_t x, std::int32_t y)
{
    const std::string_view row = kRows[static_cast<std::size_t>(y)];
    if (x < 1 || x > 28 || (x == 19 && row[0] != row[1]))
        return kNoKey;
    return KeyOfLetter(row[x <= 19 ? 0 : 1]);
}

TEST(KeyAt, FindsTheKeyOfEveryPixel)
{
    for (std::int32_t y = 0; y < kOctaveHeight; ++y)
        for (std::int32_t x = 0; x < kOctaveWidth; ++x)
            EXPECT_EQ(KeyAt(x, y), ExpectedKey(x, y)) << x << ", " << y;
}

TEST(KeyAt, FindsNoKeyOutsideThePicture)
{
    EXPECT_EQ(KeyAt(-1, 3), kNoKey);
    EXPECT_EQ(KeyAt(30, 3), kNoKey);
    EXPECT_EQ(KeyAt(5, -1), kNoKey);
    EXPECT_EQ(KeyAt(5, 73), kNoKey);
}

TEST(PitchOfKey, RunsFromTheLowestKeyOfTheLowerOctaveToTheHighestOfTheUpper)
{
    EXPECT_EQ(PitchOfKey(Octave::Lower, 1), -12);
    EXPECT_EQ(PitchOfKey(Octave::Lower, 12), -1);
    EXPECT_EQ(PitchOfKey(Octave::Upper, 1), 0);
    EXPECT_EQ(PitchOfKey(Octave::Upper, 12), 11);
}

TEST(KeyOfPitch, IsTheKeyThatSetsThePitch)
{
    for (std::int32_t pitch = kLowestKeyPitch; pitch <= kHighestKeyPitch; ++pitch) {
        const KeyPlace place = KeyOfPitch(pitch);
        EXPECT_EQ(PitchOfKey(place.octave, place.key), pitch);
    }
}

TEST(KeyOfPitch, ShowsPitchesBeyondTheKeyboardAtItsEnds)
{
    EXPECT_EQ(KeyOfPitch(40), (KeyPlace{Octave::Upper, 12}));
    EXPECT_EQ(KeyOfPitch(-13), (KeyPlace{Octave::Lower, 1}));
}

TEST(KeyMark, StandsOnItsKey)
{
    for (std::int32_t key = 1; key <= kOctaveKeys; ++key) {
        const auto place = static_cast<std::size_t>(key);
        EXPECT_EQ(KeyMarkX[place], IsBlackKey(key) ? 9 : 21);
        EXPECT_EQ(KeyAt(KeyMarkX[place], KeyMarkY[place] + 3), key);
    }
}

} // namespace
} // namespace sprout
