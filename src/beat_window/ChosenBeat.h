// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "beats/BeatTable.h"

class QLabel;

namespace sprout {

class ChoosenPicture;
class NameLabel;

/// The chosen beat of the beat window: its large picture, its name and its duration. The window owns these controls.
struct ChosenBeat {
    ChoosenPicture* ChoosenPic = nullptr;
    NameLabel* NmLbl = nullptr;
    QLabel* DurLbl = nullptr;

    /// Shows the selected beat of a table, for which it loads the beat's sound; without a selection it shows none.
    void Show(BeatTable& table) const;
};

/// Plays the selected beat of a table, or asks the user to select one.
void PlayChosenBeat(BeatTable& table);

/// Plays the selected beat of a table; without a selection it does nothing.
void PlaySelectedBeat(BeatTable& table);

} // namespace sprout
