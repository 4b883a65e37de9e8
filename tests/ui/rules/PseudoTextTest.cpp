// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/PseudoText.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

/// The letters of a UTF-8 text.
std::size_t Letters(std::string_view text)
{
    std::size_t letters = 0;
    for (const char byte : text)
        letters += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80 ? 1 : 0;
    return letters;
}

TEST(PseudoText, HasMarksAndBracketsAndStaysReadable)
{
    EXPECT_EQ(PseudoText("Save song"), "[Ŝàvêê ŝòòñĝ~]");
}

TEST(PseudoText, IsAThirdLonger)
{
    for (const std::string_view text : {"OK", "Rhythm", "Play all button, use it to play the full song (all tracks)"})
        EXPECT_GE(Letters(PseudoText(text)) * 3, text.size() * 4 + 6) << text;
}

TEST(PseudoText, KeepsPlacesAndFilePatterns)
{
    EXPECT_EQ(PseudoText("%1%2"), "[%1%2]");
    EXPECT_NE(PseudoText("the song %1 of %2").find("ĝ %1 ò"), std::string::npos);
    const std::string filter = PseudoText("Wave files(*.wav)|*.wav|All files|*.*");
    EXPECT_NE(filter.find("(*.wav)|*.wav|"), std::string::npos) << filter;
    EXPECT_NE(filter.find("|*.*"), std::string::npos) << filter;
    EXPECT_EQ(PseudoText("50 %"), "[50 %~~]");
}

TEST(PseudoText, KeepsBlanksAtTheEndsAndLineEnds)
{
    EXPECT_EQ(PseudoText(" OK\r\n"), " [ÖK~]\r\n");
    EXPECT_NE(PseudoText("one\r\ntwo").find("\r\n"), std::string::npos);
    EXPECT_EQ(PseudoText(""), "");
    EXPECT_EQ(PseudoText("  "), "  ");
}

} // namespace
} // namespace sprout
