// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "demo/rules/DemoFile.h"
#include "demo/rules/DemoRectangle.h"

namespace sprout {

/// What happens to `DemoTimer`.
enum class DemoTimerChange { Stays, Off, On };

/// What the window does to show a slide, in this order.
struct DemoOrders {
    bool StopPlayer = false;
    bool PlaySound = false; ///< the sound with the picture's name, if there is one
    DemoTimerChange Timer = DemoTimerChange::Stays;
    std::int32_t Interval = 0; ///< of a timer that is on, in milliseconds
    friend bool operator==(const DemoOrders&, const DemoOrders&) = default;
};

/// The course of a demo: which slide is shown, and what mouse, keys and timer do to it.
///
/// Where an event returns true, the window shows the slide `SlideIndex()`.
class DemoShow {
public:
    /// A demo without slides.
    DemoShow() = default;
    /// A demo before its first slide.
    explicit DemoShow(std::vector<DemoSlide> demoSlides) : slides(std::move(demoSlides)) {}

    /// Shows a picture; returns its size in pixels, or nothing if it cannot be loaded.
    using LoadPicture = std::function<std::optional<BoxSize>(const DemoSlide& slide)>;

    /// Shows a slide, counted from 0; one behind the last is the end. If its picture cannot be loaded, the one before
    /// stays, and a click anywhere goes on.
    [[nodiscard]] DemoOrders ShowDemoSlide(std::int32_t index, const LoadPicture& load);

    [[nodiscard]] bool Press(DemoPoint point);
    [[nodiscard]] bool Move(DemoPoint point);
    void Release();
    /// Does what a click in the active rectangle does, or the press and the move of a drag.
    [[nodiscard]] bool PressKey();
    /// A tick of `DemoTimer`, which stays on only if `TimerStaysOn`.
    [[nodiscard]] bool Tick();
    [[nodiscard]] bool TimerStaysOn() const { return slide.Action == DemoAction::Wait; }
    /// Goes to the slide before the one that is shown, or behind it, and begins it anew.
    [[nodiscard]] bool StepBack();
    [[nodiscard]] bool StepForward();

    [[nodiscard]] std::int32_t SlideIndex() const { return slideIndex; }
    [[nodiscard]] std::int32_t ImageCount() const { return static_cast<std::int32_t>(slides.size()); }
    /// The slide whose fields count.
    [[nodiscard]] const DemoSlide& Slide() const { return slide; }
    /// The slide behind the one that is shown; null if there is none.
    [[nodiscard]] const DemoSlide* NextSlide() const;
    [[nodiscard]] std::int32_t DragSteps() const { return dragSteps; }
    [[nodiscard]] bool DragStarted() const { return dragStarted; }
    /// True behind the last slide.
    [[nodiscard]] bool IsOver() const { return isOver; }
    /// True from the last slide on: the link to the other demos is shown.
    [[nodiscard]] bool IsLinkShown() const { return isLinkShown; }
    /// True if a click or a drag in the active rectangle is waited for.
    [[nodiscard]] bool IsRectangleAwaited() const;
    /// True if a click anywhere goes on: nothing else would.
    [[nodiscard]] bool GoesOnAnywhere() const;

private:
    [[nodiscard]] DemoOrders End();
    [[nodiscard]] DemoOrders Begin(std::int32_t index);
    bool GoOn();
    bool StepTo(std::int32_t index);

    std::vector<DemoSlide> slides;
    DemoSlide slide;
    std::optional<BoxSize> picture; ///< of the slide; nothing if it could not be loaded
    std::int32_t slideIndex = 0;
    std::int32_t dragSteps = 1;
    bool dragStarted = false;
    bool isOver = false;
    bool isLinkShown = false;
};

} // namespace sprout
