// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "ui/rules/Box.h"

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

/// Whether the song can be mailed. Without `BarTool::Email` the other tools close the gap.
enum class EmailTool { Shown, Hidden };

/// The positions of the control bar's parts.
struct ControlBarPlaces {
    std::int32_t height = 0;
    std::array<Box, kBarTools> tools; ///< squares, by `BarTool`; empty: hidden
    Box song;                         ///< the song's title and its author
    bool songInOneLine = false;       ///< the author is to the right of the title, else below it
    Box tempo;                        ///< one line high, or with room for labels below the slot
};

/// Lays out the control bar for a width: one row if title and tempo fit between the tools, if necessary shortened; else
/// two, with smaller tools in the narrowest windows. Tools in a group are 6 px apart, groups 12 px.
[[nodiscard]] ControlBarPlaces PlaceControlBar(std::int32_t width, EmailTool email = EmailTool::Shown);

/// Widths that the parts of the song's line need; each caption includes the gap after it.
struct SongLineNeeds {
    std::int32_t titleCaption = 0;
    std::int32_t title = 0;
    std::int32_t authorCaption = 0;
    std::int32_t author = 0;
};

/// Positions of the parts of the song's line, from the line's left edge.
struct SongLine {
    bool hasCaption = false;       ///< the title's caption; it is at the left edge
    bool hasAuthorCaption = false; ///< before the author
    std::int32_t titleLeft = 0;
    std::int32_t titleWidth = 0;
    std::int32_t authorCaptionLeft = 0;
    std::int32_t authorLeft = 0;
    std::int32_t authorWidth = 0; ///< everything left after the title
};

/// Fits title and author into one line. If there is not enough room for both, the title is cut first, then the author.
/// A short line drops the title's caption, the shortest also the author's; both names then share its width.
[[nodiscard]] SongLine FitSongLine(const SongLineNeeds& needs, std::int32_t room);

} // namespace sprout
