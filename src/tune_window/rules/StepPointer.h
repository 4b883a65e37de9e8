// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

enum class StepCursor { Normal, PianoCursorImg };

/// What the editor's surface shows for the pointer.
struct StepPointer {
    StepCursor cursor = StepCursor::Normal;
    std::string_view hint;
    std::string_view toolTip;
    std::string beat; ///< in place of a tool tip: the beat whose name it shows
    friend bool operator==(const StepPointer&, const StepPointer&) = default;
};

/// Looks for a pointer that moved to a point.
[[nodiscard]] StepPointer PointerOverSteps(const Tune& tune, std::int32_t stepsLeft, std::int32_t x, std::int32_t y);

/// A step in words: "Step 3, on, Piano High, pitch 4". beat: its beat's name for people, empty where it has none.
[[nodiscard]] std::string StepInWords(const TuneStep& step, std::int32_t number, std::string_view beat);

} // namespace sprout
