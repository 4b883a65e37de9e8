// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

// Edits of the tune in the editor. Steps are numbered from 1; each edit says what became stale and reports whether it
// changed something. The caller tells the window that its tune was changed.

inline constexpr std::int32_t kFewestSteps = 2;
inline constexpr std::int32_t kMostSteps = 64;

/// Silence before a tune that is played after an edit or a choice, in seconds.
inline constexpr float kTuneLeadIn = 0.75F;

/// Switches a step on or off. Any value other than 0 and 1 counts as on.
void ToggleStep(Tune& tune, std::int32_t step);

/// What a click on a key of an on-step does.
struct KeyClick {
    bool changed = false; ///< whether the pitch changed
    bool plays = false;
    friend bool operator==(const KeyClick&, const KeyClick&) = default;
};

/// Handles a click on a key. pitch: the key's; nothing if no key was hit. A step with a pitch beyond 64, which only a
/// file can contain, is left unchanged.
KeyClick ClickKey(Tune& tune, std::int32_t step, std::optional<std::int32_t> pitch);

/// Moves a step's pitch along the keyboard, starting from the key that shows it.
KeyClick MovePitch(Tune& tune, std::int32_t step, std::int32_t keys);

/// Handles a click in a place of the strip. Returns whether the value changed.
bool ClickStrip(Tune& tune, std::int32_t step, StripPlace place, std::int32_t value);

/// Drags the end of a step's bar by `pixels`. What was rendered stays valid: during a drag the step sounds as it was
/// last rendered. Returns whether the duration changed.
bool DragDuration(TuneStep& step, double pixels);

/// Sets the beat of a step, and of every later step without one.
void ChangeStepBeat(Tune& tune, std::int32_t step, const Beat& beat);

/// Sets the beat of all steps, on or off.
void ChangeAllBeats(Tune& tune, const Beat& beat);

/// The typed number of steps; nothing if the editor does not accept it.
[[nodiscard]] std::optional<std::int32_t> TypedStepCount(std::string_view answer);

/// Makes the cycle `count` steps long: a longer one repeats the existing steps, a shorter one loses its end.
void ChangeStepCount(Tune& tune, std::int32_t count);

} // namespace sprout
