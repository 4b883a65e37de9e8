// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"
#include "tune_window/rules/StepMenu.h"

namespace sprout {

/// What the user asks of a step of the tune in the editor, by the mouse or the keyboard.
enum class StepAct {
    None,
    ToggleLamp,
    OpenMenu,
    ClickKey,   ///< with `pitch`
    ClickStrip, ///< with `part` and `amount`; also plays the step
    ChooseBeat,
    PlayStep,
    PlayBeat,
    MovePitch,  ///< by `amount` keys
    StretchBar, ///< by `amount` pixels
    UseMenu,    ///< carry out `item`
    WalkTo,     ///< focus the step
};

struct StepCommand {
    StepAct act = StepAct::None;
    std::int32_t step = 0;
    std::optional<std::int32_t> pitch = std::nullopt; ///< of the key; nothing between the keys
    StripPlace part = StripPlace::None;
    std::int32_t amount = 0; ///< percentage in the strip, keys or pixels
    StepMoveMnu item{};
    friend bool operator==(const StepCommand&, const StepCommand&) = default;
};

enum class StepButton { Left, Right, Other };

/// A point of the surface.
struct StepPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

/// What a press of a mouse button asks for. Only the lamp of an off-step reacts. stepsLeft: left edge of step 1.
[[nodiscard]] StepCommand CommandOfPress(const Tune& tune, std::int32_t stepsLeft, StepPoint place, StepButton button);

/// What a release asks for: an icon reacts to a button that went down and up on it. down: where a button went down
/// last; outside all icons if that was elsewhere.
[[nodiscard]] StepCommand CommandOfRelease(const Tune& tune, std::int32_t stepsLeft, StepPoint down, StepPoint up,
                                           StepButton button);

} // namespace sprout
