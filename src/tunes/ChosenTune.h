// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Makes a track's tune ready for the tune window: the picture of a new tune in place of none or of the default one,
/// author "Me", name "New" and 16 steps, all off, where it has none. Returns whether it got that picture.
[[nodiscard]] bool CompleteTune(Tune& tune);

/// Makes `tune` a new one: the picture of a new tune, author "Me", name "New", 16 steps, all off, nothing rendered.
void MakeNewTune(Tune& tune);

/// Makes sure that a tune of the table can be heard. Without a sound it is read whole from its file, and copied to
/// `CurrentTune`; if the file holds none either, it is rendered, and the file keeps the sound from now on. Overwrites
/// `TuneClipboard`.
///
/// A file that was not read whole stays as it is. A sound that cannot be kept, as in a read-only folder, is heard all
/// the same.
void LoadChosenTune(Tune& chosenTune);

} // namespace sprout
