// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/ByteCursor.h"
#include "base/Longs.h"
#include "core/Song.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

// The tune file's forms, each in a file of its own; `TunOpnSavClass` chooses between them.

/// Fills an empty tune from a file of the current form. path: of the tune, for its name, stamp and cache. Failures are
/// told in a message; `tune` then holds what was read so far, and the result is false.
bool Load_Tune_V20(Tune& tune, ByteSource& source, const std::filesystem::path& path, TuneLoad mode);

/// Fills an empty tune from a file of the old form, of which every mode but `TuneLoad::All` reads what a list needs.
/// Throws `RunTimeError` for a number beyond all numbers.
void Load_Tune_V00(Tune& tune, const std::filesystem::path& path, TuneLoad mode);

/// The array of a tune in the current form.
[[nodiscard]] LongsWriter Write_Tune_Data(const Tune& tune);

/// Writes the rendered sound beside the saved tune file at `path`. Throws `RunTimeError`.
void WriteTuneCache(const Tune& tune, const std::filesystem::path& path);

/// Takes the rendered sound from the cache file beside the tune file at `path`, if it is that of a file written at
/// `tune.DateStamp`. A damaged cache counts as none.
void ReadTuneCache(Tune& tune, const std::filesystem::path& path);

} // namespace sprout
