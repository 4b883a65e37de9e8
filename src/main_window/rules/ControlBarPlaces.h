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

/// Whether the song can be mailed. The tools close up where `BarTool::Email` is missing.
enum class EmailTool { Shown, Hidden };

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
    std::array<BarPlace, kBarTools> tools; ///< squares, by `BarTool`; empty: hidden
    BarPlace song;                         ///< the song's title and its author
    bool songInOneLine = false;            ///< the author stands behind the title, else below it
    BarPlace tempo;                        ///< as low as one line, or with room for labels below the slot
};

/// Lays the control bar out in a width: one row where title and tempo find room between the tools, if need be a short
/// one; else two, of smaller tools in the narrowest windows. Tools of one group stand 6 px apart, groups 12 px.
[[nodiscard]] ControlBarPlaces PlaceControlBar(std::int32_t width, EmailTool email = EmailTool::Shown);

/// Widths that the parts of the song's line ask for, each caption with the gap behind it.
struct SongLineNeeds {
    std::int32_t titleCaption = 0;
    std::int32_t title = 0;
    std::int32_t authorCaption = 0;
    std::int32_t author = 0;
};

/// Where the parts of the song's line stand, from the line's left edge.
struct SongLine {
    bool hasCaption = false;       ///< the title's; it stands at the left edge
    bool hasAuthorCaption = false; ///< before the author
    std::int32_t titleLeft = 0;
    std::int32_t titleWidth = 0;
    std::int32_t authorCaptionLeft = 0;
    std::int32_t authorLeft = 0;
    std::int32_t authorWidth = 0; ///< all that is left behind the title
};

/// Fits title and author into one line. Where both have no room, the title is cut first and then the author; a short
/// line goes without the title's caption, the shortest without the author's too, and both names share what it has.
[[nodiscard]] SongLine FitSongLine(const SongLineNeeds& needs, std::int32_t room);

} // namespace sprout
