// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "ui/widgets/PictureGridPic.h"

namespace sprout {

/// The grid of the tune window, `ShowAllPic`: the tunes of `TuneTable`, or where tunes should be if there are none.
class TuneGrid : public PictureGridPic {
    Q_OBJECT

public:
    explicit TuneGrid(QWidget* parent);

    /// Copies the pictures and names of the table.
    void TakeTuneTable();

    /// Puts the selection frame around a tune. tune: its number in the table; others mean none.
    void ShowSelection(std::int32_t tune);

    /// Explains that there are no tunes.
    void ShowNoTunes();
};

} // namespace sprout
