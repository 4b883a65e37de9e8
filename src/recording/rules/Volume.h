// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "service/SoundCapture.h"

namespace sprout {

/// Percent of a recording volume of 0 to 65535, which is 100 %; what is beyond is held to 0 and 100.
[[nodiscard]] std::int32_t VolumePercent(std::int32_t value);

/// The volume that stands for a percentage.
[[nodiscard]] std::int32_t VolumeOfPercent(std::int32_t percent);

/// A line of the list of sources.
struct SourceLine {
    std::string Name;
    std::int32_t Index = 0; ///< in the machine's list
    friend bool operator==(const SourceLine&, const SourceLine&) = default;
};

/// What the list of sources shows.
struct SourceLines {
    std::vector<SourceLine> Lines; ///< none where the machine's sources cannot be told
    std::int32_t Selected = -1;    ///< line that is selected; -1 where its source has no line
    std::int32_t SourceIndex = -1; ///< of the selected source in the machine's list
    std::int32_t Volume = 0;       ///< of the selected source
};

/// The sources that have a name, at most 50 and as many as have their whole names in 3200 bytes. No lines where there
/// is no list, no selected source or no name.
[[nodiscard]] SourceLines LinesOfSources(const std::optional<SoundSources>& sources);

} // namespace sprout
