// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sprout {

/// The tool buttons of the control bar, in the order of the main window's button table.
enum class BarTool : std::size_t {
    PlayAll,
    PlayStop,
    Brush,
    Eraser,
    PlayTool,
    New,
    Open,
    Save,
    SongTitleChg,
    Email,
    Help,
    About,
    Demo
};
inline constexpr std::size_t kBarTools = 13;

/// A rectangle of the bar in logical pixels.
struct BarPlace {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(const BarPlace&, const BarPlace&) = default;
};

/// Where the parts of the control bar stand.
struct ControlBarPlaces {
    std::int32_t height = 0;
    std::array<BarPlace, kBarTools> tools; ///< squares, by `BarTool`
    BarPlace song;                         ///< the song's title and its author
    bool songInOneLine = false;            ///< the author stands behind the title, else below it
    BarPlace tempo;
};

/// Lays the control bar out in a width: one row where title and tempo find room between the tools, else two, of smaller
/// tools in the narrowest windows. Tools of one group stand 6 px apart, groups 12 px.
[[nodiscard]] ControlBarPlaces PlaceControlBar(std::int32_t width);

} // namespace sprout
