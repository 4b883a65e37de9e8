// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/WmaFormats.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace sprout {
namespace {

using Place = std::optional<WmaFormatPlace>;

std::string FormatLine(const std::string& bitRate, const std::string& rate = "44100", const std::string& channels = "2",
                       const std::string& bits = "16")
{
    return "\r\nany\n" + bitRate + "\n" + rate + "\n" + channels + "\n" + bits;
}

Place PlaceIn(const std::string& list)
{
    return FindWmaFormat(ParseWmaCodecs(list));
}

TEST(ParseWmaCodecs, ReadsNamesAndFormats)
{
    const std::vector<WmaCodec> codecs =
        ParseWmaCodecs("First\r\nslow\n48000\n22050\n1\n8\r\nfast\n64000\n44100\n2\n16\r\n\r\nSecond");
    ASSERT_EQ(codecs.size(), 2U);
    EXPECT_EQ(codecs[0].Name, "First");
    EXPECT_EQ(codecs[0].FormatCount, 2);
    EXPECT_EQ(codecs[0].Descriptions, (std::vector<std::string>{"", "slow", "fast"}));
    EXPECT_EQ(codecs[0].BitRates, (std::vector<std::int32_t>{0, 48000, 64000}));
    EXPECT_EQ(codecs[0].SampleRates, (std::vector<std::int32_t>{0, 22050, 44100}));
    EXPECT_EQ(codecs[0].Channels, (std::vector<std::int32_t>{0, 1, 2}));
    EXPECT_EQ(codecs[0].BitsPerSample, (std::vector<std::int32_t>{0, 8, 16}));
    EXPECT_EQ(codecs[1].Name, "Second");
    EXPECT_EQ(codecs[1].FormatCount, 0);
}

TEST(ParseWmaCodecs, KeepsTheRowOfALineThatIsNoFormat)
{
    const std::vector<WmaCodec> codecs =
        ParseWmaCodecs("Name\r\nfour\n64000\n44100\n2\r\nsix\n64000\n44100\n2\n16\n\r\ngood\n1\n2\n3\n4");
    ASSERT_EQ(codecs.size(), 1U);
    EXPECT_EQ(codecs[0].FormatCount, 3);
    EXPECT_EQ(codecs[0].Descriptions, (std::vector<std::string>{"", "", "", "good"}));
    EXPECT_EQ(codecs[0].BitRates, (std::vector<std::int32_t>{0, 0, 0, 1}));
    EXPECT_EQ(codecs[0].SampleRates, (std::vector<std::int32_t>{0, 0, 0, 2}));
    EXPECT_EQ(codecs[0].Channels, (std::vector<std::int32_t>{0, 0, 0, 3}));
    EXPECT_EQ(codecs[0].BitsPerSample, (std::vector<std::int32_t>{0, 0, 0, 4}));
}

TEST(ParseWmaCodecs, ReadsNumbersAsFarAsTheyAreNumbers)
{
    const std::vector<WmaCodec> codecs =
        ParseWmaCodecs("Name\r\na\n64000 bit/s\n 44.1e3Hz\nstereo\n16-bit\r\nb\n2.5\n3.5\n-1\n");
    ASSERT_EQ(codecs.size(), 1U);
    EXPECT_EQ(codecs[0].BitRates, (std::vector<std::int32_t>{0, 64000, 2}));
    EXPECT_EQ(codecs[0].SampleRates, (std::vector<std::int32_t>{0, 44100, 4}));
    EXPECT_EQ(codecs[0].Channels, (std::vector<std::int32_t>{0, 0, -1}));
    EXPECT_EQ(codecs[0].BitsPerSample, (std::vector<std::int32_t>{0, 16, 0}));
}

TEST(ParseWmaCodecs, RefusesANumberThatIsTooLarge)
{
    EXPECT_THROW(ParseWmaCodecs("Name" + FormatLine("1e99")), RunTimeError);
}

TEST(ParseWmaCodecs, ReadsAnEmptyListAsACodecWithoutAName)
{
    const std::vector<WmaCodec> codecs = ParseWmaCodecs("");
    ASSERT_EQ(codecs.size(), 1U);
    EXPECT_EQ(codecs[0].Name, "");
    EXPECT_EQ(codecs[0].FormatCount, 0);
    EXPECT_EQ(FindWmaFormat(codecs), std::nullopt);
}

TEST(FindWmaFormat, RoundsTheBitRateToThousands)
{
    const Place found = WmaFormatPlace{0, 0};
    const std::string name = "Windows Media Audio 2";
    EXPECT_EQ(PlaceIn(name + FormatLine("63499")), std::nullopt);
    EXPECT_EQ(PlaceIn(name + FormatLine("63500")), found); // a tie rounds to even
    EXPECT_EQ(PlaceIn(name + FormatLine("64499")), found);
    EXPECT_EQ(PlaceIn(name + FormatLine("64500")), found);
    EXPECT_EQ(PlaceIn(name + FormatLine("64501")), std::nullopt);
}

TEST(FindWmaFormat, WantsTheProgramsOwnFormat)
{
    const std::string name = "Windows Media Audio 2";
    EXPECT_EQ(PlaceIn(name + FormatLine("64000", "48000")), std::nullopt);
    EXPECT_EQ(PlaceIn(name + FormatLine("64000", "44100", "1")), std::nullopt);
    EXPECT_EQ(PlaceIn(name + FormatLine("64000", "44100", "2", "8")), std::nullopt);
    EXPECT_NE(PlaceIn(name + FormatLine("64000", "44100", "2", "16")), std::nullopt);
}

TEST(FindWmaFormat, TakesTheFirstThatFits)
{
    const std::string list = "Other Codec" + FormatLine("64000") + "\r\n\r\nWindows Media Audio Voice" +
                             FormatLine("20000") + "\r\n\r\nWindows Media Audio 9\r\nno format" + FormatLine("48000") +
                             FormatLine("64040") + FormatLine("64000") + "\r\n\r\nWindows Media Audio 10" +
                             FormatLine("64000");
    EXPECT_EQ(PlaceIn(list), (WmaFormatPlace{2, 2}));
}

TEST(FindWmaFormat, WantsTheNameInItsLetterCaseAndAtTheBegin)
{
    EXPECT_EQ(PlaceIn("windows media audio 2" + FormatLine("64000")), std::nullopt);
    EXPECT_EQ(PlaceIn("The Windows Media Audio" + FormatLine("64000")), std::nullopt);
    EXPECT_EQ(PlaceIn("Windows Media Audio" + FormatLine("64000")), (WmaFormatPlace{0, 0}));
}

TEST(ParseWmaCodecs, ReadsNoFormatInTheLineOfTheName)
{
    const std::vector<WmaCodec> codecs = ParseWmaCodecs("x\n1\n2\n3\n4\r\ny\n5\n6\n7\n8");
    ASSERT_EQ(codecs.size(), 1U);
    EXPECT_EQ(codecs[0].Name, "x\n1\n2\n3\n4");
    EXPECT_EQ(codecs[0].Descriptions, (std::vector<std::string>{"", "y"}));
    EXPECT_EQ(codecs[0].BitRates, (std::vector<std::int32_t>{0, 5}));
}

} // namespace
} // namespace sprout
