// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "base/Words.h"

namespace sprout {

enum class SongSelMode : std::int32_t { Open = 1, Save = 2, New = 3 };

/// What the song window looks like in one of its modes. Tops and heights in pixels below the title band.
struct SongSelLayout {
    LaterWords Caption;
    LaterWords ListTitle;
    LaterWords TextTitle;
    LaterWords NothingFound; ///< the line of an empty list
    LaterWords OkHint;
    LaterWords ListHint;
    std::int32_t ListHeight = 0;
    std::int32_t ListTop = 0;
    std::int32_t ListTitleTop = 0;
    bool HasNameBox = false;
    bool HasSoundFiles = false; ///< the buttons that save a song as a sound
};

[[nodiscard]] const SongSelLayout& LayoutOf(SongSelMode mode);

/// The row to select after the list was rebuilt, -1 for none. row: the previously selected one; count: songs now.
[[nodiscard]] int RowAfterChange(int row, int count);

} // namespace sprout
