// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "song_window/rules/SongChoice.h"
#include "songs/SongFiles.h"

namespace sprout {

/// What OK must do with a typed name.
enum class NameDecision { AskForName, Accept, AskToOverwrite };

/// name: as typed. songs: the listed ones. A song is saved over its own unchanged file without asking, even if another
/// song has that name or its title.
[[nodiscard]] NameDecision DecideName(SongSelMode mode, std::string_view name, std::span<const SongFile> songs);

} // namespace sprout
