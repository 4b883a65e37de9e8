// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>

#include "core/FolderOrder.h"

namespace sprout {

/// Most originals in a folder that are protected.
inline constexpr std::int32_t kMostProtected = 1000;

/// TqBeats.ini in `UserBeats`: the order of the beats and the names of the originals. A value: it is read once, and
/// written once with `Write`.
class BeatIndex {
public:
    [[nodiscard]] static BeatIndex Read();

    /// Makes all given beats originals, unless this was done before; true if it changed the index.
    bool WriteProtectedList(std::span<const std::string> names);

    /// Keys (`NameKey`) of the first 1000 originals.
    [[nodiscard]] std::unordered_set<std::string> ReadProtectedList() const;

    /// The place of a beat, in any letter case; `kNoPlace` if it has none.
    [[nodiscard]] std::int32_t Place(std::string_view name) const { return order.Place(name); }

    /// Gives the names the places 1, 2, ..., like `FolderOrder::SetOrder`.
    void SetOrder(std::span<const std::string> names) { order.SetOrder(names); }

    /// Keeps the rest of the file. Ignores failures, for example in a read-only folder.
    void Write() const { order.Write(); }

private:
    FolderOrder order;
};

} // namespace sprout
