// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Words.h"

namespace sprout {

class SongList;

// The buttons of the song window that change the folder of songs. Each needs a selected song and says so if there is
// none. If a file cannot be changed, a message says why and the list shows what its folder contains then.

/// True if a song is selected; otherwise shows `message`.
[[nodiscard]] bool IsSongSelected(const SongList& list, const Words& message);

/// Copies the selected song's file to a free name beside it.
void CopySelectedSong(SongList& list);

/// Deletes the selected song's file if the user says yes.
void DeleteSelectedSong(SongList& list);

/// Asks for a new name for the selected song's file and selects the song under it. A name that another song has is
/// refused.
void RenameSelectedSong(SongList& list);

} // namespace sprout
