// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Words.h"

#include <gmock/gmock.h>

#include <array>
#include <cctype>
#include <concepts>
#include <cstdint>
#include <string>

namespace sprout {
namespace {

static_assert(!std::constructible_from<Words, const char*>);
static_assert(!std::constructible_from<Words, std::string>);
static_assert(!std::constructible_from<LaterWords, const char*>);
static_assert(!std::convertible_to<const char*, Pattern<0>>);
static_assert(!std::convertible_to<std::string, Pattern<0>>);

constexpr std::array kTable{Words::Later("Save"), Words::Later("Open %1")};

/// A language that shouts and turns "A %1 and a %2" around.
std::string Shouted(const char* pattern)
{
    std::string text = pattern;
    if (text == "A %1 and a %2")
        return "A %2 AND A %1";
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

TEST(Words, AreEmptyAtFirst)
{
    EXPECT_EQ(Words().English(), "");
    EXPECT_TRUE(Words().IsBlank());
    EXPECT_EQ(Words(LaterWords()), Words());
    EXPECT_EQ(Words::Text(""), Words());
}

TEST(Words, GiveTheEnglishOfTheirLiteral)
{
    EXPECT_EQ(Words::Text("Nothing was recorded.").English(), "Nothing was recorded.");
    EXPECT_FALSE(Words::Text("Nothing was recorded.").IsBlank());
}

TEST(Words, FillTheirPlacesWithTextsAndNumbers)
{
    EXPECT_EQ(Words::Text("%2 of %1: %3", std::string("Ode"), std::int32_t{7}, "drum").English(), "7 of Ode: drum");
    EXPECT_EQ(Words::Text("%1 and %1", 3U).English(), "3 and 3");
}

TEST(Words, FillAllPlacesInOnePass)
{
    EXPECT_EQ(Words::Text("The songs %1 and %2", "%2", "%1").English(), "The songs %2 and %1");
}

TEST(Words, LeaveAPercentSignThatIsNoPlace)
{
    EXPECT_EQ(Words::Text("50 % of %1%", 8).English(), "50 % of 8%");
    EXPECT_EQ(Words::Text("100%").English(), "100%");
    EXPECT_EQ(Words::Text("100 %0 %x").English(), "100 %0 %x");
}

TEST(Words, LeaveAPlaceThatOnlyATranslationHas)
{
    EXPECT_EQ(Words::Text("Save").Filled([](const char*) { return "Save %1"; }), "Save %1");
}

TEST(Words, TakeWordsAsArguments)
{
    const Words reason = Words::Text("The file %1 is full.", "%1");
    EXPECT_EQ(Words::Text("It failed.\r\n%1", reason).English(), "It failed.\r\nThe file %1 is full.");
}

TEST(Words, LookUpEachPatternAndNoArgument)
{
    const Words reason = Words::Text("no %1", "room");
    EXPECT_EQ(Words::Text("failed: %1", reason).Filled(Shouted), "FAILED: NO room");
    EXPECT_EQ(Words::Text("A %1 and a %2", "dog", "cat").Filled(Shouted), "A cat AND A dog");
}

TEST(Words, KeepATextFromOutsideAsItIs)
{
    EXPECT_EQ(Words::AsIs("song %1").English(), "song %1");
    EXPECT_EQ(Words::AsIs("song %1").Filled(Shouted), "song %1");
    EXPECT_TRUE(Words::AsIs(" ").IsBlank());
    EXPECT_NE(Words::AsIs("Save"), Words::Text("Save"));
}

TEST(Words, JoinPartsWithASeparator)
{
    EXPECT_EQ(Words::Joined({}, ", "), Words());
    EXPECT_EQ(Words::Joined({Words::Text("a")}, ", ").English(), "a");
    EXPECT_EQ(Words::Joined({Words::Text("a"), Words::AsIs("b"), Words::Text("c")}, ", ").Filled(Shouted), "A, b, C");
}

TEST(Words, AreEqualIfPatternAndArgumentsAre)
{
    EXPECT_EQ(Words::Text("Track %1", 1), Words::Text("Track %1", 1));
    EXPECT_NE(Words::Text("Track %1", 1), Words::Text("Track %1", 2));
    EXPECT_NE(Words::Text("Track %1", 1), Words::Text("Step %1", 1));
}

TEST(LaterWords, BecomeWordsWhenATableIsUsed)
{
    EXPECT_EQ(Words(kTable[0]), Words::Text("Save"));
    EXPECT_EQ(kTable[1].With("Ode"), Words::Text("Open %1", "Ode"));
    EXPECT_EQ(kTable[0].English(), "Save");
    EXPECT_TRUE(LaterWords().IsEmpty());
    EXPECT_FALSE(kTable[0].IsEmpty());
    EXPECT_EQ(kTable[0], Words::Later("Save"));
    EXPECT_NE(kTable[0], kTable[1]);
}

TEST(PlacesOf, CountsThePlacesOfAPattern)
{
    EXPECT_EQ(PlacesOf("none, not even % or %0"), 0);
    EXPECT_EQ(PlacesOf("%2 before %1"), 2);
    EXPECT_EQ(PlacesOf("%1%2%3%4%5%6%7%8%9"), 9);
    EXPECT_EQ(PlacesOf("%1 and %3"), -1);
    EXPECT_EQ(PlacesOf("%"), 0);
}

} // namespace
} // namespace sprout
