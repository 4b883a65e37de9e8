// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ByteCursor.h"

#include <sys/syscall.h>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

#include <filesystem>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "support/RefusedCall.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

std::string Letters(std::size_t count)
{
    std::string letters;
    for (std::size_t i = 0; i < count; ++i)
        letters.push_back(static_cast<char>('a' + i % 23));
    return letters;
}

std::string Take(ByteCursor& cursor, std::size_t count)
{
    std::string taken(count, '?');
    cursor.Read(std::as_writable_bytes(std::span(taken)));
    return taken;
}

TEST(FileSource, ReadsAnyPartOfAFile)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "f", Letters(20'000));
    FileSource source(folder.Path() / "f");
    EXPECT_EQ(source.Size(), 20'000U);
    std::string part(5, '?');
    source.Read(15'000, std::as_writable_bytes(std::span(part)));
    EXPECT_EQ(part, Letters(20'000).substr(15'000, 5));
    source.Read(20'000, {});
    EXPECT_THROW(source.Read(19'996, std::as_writable_bytes(std::span(part))), RunTimeError);
    EXPECT_THROW(source.Read(~std::uint64_t{0}, std::as_writable_bytes(std::span(part))), RunTimeError);
}

TEST(FileSource, ReadsLargePartsWholeFromAnyPlace)
{
    constexpr std::size_t size = 13 * 1024 * 1024 + 7;
    const TestFolder folder;
    const std::string letters = Letters(size);
    WriteBytes(folder.Path() / "f", letters);
    FileSource source(folder.Path() / "f");
    for (const std::size_t begin : {std::size_t{0}, std::size_t{3}, std::size_t{4 * 1024 * 1024}}) {
        std::string part(size - begin, '?');
        source.Read(begin, std::as_writable_bytes(std::span(part)));
        EXPECT_TRUE(part == letters.substr(begin)) << begin; // not EXPECT_EQ, which would print both
    }
}

TEST(FileSource, TellsWhenALargePartIsCutOff)
{
    constexpr std::size_t size = 13 * 1024 * 1024;
    const TestFolder folder;
    WriteBytes(folder.Path() / "f", Letters(size));
    FileSource source(folder.Path() / "f");
    std::filesystem::resize_file(folder.Path() / "f", size - 1);
    std::string part(size, '?');
    EXPECT_THROW(source.Read(0, std::as_writable_bytes(std::span(part))), RunTimeError);
}

TEST(FileSource, RefusesWhatIsNoPlainFile)
{
    const TestFolder folder;
    std::filesystem::create_symlink(folder.Path() / "gone", folder.Path() / "link");
    EXPECT_THROW(FileSource(folder.Path() / "missing"), RunTimeError);
    EXPECT_THROW(FileSource(folder.Path() / "link"), RunTimeError);
    EXPECT_THROW(FileSource{folder.Path()}, RunTimeError);
    EXPECT_THROW(FileSource(""), RunTimeError);
}

TEST(FileSource, TellsWhenTheDeviceFails)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "f", "0123456789");
    EXPECT_TRUE(HoldsInChild([&folder] {
        FileSource source(folder.Path() / "f");
        std::array<std::byte, 2> bytes{};
        source.Read(4, bytes);
        if (!RefuseCall(SYS_pread64, EIO))
            return false;
        try {
            source.Read(1, bytes);
            return false;
        } catch (const RunTimeError&) {
            return true;
        }
    }));
}

TEST(FileSource, TellsWhenTheFileGrewShorter)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "f", Letters(20'000));
    FileSource source(folder.Path() / "f");
    std::filesystem::resize_file(folder.Path() / "f", 10);
    std::string part(50, '?');
    EXPECT_THROW(source.Read(100, std::as_writable_bytes(std::span(part))), RunTimeError);
}

TEST(MemorySource, StopsAtItsEnd)
{
    const std::string letters = Letters(10);
    MemorySource source(std::as_bytes(std::span(letters)));
    std::string part(4, '?');
    source.Read(6, std::as_writable_bytes(std::span(part)));
    EXPECT_EQ(part, letters.substr(6));
    EXPECT_THROW(source.Read(7, std::as_writable_bytes(std::span(part))), RunTimeError);
    EXPECT_THROW(source.Read(~std::uint64_t{0}, std::as_writable_bytes(std::span(part))), RunTimeError);
}

TEST(ByteCursor, ReadsSmallAndLargePiecesInTurn)
{
    const std::string letters = Letters(50'000);
    MemorySource source(std::as_bytes(std::span(letters)));
    ByteCursor cursor(source, 0, source.Size());
    std::string all;
    for (const std::size_t count : {3U, 9'000U, 8'191U, 1U, 8'192U, 0U, 20'000U, 4'613U})
        all += Take(cursor, count);
    EXPECT_EQ(all, letters);
    EXPECT_EQ(cursor.Left(), 0U);
    EXPECT_THROW(Take(cursor, 1), RunTimeError);
}

TEST(ByteCursor, ReadsNumbersInLittleEndianOrder)
{
    const std::string bytes("\x01\x02\x03\x84\xFF", 5);
    MemorySource source(std::as_bytes(std::span(bytes)));
    ByteCursor cursor(source, 0, source.Size());
    EXPECT_EQ(cursor.ReadInt32(), static_cast<std::int32_t>(0x84030201));
    EXPECT_THROW(static_cast<void>(cursor.ReadInt32()), RunTimeError);
    EXPECT_EQ(cursor.Left(), 1U); // the failure moved nothing
}

TEST(ByteCursor, KeepsWithinThePartThatItWasGiven)
{
    const std::string letters = Letters(100);
    MemorySource source(std::as_bytes(std::span(letters)));
    ByteCursor cursor(source, 10, 20);
    EXPECT_EQ(Take(cursor, 10), letters.substr(10, 10));
    EXPECT_THROW(Take(cursor, 1), RunTimeError);
    EXPECT_THROW(cursor.MoveTo(9), RunTimeError);
    EXPECT_THROW(cursor.MoveTo(21), RunTimeError);
    cursor.MoveTo(12);
    EXPECT_EQ(Take(cursor, 1), letters.substr(12, 1));
}

TEST(ByteCursor, ClampsAPartThatReachesBeyondTheSource)
{
    const std::string letters = Letters(100);
    MemorySource source(std::as_bytes(std::span(letters)));
    EXPECT_EQ(ByteCursor(source, 90, 1'000).Left(), 10U);
    EXPECT_EQ(ByteCursor(source, 200, 300).Left(), 0U);
    EXPECT_EQ(ByteCursor(source, 50, 40).Left(), 0U);
}

TEST(ByteCursor, SkipsAndNarrowsOnlyWithinItsEnd)
{
    const std::string letters = Letters(100);
    MemorySource source(std::as_bytes(std::span(letters)));
    ByteCursor cursor(source, 0, 100);
    cursor.MoveTo(40);
    EXPECT_THROW(cursor.Require(61), RunTimeError);
    EXPECT_THROW(cursor.Narrow(39), RunTimeError);
    EXPECT_THROW(cursor.Narrow(101), RunTimeError);
    cursor.Narrow(50);
    EXPECT_EQ(Take(cursor, 10), letters.substr(40, 10));
    EXPECT_THROW(Take(cursor, 1), RunTimeError);
}

} // namespace
} // namespace sprout
