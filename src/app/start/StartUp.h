// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

// The part of the program's start that needs no window. The program calls `RunStartUp`, opens its main window, starts
// the sound and calls `ReadOptionFlags`. All services and the four pictures of the shared state must exist.

/// Finds the folders, writes facts about the machine to the settings file, creates the test tone and the new song, and
/// copies the installed files into the user's folders if these contain no file (`FillUserFolders`). Deletes mailed
/// songs left more than a day ago by earlier runs, and the recordings that they left.
///
/// If a step fails, the next one runs. Missing support files, a missing documents folder and a failed copy are shown in
/// messages. Never throws.
void RunStartUp();

/// Reads the options that users set by hand: `SongBeatsInside` and `AllowEditOriginal`. Never throws.
void ReadOptionFlags();

/// The part of the machine's memory that sound may use, in bytes: 10,000,000 to 67,108,864. totalBytes: physical
/// memory.
[[nodiscard]] std::int32_t SoundMemoryLimit(std::uint64_t totalBytes);

} // namespace sprout
