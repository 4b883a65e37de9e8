// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "service/CaptureRecords.h"

namespace sprout {

/// A recording volume of 0 to 65535 (100 %) as a percentage, clamped to 0 to 100.
[[nodiscard]] std::int32_t VolumePercent(std::int32_t value);

/// The volume for a percentage.
[[nodiscard]] std::int32_t VolumeOfPercent(std::int32_t percent);

/// A line of the list of sources.
struct SourceLine {
    std::string Name;
    std::int32_t Index = 0; ///< in the machine's list
    friend bool operator==(const SourceLine&, const SourceLine&) = default;
};

/// What the list of sources shows.
struct SourceLines {
    std::vector<SourceLine> Lines; ///< empty if the machine's sources are unknown
    std::int32_t Selected = -1;    ///< the selected line; -1 if its source has no line
    std::int32_t SourceIndex = -1; ///< of the selected source in the machine's list
    std::int32_t Volume = 0;       ///< of the selected source
};

/// The sources that have a name: at most 50, and only as many as fit with whole names into 3200 bytes. No lines if
/// there is no list, no selected source or no name.
[[nodiscard]] SourceLines LinesOfSources(const std::optional<SoundSources>& sources);

} // namespace sprout
