// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/FileReading.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "support/TestFolder.h"

namespace sprout {
namespace {

TEST(FileReading, FindsTheSizeAndReadsAtAnyPlace)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "f", "abcdef");
    const std::optional<Descriptor> file = OpenForReading(folder.Path() / "f");
    ASSERT_TRUE(file);
    EXPECT_EQ(SizeOf(*file), 6U);
    std::string part(3, '?');
    EXPECT_TRUE(ReadAt(*file, 2, std::as_writable_bytes(std::span(part))));
    EXPECT_EQ(part, "cde");
    EXPECT_FALSE(ReadAt(*file, 4, std::as_writable_bytes(std::span(part))));
    EXPECT_TRUE(ReadAt(*file, 6, {}));
}

TEST(FileReading, TellsWhatCannotBeOpenedOrRead)
{
    const TestFolder folder;
    EXPECT_FALSE(OpenForReading(folder.Path() / "missing"));
    const std::optional<Descriptor> itself = OpenForReading(folder.Path());
    ASSERT_TRUE(itself);
    std::array<std::byte, 1> byte{};
    EXPECT_FALSE(ReadAt(*itself, 0, byte)); // a folder has no bytes
}

TEST(FileReading, APipeHasNoSize)
{
    const TestFolder folder;
    const std::filesystem::path pipe = folder.Path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), kOwnerOnly), 0);
    const Descriptor both(::open(pipe.c_str(), O_RDWR | O_CLOEXEC)); // an opening for reading alone would wait
    EXPECT_EQ(SizeOf(both), std::nullopt);
}

} // namespace
} // namespace sprout
