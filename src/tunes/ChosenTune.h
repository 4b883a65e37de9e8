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
/// to `CurrentTune`; if the file has no sound either, it is rendered and then kept in the file. Overwrites
/// `TuneClipboard`.
///
/// A file that was not read completely stays unchanged. A sound that cannot be stored, for example in a read-only
/// folder, can still be heard.
void LoadChosenTune(Tune& chosenTune);

} // namespace sprout
