// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "base/WaveData.h"

namespace sprout {

/// How the export of a song ended.
enum class ExportEnd {
    Written,    ///< the target is the new file, whole
    Failed,     ///< the target is what it was
    NotReplaced ///< the same, and the reason is that the old file cannot be replaced
};

/// The end of an export, and the message that explains a failure; blank where there is none.
struct ExportOutcome {
    ExportEnd End = ExportEnd::Failed;
    std::string Line1{};
    std::string Line2{};
};

/// Replaces `path` by a WAV file of `wave`, or makes it. Like `SaveWaveFile`, and tells failures as that does, but the
/// old file stands until the new one is whole. Throws `WorkStopped`.
[[nodiscard]] ExportOutcome WriteWavFile(const WaveData& wave, const std::filesystem::path& path);

/// Replaces `path` by a WMA file of 64 kbit/s with the shared song's tags, or makes it. A wave without samples makes no
/// file. wave: 16 bits, stereo, 44,100 Hz. Ten seconds stand in memory at a time. Throws `WorkStopped`.
[[nodiscard]] ExportOutcome WriteWmaFile(const WaveData& wave, const std::filesystem::path& path);

} // namespace sprout
