// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/rules/SongChoice.h"

#include <algorithm>
#include <array>

namespace sprout {

namespace {

constexpr std::array kLayouts{
    SongSelLayout{.Caption = Words::Later(" Open song"),
                  .ListTitle = Words::Later(" Select a song and click OK to open"),
                  .TextTitle = {},
                  .NothingFound = Words::Later("No song found"),
                  .OkHint = Words::Later("Click Ok to open the selected song"),
                  .ListHint = Words::Later("Click on a song name to select"),
                  .ListHeight = 257,
                  .ListTop = 56,
                  .ListTitleTop = 32},
    SongSelLayout{.Caption = Words::Later(" Save song"),
                  .ListTitle = Words::Later(" List of available songs"),
                  .TextTitle = Words::Later(" Check the song name and Click OK to save"),
                  .NothingFound = Words::Later(" "),
                  .OkHint = Words::Later("Click Ok to save the song to the name entered"),
                  .ListHint = Words::Later("List of available songs"),
                  .ListHeight = 211,
                  .ListTop = 44,
                  .ListTitleTop = 20,
                  .HasNameBox = true,
                  .HasSoundFiles = true},
    SongSelLayout{.Caption = Words::Later(" New song"),
                  .ListTitle = Words::Later(" List of available songs"),
                  .TextTitle = Words::Later(" Type the song name here and click OK"),
                  .NothingFound = Words::Later(" "),
                  .OkHint = Words::Later("Click Ok to create a new song with the name entered"),
                  .ListHint = Words::Later("List of available songs"),
                  .ListHeight = 211,
                  .ListTop = 44,
                  .ListTitleTop = 20,
                  .HasNameBox = true},
};

} // namespace

const SongSelLayout& LayoutOf(SongSelMode mode)
{
    return kLayouts[static_cast<std::size_t>(mode) - 1];
}

int RowAfterChange(int row, int count)
{
    return std::min(row, count - 1);
}

} // namespace sprout
