// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FileHead.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <regex>
#include <span>
#include <string>

namespace sprout {
namespace {

std::string Value(const std::string& bytes, std::string_view key)
{
    MemorySource source(std::as_bytes(std::span(bytes)));
    return HeadValue(source, key, "none");
}

std::optional<std::uint64_t> Data(const std::string& bytes)
{
    MemorySource source(std::as_bytes(std::span(bytes)));
    return FindHeadData(source);
}

TEST(FileHead, HoldsTheLinesInTheirOrder)
{
    const std::regex pattern("TqSng\r\n"
                             "File Description=Tonquill Sprout Song File\r\n"
                             "Saved By=Tonquill Sprout Painter\r\n"
                             "Version=Dec 2010\r\n"
                             "Web Site=https://tonquill\\.example/\r\n"
                             "File Version=2\r\n"
                             "Time=[0-3][0-9]-[A-Z][a-z]{2}-[0-9]{4}/[0-2][0-9]:[0-5][0-9]:[0-6][0-9]\r\n"
                             "Data=");
    const std::string head = FileHead("TqSng", " Sprout Song File");
    EXPECT_TRUE(std::regex_match(head, pattern)) << head;
}

TEST(FileHead, EndsWithFourZeroBytesAndTheEndMark)
{
    EXPECT_EQ(FileTail(), std::string_view("\0\0\0\0EOF\r\n", 9));
}

TEST(HeadValue, FindsKeysInAnyLetterCase)
{
    EXPECT_EQ(Value("TqSng\r\nfILE vERSION=1.1\r\nData=0000000000", "File Version"), "1.1");
}

TEST(HeadValue, DoesNotFindAKeyOnTheFirstLine)
{
    EXPECT_EQ(Value("File Version=2\r\nData=00000000000000000000", "File Version"), "none");
}

TEST(HeadValue, NeedsTheLineEndBehindTheValue)
{
    EXPECT_EQ(Value("TqSng\r\nFile Version=2" + std::string(40, ' '), "File Version"), "none");
}

TEST(HeadValue, SearchesTheFirstThousandBytesOnly)
{
    const std::string line = "\r\nFile Version=2\r\n";
    const std::string behind(100, '.');
    EXPECT_EQ(Value(std::string(1000 - line.size(), '.') + line + behind, "File Version"), "2");
    EXPECT_EQ(Value(std::string(1001 - line.size(), '.') + line + behind, "File Version"), "none");
}

TEST(HeadValue, SearchesAShortFileLessTheLengthOfItsPattern)
{
    const std::string line = "\r\nFile Version=2\r\n";
    const std::size_t patternBytes = line.size() - 3;
    EXPECT_EQ(Value(line + std::string(patternBytes, '.'), "File Version"), "2");
    EXPECT_EQ(Value(line + std::string(patternBytes - 1, '.'), "File Version"), "none");
    EXPECT_EQ(Value("", "File Version"), "none");
    EXPECT_EQ(Value("x", "File Version"), "none");
}

TEST(HeadValue, TakesTheFirstOfTwoLines)
{
    EXPECT_EQ(Value("a\r\nKey=1\r\nKey=2\r\n..........", "Key"), "1");
}

TEST(FindHeadData, FindsTheByteBehindTheMark)
{
    EXPECT_EQ(Data("TqSng\r\ndata=0123456789"), std::optional<std::uint64_t>(12));
    EXPECT_EQ(Data("TqSng\r\nDatum=0123456789"), std::nullopt);
    EXPECT_EQ(Data("Data=0123456789"), std::nullopt);
}

TEST(FileHead, TakesItsTimeFromSourceDateEpochWhereItIsSet)
{
    ::setenv("SOURCE_DATE_EPOCH", "1600000000", 1);
    const std::string head = FileHead("TqSng", " Sprout Song File");
    const std::string again = FileHead("TqSng", " Sprout Song File");
    ::setenv("SOURCE_DATE_EPOCH", "soon", 1);
    const std::string wrong = FileHead("TqSng", " Sprout Song File");
    ::unsetenv("SOURCE_DATE_EPOCH");
    // The machine's time zone may change hours and minutes, and the day by one.
    EXPECT_NE(head.find("-Sep-2020/"), std::string::npos) << head;
    EXPECT_NE(head.find(":40\r\n"), std::string::npos) << head;
    EXPECT_EQ(head, again);
    EXPECT_EQ(wrong.find("-Sep-2020/"), std::string::npos) << wrong;
}

} // namespace
} // namespace sprout
