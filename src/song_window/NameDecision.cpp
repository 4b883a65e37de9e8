// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/NameDecision.h"

#include "base/Text.h"
#include "songs/OpenSaveClass.h"

namespace sprout {

NameDecision DecideName(SongSelMode mode, std::string_view name, std::span<const SongFile> songs)
{
    if (Trim(name).empty())
        return NameDecision::AskForName;
    // When a song is saved, the folder itself is checked: the list may be out of date.
    const bool takesNothing =
        mode == SongSelMode::Save ? MayReplaceUnasked(PlaceOfSong(name)) : FindSong(songs, name) == nullptr;
    return takesNothing ? NameDecision::Accept : NameDecision::AskToOverwrite;
}

} // namespace sprout
