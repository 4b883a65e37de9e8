// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "core/Song.h"

namespace sprout {

/// What a tune is saved under.
struct TuneNames {
    std::string Name;
    std::string CreatedBy;
    friend bool operator==(const TuneNames&, const TuneNames&) = default;
};

/// What the boxes hold when a tune is to be saved: nothing for an original, so that a changed one cannot pass as the
/// maker's, unless originals may be edited.
[[nodiscard]] TuneNames NamesToOffer(const Tune& tune, bool allowEditOriginal);

/// The names without blanks at their ends.
[[nodiscard]] TuneNames Trimmed(const TuneNames& names);

/// What is said to one who left out a name; empty for names that are there.
[[nodiscard]] std::string_view WhatIsMissing(const TuneNames& names);

/// True where the file of that name holds a tune of the maker's. Overwrites `TuneClipboard`.
[[nodiscard]] bool IsNameOfOriginal(std::string_view name);

/// Saves a tune under its `Name`. A file whose name differs in letter case only is replaced by it. Throws
/// `RunTimeError`; what was there before stands then.
void SaveTuneFile(const Tune& tune);

/// Deletes the files of a tune. What cannot be deleted stays.
void DeleteTuneFiles(std::string_view name);

} // namespace sprout
