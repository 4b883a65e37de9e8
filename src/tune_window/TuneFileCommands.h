// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include "base/Picture.h"
#include "base/Words.h"
#include "core/Song.h"
#include "tunes/TuneNames.h"

class QWidget;

namespace sprout {

/// For the button and the item of the menu that delete a tune.
inline constexpr LaterWords kDeleteTuneHint = Words::Later("This button will delete the selected tune");

// What the tune window asks before it saves or deletes a tune or takes another picture, and the saving itself.

/// Asks for the names to save `CurrentTune` under until the user gives some that may be used; nothing if cancelled.
/// Overwriting a tune needs a yes, and the name of an original is refused.
[[nodiscard]] std::optional<TuneNames> AskTuneNames(QWidget* parent);

/// Saves `CurrentTune` under these names, which become its own once the file is written.
void SaveCurrentTune(const TuneNames& names);

/// False for a tune that came with the program, if a setting hides the means to delete those. tune: null if none is
/// chosen.
[[nodiscard]] bool IsDeletionOffered(const Tune* tune);

/// Asks whether to delete a tune and leaves a hint about that on the status line. Originals are refused. tune: null if
/// none is chosen, which a message tells.
[[nodiscard]] bool MayDeleteTune(const Tune* tune);

/// Lets the user choose a picture file, passes its picture on and remembers its folder. A failure is shown.
void ChooseTunePicture(const std::function<void(const Picture&)>& take);

} // namespace sprout
