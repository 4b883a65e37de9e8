// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Text.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(Trim, DropsBlanksAtBothEnds)
{
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta"), "\ta");
}

TEST(LowerCase, KnowsLettersOfAllAlphabets)
{
    EXPECT_EQ(LowerCase("ABZ[é"), "abz[é");
    EXPECT_EQ(LowerCase("ÉÄ"), "éä");
    EXPECT_EQ(LowerCase("ЖΩ"), "жω");
    EXPECT_EQ(LowerCase("\xC9\xFF"), "\xC9\xFF"); // not UTF-8
}

TEST(BeginsIgnoringCase, ComparesLettersAndNotBytes)
{
    EXPECT_TRUE(BeginsIgnoringCase("Élan", "éL"));
    EXPECT_TRUE(BeginsIgnoringCase("ẞa", "ß")); // three bytes compared with two
    EXPECT_FALSE(BeginsIgnoringCase("a", "ab"));
    EXPECT_TRUE(BeginsIgnoringCase("a", ""));
}

TEST(StoredBytes, AreOneByteACharacterOfTheCodePage)
{
    EXPECT_EQ(StoredBytes("é €Ÿ"), "\xE9 \x80\x9F");
    EXPECT_EQ(StoredBytes("plain"), "plain");
    EXPECT_EQ(TextFromStored("\xE9 \x80\x9F"), "é €Ÿ");
}

TEST(StoredBytes, AreUtf8WholeForCharactersOutsideTheCodePage)
{
    EXPECT_EQ(StoredBytes("éЖ"), "éЖ");
    EXPECT_EQ(TextFromStored("éЖ"), "éЖ");
    EXPECT_EQ(StoredBytes("♪"), "♪");
}

TEST(StoredBytes, AreUtf8WhereTheSingleBytesWouldReadAsUtf8)
{
    EXPECT_EQ(StoredBytes("Ã©"), "Ã©"); // C3 A9 would come back as one letter
    EXPECT_EQ(TextFromStored(StoredBytes("Ã©")), "Ã©");
}

TEST(StoredBytes, ComeBackTheSameForEveryByte)
{
    for (int high = 0; high < 256; ++high) {
        for (int low = 0; low < 256; ++low) {
            const std::string bytes = {static_cast<char>(high), static_cast<char>(low)};
            const std::string text = TextFromStored(bytes);
            EXPECT_TRUE(IsUtf8(text));
            EXPECT_EQ(TextFromStored(StoredBytes(text)), text) << high << " " << low;
        }
    }
}

TEST(StoredBytes, PassUnassignedBytesUnchanged)
{
    for (const char byte : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'})
        EXPECT_EQ(StoredBytes(TextFromStored(std::string(1, byte))), std::string(1, byte));
}

TEST(IsUtf8, RefusesOverlongCutAndSurrogateForms)
{
    EXPECT_TRUE(IsUtf8("a\u00e9\u20ac\U0001F3B5"));
    for (const char* bytes : {"\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xF0\x80\x80\x80", "\xED\xA0\x80", "\xC3",
                              "\xE2\x82", "\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3\x28"})
        EXPECT_FALSE(IsUtf8(bytes)) << bytes;
}

TEST(Split, KeepsEmptyParts)
{
    EXPECT_EQ(Split("", ','), std::vector<std::string>{""});
    EXPECT_EQ(Split(",a,,b", ','), (std::vector<std::string>{"", "a", "", "b"}));
    EXPECT_EQ(Split("a,", ','), (std::vector<std::string>{"a", ""}));
}

TEST(FirstCharacters, NeverCutsACharacter)
{
    EXPECT_EQ(FirstCharacters("é♪a", 2), "é♪");
    EXPECT_EQ(FirstCharacters("ab", 9), "ab");
    EXPECT_EQ(FirstCharacters("\xC3", 1), "\xC3");
}

TEST(StoredText, IsTheTextAsItComesBackFromAFile)
{
    EXPECT_EQ(StoredText("Caf\xC3\xA9"), "Caf\xC3\xA9");
    EXPECT_EQ(StoredText("Caf\xE9"), "Caf\xC3\xA9");
    EXPECT_EQ(StoredText("\xE9\x9B\xA8"), "\xE9\x9B\xA8");
}

TEST(NameKey, IsOneForNamesThatDifferInLetterCaseOrInFormOnly)
{
    EXPECT_EQ(NameKey("CAF\xC3\x89"), NameKey("caf\xE9"));
    EXPECT_NE(NameKey("Drum"), NameKey("Drum "));
}

TEST(CharactersInBytes, CutsNoCharacter)
{
    EXPECT_EQ(CharactersInBytes("song", 4), "song");
    EXPECT_EQ(CharactersInBytes("song", 3), "son");
    EXPECT_EQ(CharactersInBytes("sö", 2), "s");
    EXPECT_EQ(CharactersInBytes("sö", 3), "sö");
    EXPECT_EQ(CharactersInBytes("a\xF0\x9F\x8C\xB1", 4), "a");
    EXPECT_EQ(CharactersInBytes("song", 0), "");
}

} // namespace
} // namespace sprout
