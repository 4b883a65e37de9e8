// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/WaveData.h"
#include "base/Words.h"

namespace sprout {

/// How the export of a song ended.
enum class ExportEnd {
    Written,    ///< the target is the complete new file
    Failed,     ///< the target is unchanged
    NotReplaced ///< the same, because the old file cannot be replaced
};

/// How an export ended, and the message that explains a failure; blank if there is none.
struct ExportOutcome {
    ExportEnd End = ExportEnd::Failed;
    Words Line1{};
    Words Line2{};
};

/// Creates or replaces the WAV file `path` with `wave`. Like `SaveWaveFile`, and shows failures in the same way, but
/// the old file stays until the new one is complete. Throws `WorkStopped`.
[[nodiscard]] ExportOutcome WriteWavFile(const WaveData& wave, const std::filesystem::path& path);

/// Creates or replaces the WMA file `path`, at 64 kbit/s with the shared song's tags. A wave without samples creates no
/// file. wave: 16 bits, stereo, 44,100 Hz. Holds ten seconds in memory at a time. Throws `WorkStopped`.
[[nodiscard]] ExportOutcome WriteWmaFile(const WaveData& wave, const std::filesystem::path& path);

} // namespace sprout
