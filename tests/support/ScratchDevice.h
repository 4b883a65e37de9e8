// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>

namespace sprout {

/// Makes a device for the test at `path` that swallows what is written, like the machine's /dev/null, which no test may
/// touch. If only root may make devices it is a pipe.
inline void MakeScratchDevice(const std::filesystem::path& path)
{
    constexpr unsigned kMemoryDevices = 1;
    constexpr unsigned kNull = 3;
    const bool isMade =
        mknod(path.c_str(), S_IFCHR | 0600, makedev(kMemoryDevices, kNull)) == 0 || mkfifo(path.c_str(), 0600) == 0;
    ASSERT_TRUE(isMade);
}

/// Returns true while that device exists.
[[nodiscard]] inline bool IsScratchDevice(const std::filesystem::path& path)
{
    const std::filesystem::file_type type = std::filesystem::symlink_status(path).type();
    return type == std::filesystem::file_type::character || type == std::filesystem::file_type::fifo;
}

} // namespace sprout
