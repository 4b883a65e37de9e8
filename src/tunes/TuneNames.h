// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/Words.h"
#include "core/Song.h"

namespace sprout {

/// The names that a tune is saved under.
struct TuneNames {
    std::string Name;
    std::string CreatedBy;
    friend bool operator==(const TuneNames&, const TuneNames&) = default;
};

/// Initial content of the boxes when a tune is saved. Empty for an original, unless originals may be edited, so that a
/// changed one cannot pass as the maker's.
[[nodiscard]] TuneNames NamesToOffer(const Tune& tune, bool allowEditOriginal);

/// The names without leading and trailing blanks.
[[nodiscard]] TuneNames Trimmed(const TuneNames& names);

/// What to tell a user who left out a name; empty if nothing is missing.
[[nodiscard]] LaterWords WhatIsMissing(const TuneNames& names);

/// True if the file with that name is one of the maker's tunes. Overwrites `TuneClipboard`.
[[nodiscard]] bool IsNameOfOriginal(std::string_view name);

/// Saves a tune under its `Name`. Replaces a file whose name differs only in letter case. Throws `RunTimeError`; the
/// old file then stays.
void SaveTuneFile(const Tune& tune);

/// Deletes the files of a tune, as far as possible.
void DeleteTuneFiles(std::string_view name);

} // namespace sprout
