// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Windows.h"

namespace sprout {

/// Asks for a file and saves the shared song there as a sound, with all questions, hints and messages. Long work shows
/// its progress and can be stopped. On any failure an existing file stays as it was.
///
/// Returns true if the song window must hide: the song was written, or writing it failed. Returns false if the child
/// was not asked, stopped the work, or chose a file that cannot be replaced.
[[nodiscard]] bool SaveSongAsSound(SoundFileKind kind);

} // namespace sprout
