// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

#include "base/ByteCursor.h"
#include "base/Longs.h"
#include "core/Song.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

// The forms of the tune file, each in its own source file; `TunOpnSavClass` chooses between them.

/// Fills an empty tune from a file of the current form. path: the tune's path, for its name, stamp and cache. After a
/// failure `tune` has what was read so far.
[[nodiscard]] std::optional<ReadFailure> Load_Tune_V20(Tune& tune, ByteSource& source,
                                                       const std::filesystem::path& path, TuneLoad mode);

/// Fills an empty tune from a file of the old form. Every mode except `TuneLoad::All` reads only what a list needs.
/// Throws `RunTimeError` if a number is out of range.
void Load_Tune_V00(Tune& tune, const std::filesystem::path& path, TuneLoad mode);

/// The array of a tune in the current form.
[[nodiscard]] LongsWriter Write_Tune_Data(const Tune& tune);

/// Writes the rendered sound beside the tune file saved at `path`. Throws `RunTimeError`.
void WriteTuneCache(const Tune& tune, const std::filesystem::path& path);

/// Takes the rendered sound from the cache file beside the tune file at `path`, if it belongs to a file written at
/// `tune.DateStamp`. A damaged cache is ignored.
void ReadTuneCache(Tune& tune, const std::filesystem::path& path);

} // namespace sprout
