// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

// The part of the program's start that needs no window. The program calls `RunStartUp`, opens its main window, starts
// the sound and calls `ReadOptionFlags`. All services must be there, and the four pictures of the shared state.

/// Finds the folders, writes the facts about the machine to the settings file, makes the test tone and the new song
/// and, where the user's folders hold no file, fills them from the installed ones. Deletes the mailed songs that
/// earlier runs left more than a day ago, and the recordings that they left.
///
/// A step that fails is given up and the next one runs. Missing support files, a missing documents folder and a failed
/// copy are told in messages. Never throws.
void RunStartUp();

/// Reads the options that a user sets by hand: `SongBeatsInside` and `AllowEditOriginal`. Never throws.
void ReadOptionFlags();

/// The share of the machine's memory that sound may take, in bytes: 10,000,000 to 67,108,864. totalBytes: physical
/// memory.
[[nodiscard]] std::int32_t SoundMemoryLimit(std::uint64_t totalBytes);

} // namespace sprout
