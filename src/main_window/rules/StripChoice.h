// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// The button of the title strip that the keyboard chose: a track's row and one of the three buttons in it, which are
/// its tune or sound, delete and play.
class StripChoice {
public:
    /// The chosen track, 0 while none was chosen by key.
    [[nodiscard]] std::int32_t Row() const { return row; }

    /// Chooses the row of a track, or the nearest one that the song has.
    void ChooseRow(std::int32_t track, std::int32_t trackCount);
    /// Chooses the button `step` buttons to the right, but no further than the last one.
    void ChooseColumn(std::int32_t step);
    /// The choice of a deleted track goes to the last one.
    void FitSong(std::int32_t trackCount);

    /// A point of the strip at which the chosen button floats.
    struct Point {
        std::int32_t x = 0;
        std::int32_t y = 0;
        friend bool operator==(const Point&, const Point&) = default;
    };
    [[nodiscard]] Point Place(const TrackView& view) const;

private:
    std::int32_t row = 0;
    std::int32_t column = 2; ///< play
};

} // namespace sprout
