// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "base/Words.h"
#include "core/Song.h"

namespace sprout {

/// The items of a step's menu, by their positions in it.
enum class StepMoveMnu : std::int32_t {
    MoveAllToLeft = 0,
    MoveAllToRight = 1,
    MoveStepToLeft = 3,
    MoveStepToRight = 4,
    InsertStep = 6,
    DeleteStep = 7,
};

/// A row of the menu; a separator has no caption.
struct StepMenuRow {
    StepMoveMnu item{};
    LaterWords caption;
};

inline constexpr std::array kStepMenu{
    StepMenuRow{StepMoveMnu::MoveAllToLeft, Words::Later("Move all to left")},
    StepMenuRow{StepMoveMnu::MoveAllToRight, Words::Later("Move all to right")},
    StepMenuRow{},
    StepMenuRow{StepMoveMnu::MoveStepToLeft, Words::Later("Move Step to left")},
    StepMenuRow{StepMoveMnu::MoveStepToRight, Words::Later("Move Step to right")},
    StepMenuRow{},
    StepMenuRow{StepMoveMnu::InsertStep, Words::Later("Insert Step")},
    StepMenuRow{StepMoveMnu::DeleteStep, Words::Later("Delete Step")},
};

/// Only a step that is on can be moved on its own.
[[nodiscard]] bool StepMenuItemEnabled(StepMoveMnu item, const TuneStep& step);

/// Why an item was refused; all blank if it was carried out.
struct StepMenuRefusal {
    LaterWords line1;
    LaterWords line2;
    LaterWords title;
    [[nodiscard]] bool IsRefusal() const { return !line1.IsEmpty(); }
};

/// Applies an item to a step, 1 to `StepCount`. Steps move as whole records, so their rendered sound moves with them;
/// the tune's own sound becomes stale. A refused item changes nothing.
StepMenuRefusal ApplyStepMenu(Tune& tune, std::int32_t step, StepMoveMnu item);

} // namespace sprout
