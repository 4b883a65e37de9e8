// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/AttachmentName.h"

#include <gtest/gtest.h>

#include "base/Text.h"

namespace sprout {
namespace {

TEST(AttachmentName, IsTheTitleOfTheSong)
{
    EXPECT_EQ(AttachmentName("Zumi"), "Zumi.wma");
    EXPECT_EQ(AttachmentName("It's 100 %, $(x) - ok"), "It's 100 %, $(x) - ok.wma");
    EXPECT_EQ(AttachmentName("أغنية"), "أغنية.wma");
    EXPECT_EQ(AttachmentName("-rf"), "-rf.wma");
}

TEST(AttachmentName, HasNoCharacterThatAnyFileSystemRefuses)
{
    EXPECT_EQ(AttachmentName("./\\:*?<>\"|a"), "__________a.wma");
    EXPECT_EQ(AttachmentName("a\nb\tc\x7F" + std::string(1, '\0') + "d"), "a_b_c__d.wma");
    EXPECT_EQ(AttachmentName("  a b "), "a b.wma");
}

TEST(AttachmentName, IsSongWhereTheTitleNamesNothing)
{
    for (const char* title : {"", "   ", ".", "..", " . .. ", "\n"})
        EXPECT_EQ(AttachmentName(title), "Song.wma") << title;
}

TEST(AttachmentName, IsCutBetweenTwoCharacters)
{
    EXPECT_EQ(AttachmentName(std::string(200, 'a')), std::string(200, 'a') + ".wma");
    EXPECT_EQ(AttachmentName(std::string(300, 'a')), std::string(200, 'a') + ".wma");
    EXPECT_EQ(AttachmentName(std::string(199, 'a') + "éb"), std::string(199, 'a') + ".wma");
    EXPECT_EQ(AttachmentName(std::string(198, 'a') + "éb"), std::string(198, 'a') + "é.wma");
    EXPECT_EQ(AttachmentName(std::string(199, 'a') + " b"), std::string(199, 'a') + ".wma");
    for (std::size_t before = 190; before <= 200; ++before) {
        const std::string name = AttachmentName(std::string(before, 'a') + "\U0001F331\U0001F331\U0001F331");
        EXPECT_TRUE(IsUtf8(name)) << before;
        EXPECT_LE(name.size(), 204U);
        EXPECT_GE(name.size(), 201U);
    }
}

} // namespace
} // namespace sprout
