// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Prepares a track's tune for the tune window: it gets the picture of a new tune if it has none or the default one,
/// and author "Me", name "New" and 16 steps, all off, if they are missing. Returns whether it got that picture.
[[nodiscard]] bool CompleteTune(Tune& tune);

/// Makes `tune` a new one: the picture of a new tune, author "Me", name "New", 16 steps, all off, nothing rendered.
void MakeNewTune(Tune& tune);

/// Makes sure that a tune in the table can be heard. A tune without a sound is read completely from its file and copied
/// to `CurrentTune`; if the file has no sound either, it is rendered for both. Overwrites `TuneClipboard`.
///
/// Returns whether the file lacks the sound and should keep it, see `KeepChosenTune`. A file that was not read
/// completely, or a beat of which was not found, should stay unchanged.
[[nodiscard]] bool LoadChosenTune(Tune& chosenTune);

/// Stores a tune with its sound in its file and waits for the disk. Overwrites `TuneClipboard`. If that fails, for
/// example in a read-only folder, the tune is rendered again the next time it is chosen.
void KeepChosenTune(const Tune& chosenTune);

} // namespace sprout
