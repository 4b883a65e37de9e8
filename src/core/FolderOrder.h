// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "core/IniFile.h"

namespace sprout {

/// Place of a name that the order does not hold: behind all others.
inline constexpr std::int32_t kNoPlace = 1'000'000;

/// The order that the user gave to the tunes or beats of a folder: an ini file with the section `SortOrder`, a name and
/// its place a line. A value: it is read once, and written once with `Write`.
class FolderOrder {
public:
    /// The order in the file; none where it cannot be read.
    [[nodiscard]] static FolderOrder Read(const std::filesystem::path& file);

    /// The place of a name, in any letter case; `kNoPlace` where it has none.
    [[nodiscard]] std::int32_t Place(std::string_view name) const;

    /// Gives the names the places 1, 2, ...; other names keep theirs. The place of a name that no key can be,
    /// as a blank one, stays free.
    void SetOrder(std::span<const std::string> names);

    /// The whole file, of which the order is one section.
    [[nodiscard]] IniFile& Ini() { return ini; }
    [[nodiscard]] const IniFile& Ini() const { return ini; }

    /// Writes the order back, keeping whatever else the file holds. A failure is silent, as in a read-only folder.
    void Write() const;

private:
    std::filesystem::path path;
    IniFile ini;
};

} // namespace sprout
