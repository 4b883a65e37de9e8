// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

// Edits of the tune in the editor. Steps are numbered from 1; each edit clears the validity flags of what it makes
// stale and says whether it changed something. Whoever asks tells the window that its tune was changed.

inline constexpr std::int32_t kFewestSteps = 2;
inline constexpr std::int32_t kMostSteps = 64;

/// Silence before a tune that an edit plays, in seconds.
inline constexpr float kEditLeadIn = 0.75F;

/// Switches a step on or off. What is neither 0 nor 1 counts as on.
void ToggleStep(Tune& tune, std::int32_t step);

/// What a click on a key of an on-step asks for.
struct KeyClick {
    bool changed = false; ///< the pitch
    bool plays = false;
    friend bool operator==(const KeyClick&, const KeyClick&) = default;
};

/// A click on a key. pitch: the key's; nothing where no key was hit. A step with a pitch beyond 64, as only a file can
/// hold, is left alone altogether.
KeyClick ClickKey(Tune& tune, std::int32_t step, std::optional<std::int32_t> pitch);

/// Moves a step's pitch along the keyboard, from the key that shows it.
KeyClick MovePitch(Tune& tune, std::int32_t step, std::int32_t keys);

/// A click on a place of the strip. Returns whether the value changed.
bool ClickStrip(Tune& tune, std::int32_t step, StripPlace place, std::int32_t value);

/// Draws the end of a step's bar by `pixels`. What was rendered stays valid: while dragging, the step sounds as it was
/// rendered last. Returns whether the duration changed.
bool DragDuration(TuneStep& step, double pixels);

/// Gives a step the named beat, and a copy of it to every later step without one.
void ChangeStepBeat(Tune& tune, std::int32_t step, std::string_view name);

/// Gives all steps, on or off, the named beat. The tune has at least one step.
void ChangeAllBeats(Tune& tune, std::string_view name);

/// The number of steps that was typed; nothing for what is none that the editor takes.
[[nodiscard]] std::optional<std::int32_t> TypedStepCount(std::string_view answer);

/// Makes the cycle `count` steps long: a longer one repeats what is there, a shorter one loses its end.
void ChangeStepCount(Tune& tune, std::int32_t count);

} // namespace sprout
