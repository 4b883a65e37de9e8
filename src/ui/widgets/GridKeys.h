// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>

#include "ui/rules/PictureGrid.h"

namespace sprout {

/// What a key press asks of a picture grid.
struct GridKey {
    enum class Asks {
        Nothing,   ///< the key is none of the grid's
        NoRepeats, ///< it is one of the grid's, but acts only when pressed anew
        Step,
        Choice, ///< as a click on the chosen picture
        Menu,   ///< as a right click on it
        Deletion,
    };
    Asks asks = Asks::Nothing;
    GridStep step = GridStep::First; ///< of `Asks::Step`
};

/// Arrow keys and their like step, held down too. Holding Space must not restart the sound again and again.
[[nodiscard]] GridKey GridKeyOf(const QKeyEvent& event);

} // namespace sprout
