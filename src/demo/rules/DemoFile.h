// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/IniFile.h"
#include "demo/rules/DemoRectangle.h"

namespace sprout {

/// How a slide is left: by a click or a drag in its active rectangle, or by itself.
enum class DemoAction { Click, Drag, Wait };

/// A slide of a demo, as its line in `TqDemoImages.ini` has it.
struct DemoSlide {
    std::string Picture; ///< file name in `DemoImages`; "0" if the line is missing
    DemoRectangle Rectangle;
    DemoAction Action = DemoAction::Wait;
    double Seconds = 0;
    std::string Text; ///< what a screen reader says; may be empty
    friend bool operator==(const DemoSlide&, const DemoSlide&) = default;
};

/// A demo as a menu offers it.
struct DemoName {
    std::int32_t Number = 0; ///< as in the file, from 1
    std::string Name;
    friend bool operator==(const DemoName&, const DemoName&) = default;
};

/// The demos that a file names, in its order; those without a name are left out. The number that it promises is
/// believed only as far as it has keys.
[[nodiscard]] std::vector<DemoName> ReadDemoNames(const IniFile& demos);

/// The number of the first demo whose name equals `name` in lower case; nothing if there is none.
[[nodiscard]] std::optional<std::int32_t> FindDemo(std::span<const DemoName> names, std::string_view name);

/// The slides of a demo. Their promised number is believed only as far as there are keys. A key that is missing before
/// the last one gives a slide whose picture is called "0".
///
/// texts: the sentences for screen readers, under the same keys; may be empty.
[[nodiscard]] std::vector<DemoSlide> ReadDemoSlides(const IniFile& demos, const IniFile& texts, std::int32_t number);

/// A slide's time as the interval of a timer, in milliseconds; 0 if the timer must not run.
[[nodiscard]] std::int32_t DemoInterval(double seconds);

} // namespace sprout
