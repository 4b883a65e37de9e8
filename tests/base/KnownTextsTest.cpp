// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/KnownTexts.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr std::string_view kSource = R"(<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1">
<context>
    <name>Words</name>
    <message>
        <source>Song &quot;%1&quot; &amp;lt; &lt;it&apos;s&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two<byte value="xd"/>
lines</source>
    </message>
</context>
<context>
    <name>Other</name>
    <message><source>Save</source></message>
</context>
</TS>
)";

TEST(KnownTexts, AreReadWithTheirContexts)
{
    const KnownTexts texts(kSource);
    EXPECT_EQ(texts.Count(), 3U);
    EXPECT_TRUE(texts.Has("Words", "Song \"%1\" &lt; <it's>"));
    EXPECT_TRUE(texts.Has("Words", "Two\r\nlines"));
    EXPECT_TRUE(texts.Has("Other", "Save"));
    EXPECT_FALSE(texts.Has("Words", "Save"));
}

TEST(KnownTexts, OfTheProgramAreThoseOfItsSources)
{
    EXPECT_GT(KnownTexts::OfProgram().Count(), 500U);
    EXPECT_TRUE(KnownTexts::OfProgram().Has("Words", "Save button, use it to save the song you made"));
}

TEST(KnownTexts, AWrongTextFailsTheTestThatShowsIt)
{
    EXPECT_NONFATAL_FAILURE(static_cast<void>(ShownEnglish(Words::Text("Nobody translates this."))), "update-texts");
    EXPECT_EQ(ShownEnglish(Words::AsIs("Rain")), "Rain");
}

} // namespace
} // namespace sprout
