// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "core/IniFile.h"

namespace sprout {

/// Place of a name that is not in the order: after all others.
inline constexpr std::int32_t kNoPlace = 1'000'000;

/// The user's order of the tunes or beats in a folder: an ini file with the section `SortOrder`, one name and its place
/// per line. A value: it is read once, and written once with `Write`.
class FolderOrder {
public:
    /// The order in the file; empty if the file cannot be read.
    [[nodiscard]] static FolderOrder Read(const std::filesystem::path& file);

    /// The place of a name, in any letter case; `kNoPlace` if it has none.
    [[nodiscard]] std::int32_t Place(std::string_view name) const;

    /// Gives the names the places 1, 2, ...; other names keep theirs. The place of a name that cannot be a key, such as
    /// a blank one, stays free.
    void SetOrder(std::span<const std::string> names);

    /// The whole file; the order is one of its sections.
    [[nodiscard]] IniFile& Ini() { return ini; }
    [[nodiscard]] const IniFile& Ini() const { return ini; }

    /// Writes the order back and keeps the rest of the file. Ignores failures, for example in a read-only folder.
    void Write() const;

private:
    std::filesystem::path path;
    IniFile ini;
};

} // namespace sprout
