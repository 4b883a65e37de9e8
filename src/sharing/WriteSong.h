// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string_view>

#include "base/Words.h"
#include "songs/SongExport.h"

namespace sprout {

using SongWriter = ExportOutcome (*)(const WaveData&, const std::filesystem::path&);

/// Mixes the shared song and lets `write` turn it into a file, as stoppable work. writing: the name of the second half.
/// Throws `WorkStopped`.
[[nodiscard]] ExportOutcome MixAndWrite(SongWriter write, const std::filesystem::path& file, const Words& writing);

} // namespace sprout
