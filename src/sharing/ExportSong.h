// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Windows.h"

namespace sprout {

/// Asks for a file and saves the shared song there as a sound, with all its questions, hints and messages. Long work
/// shows its progress and can be stopped. Whatever goes wrong, a file that was there stands as it was.
///
/// Returns true where the song window is to hide: the song was written, or writing it failed. False where the child was
/// not asked, stopped the work, or chose a file that cannot be replaced.
[[nodiscard]] bool SaveSongAsSound(SoundFileKind kind);

} // namespace sprout
