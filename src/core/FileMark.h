// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

namespace sprout {

/// A file as it stood at a moment. An empty path stands for no file.
struct FileMark {
    std::filesystem::path Path;
    std::uintmax_t Size = 0; ///< bytes
    std::filesystem::file_time_type Written{};
    friend bool operator==(const FileMark&, const FileMark&) = default;
};

/// The mark of a plain file as it stands now; no file where there is none or where it cannot be asked. Never throws.
[[nodiscard]] FileMark MarkOf(const std::filesystem::path& path);

} // namespace sprout
