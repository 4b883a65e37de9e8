// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "core/Song.h"

namespace sprout {

/// Which tune of `TuneTable` is chosen in the tune window, and whether the window shows that tune or the one in the
/// editor.
class TuneChoice {
public:
    /// Index in the table; 0 as long as nothing was chosen, below 0 if nothing shall be chosen.
    [[nodiscard]] std::int32_t SelectedTune() const { return selected; }
    [[nodiscard]] bool HasTune() const;
    /// True if the picture and the names shown are those of the tune in the editor.
    [[nodiscard]] bool ShowsEditorsTune() const { return startedWithEditor || selected < 0; }
    /// True from the opening of the window until a tune is chosen: a click on the chosen tune plays the editor's.
    [[nodiscard]] bool StartedWithEditor() const { return startedWithEditor; }

    /// The window opens with the tune of the editor.
    void StartWithEditor() { startedWithEditor = true; }

    /// Selects the tune of that name; if it is not in the table, nothing. An empty name leaves the choice open.
    void Find(std::string_view name);

    /// If the choice is still open and there is a tune, chooses the first one, which is then the default for new tunes,
    /// and plays it. Returns like `Play`.
    [[nodiscard]] bool ChooseFirstIfOpen();

    /// index: in the table.
    void Choose(std::int32_t index);

    /// Selects an entry of the table whose tune is the one in the editor.
    void TakeEditorsTune(std::int32_t index);

    void ChooseNothing();
    void Forget() { selected = 0; }

    /// The chosen tune has moved in the table.
    void Follow(std::int32_t index) { selected = index; }

    /// Plays the chosen tune after a short silence, reading or rendering it first if needed. Returns whether its sound
    /// should then be kept.
    [[nodiscard]] bool Play();

    /// Keeps the sound of the chosen tune, which may have to wait for the disk.
    void KeepSound() const;

private:
    Tune chosen; ///< copy of the entry, complete once played
    std::int32_t selected = 0;
    bool startedWithEditor = false;
};

} // namespace sprout
