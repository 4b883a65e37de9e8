// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

namespace sprout {

/// The state of a file at one moment. An empty path means no file.
struct FileMark {
    std::filesystem::path Path;
    std::uintmax_t Size = 0; ///< bytes
    std::filesystem::file_time_type Written{};
    friend bool operator==(const FileMark&, const FileMark&) = default;
};

/// The current mark of a plain file; no file if it does not exist or cannot be examined. Never throws.
[[nodiscard]] FileMark MarkOf(const std::filesystem::path& path);

} // namespace sprout
