// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Words.h"
#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"

namespace sprout {

inline constexpr LaterWords kTimeBandHint =
    Words::Later("Main Song Track (all tracks mixed), use play tool and click on this to play song from there.");
inline constexpr LaterWords kTracksHint =
    Words::Later("Music tracks, use the paint brush and eraser to draw here. Or use play tool to play");

inline constexpr std::int32_t kCellCursorWidth = 3;
inline constexpr std::int32_t kCellCursorHeight = 32;

enum class PointerImage { Default, ToolCursor, PlayTool };

/// Position and colour of the cell cursor.
struct CellCursor {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t colour = 0; ///< 0x00BBGGRR
    friend bool operator==(const CellCursor&, const CellCursor&) = default;
};

/// What the painting surface shows for the pointer.
struct TrackPointer {
    PointerImage image = PointerImage::Default;
    LaterWords hint;
    std::string TrackMouPosLbl;           ///< the cell's number, or empty
    std::optional<CellCursor> cellCursor; ///< empty: hidden
};

/// What to show after a pointer move. dragTrack: track of the current stroke, 0 for none.
[[nodiscard]] TrackPointer PointerOverTracks(const TrackView& view, const TrackHit& hit, std::int32_t dragTrack);

/// Describes a cell for screen readers: "Track 2, cell 14, painted". track: 0 for the time band.
[[nodiscard]] Words CellInWords(const SongState& song, std::int32_t track, std::int32_t cell);

} // namespace sprout
