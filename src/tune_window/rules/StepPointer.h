// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Words.h"
#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

enum class StepCursor { Normal, PianoCursorImg };

/// What the editor's surface shows for the pointer.
struct StepPointer {
    StepCursor cursor = StepCursor::Normal;
    LaterWords hint;
    LaterWords toolTip;
    std::string beat; ///< instead of a tool tip: the beat whose name to show
    friend bool operator==(const StepPointer&, const StepPointer&) = default;
};

/// What to show after the pointer moved to a point.
[[nodiscard]] StepPointer PointerOverSteps(const Tune& tune, std::int32_t stepsLeft, std::int32_t x, std::int32_t y);

/// Describes a step: "Step 3, on, Piano High, pitch 4". beat: display name of its beat, empty if it has none.
[[nodiscard]] Words StepInWords(const TuneStep& step, std::int32_t number, std::string_view beat);

} // namespace sprout
