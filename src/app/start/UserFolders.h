// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>

#include "base/Words.h"
#include "core/Shared.h"

namespace sprout {

/// One of the user's folders and the installed one that it is filled from.
struct UserFolder {
    const char* Name;
    std::filesystem::path SharedState::*User;
    std::filesystem::path SharedState::*Installed;
};

inline constexpr UserFolder kBeatsFolder{"Beats", &SharedState::UserBeats, &SharedState::InstallBeats};
inline constexpr UserFolder kTunesFolder{"Tunes", &SharedState::UserTunes, &SharedState::InstallTunes};
inline constexpr UserFolder kStarsFolder{"Stars", &SharedState::UserStars, &SharedState::InstallStars};
inline constexpr UserFolder kSongsFolder{"Songs", &SharedState::UserSongs, &SharedState::InstallSongs};
inline constexpr std::array kUserFolders{kBeatsFolder, kTunesFolder, kStarsFolder, kSongsFolder};

/// Sets `UserRoot` in `DocumentsFolder` and the folders under it; creates `UserRoot` if missing.
void SetUserFolders();

/// Copies the installed files into each of the user's folders that holds no file, unless `SkipFirstCopy` is set.
///
/// A folder that then still holds none because it cannot be made or written is replaced by the installed one, in which
/// nothing is ever changed. One that holds the user's files is read as it is, even if it cannot be written. Failed
/// copies are shown in messages, but of whole folders only the first one: `FoldersThatKeepNothing` has them all. If the
/// user stops a copy, the folder stays empty and is filled at the next start.
void FillUserFolders();

/// The user's folders in which nothing can be kept, because they cannot be made or written; blank if there is none.
[[nodiscard]] Words FoldersThatKeepNothing();

} // namespace sprout
