// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/Song.h"
#include "tune_window/rules/KeyMap.h"

namespace sprout {

// The surface `TunFramPic`, in logical pixels from its top left: a row of step columns, numbered from 1 as in the tune.

inline constexpr std::int32_t kStepPitch = 35;    ///< from column to column
inline constexpr std::int32_t kStepHitWidth = 30; ///< the rest is a gap, which hits nothing
inline constexpr std::int32_t kStepsLeftAtStart = 8;

inline constexpr std::int32_t kStripTop = 19;
inline constexpr std::int32_t kStripEndLeft = 5; ///< of the left end, even when the steps are scrolled
inline constexpr std::int32_t kLampTop = 24;
inline constexpr std::int32_t kNumberTop = 40;
inline constexpr std::int32_t kChangeAllTop = 75;
inline constexpr std::int32_t kIconTop = 79;
inline constexpr std::int32_t kPressedIconTop = 80;
inline constexpr std::int32_t kUpperOctaveTop = 141;
inline constexpr std::int32_t kLowerOctaveTop = 213;
inline constexpr std::int32_t kBottomOfZones = 300;

/// Left edge of a step's column. stepsLeft: that of step 1.
[[nodiscard]] std::int32_t StepLeft(std::int32_t step, std::int32_t stepsLeft);

/// The step at an x; 0 for none, e.g. in the gap between two columns.
[[nodiscard]] std::int32_t StepAt(std::int32_t x, std::int32_t stepsLeft, std::int32_t stepCount);

/// The rows of a column that react to the mouse.
enum class StepZone { None, Lamp, Icon, UpperOctave, LowerOctave, Strip };

[[nodiscard]] StepZone StepZoneAt(std::int32_t y);

[[nodiscard]] inline bool IsOctave(StepZone zone)
{
    return zone == StepZone::UpperOctave || zone == StepZone::LowerOctave;
}

/// Semitones of the key at a point of a column; nothing outside the octaves and between keys.
[[nodiscard]] std::optional<std::int32_t> PitchAt(std::int32_t step, std::int32_t stepsLeft, std::int32_t x,
                                                  std::int32_t y);

/// The raised frame around an icon.
struct FrameEdges {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend bool operator==(const FrameEdges&, const FrameEdges&) = default;
};

/// The pixels that the frame's lines cover.
[[nodiscard]] FrameEdges IconFrame(std::int32_t step, std::int32_t stepsLeft);

/// Sizes of the pictures that form a bar, and the width of its middle at a `Duration` of 100.
inline constexpr std::int32_t kDurationLeftWidth = 4;
inline constexpr std::int32_t kDurationRightWidth = 8;
inline constexpr std::int32_t kBarHeight = 8;
inline constexpr std::int32_t kBarInset = 3; ///< of the bar in its column
inline constexpr double kMiddleOfFullDuration = 20;

/// The position of an on-step's bar, which shows its pitch and length.
struct DurationBar {
    std::int32_t handleX = 0; ///< where the right cap is
    std::int32_t handleY = 0;
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
    friend bool operator==(const DurationBar&, const DurationBar&) = default;
};

/// Width of a bar's middle; 0 or below means none.
[[nodiscard]] std::int32_t BarMiddle(std::int32_t duration);

[[nodiscard]] DurationBar BarOfStep(std::int32_t step, std::int32_t stepsLeft, std::int32_t pitchShift,
                                    std::int32_t duration);

/// The first step whose bar contains a point, 0 for none. bars: from 1; all values of off-steps are 0.
[[nodiscard]] std::int32_t BarAt(std::span<const DurationBar> bars, const Tune& tune, std::int32_t x, std::int32_t y);

/// What the narrow places of the strip below the keyboard set.
enum class StripPlace { None, Volume, Duration };

[[nodiscard]] StripPlace StripPlaceAt(std::int32_t step, std::int32_t stepsLeft, std::int32_t x);

/// The percentage at a height of the strip, 0 to 200; values near 0, 100 and 200 snap to them.
[[nodiscard]] std::int32_t StripValue(std::int32_t y);

/// Left edge of step 1 when the scroll bar is at `scrollValue`.
[[nodiscard]] inline std::int32_t StepsLeftAt(std::int32_t scrollValue)
{
    return kStepsLeftAtStart - scrollValue;
}

/// The range of `TunFramHScroll`, which starts at 1.
struct StepScroll {
    std::int32_t maximum = 10;
    std::int32_t largeChange = 1;
    friend bool operator==(const StepScroll&, const StepScroll&) = default;
};

[[nodiscard]] StepScroll StepScrollRange(std::int32_t stepCount, std::int32_t surfaceWidth);

/// The scroll bar value that shows a whole step, as close to `value` as possible.
[[nodiscard]] std::int32_t ScrollToStep(std::int32_t step, std::int32_t value, std::int32_t surfaceWidth);

/// Left edge of `ChangeAllBtn`, after the last step.
[[nodiscard]] std::int32_t ChangeAllLeft(std::int32_t stepCount, std::int32_t stepsLeft);

} // namespace sprout
