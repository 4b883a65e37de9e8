// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "beats/BeatTable.h"
#include "ui/widgets/PictureGridPic.h"

namespace sprout {

/// The grid of the beat window, `ShowAllPic`: the beats of a table, or where beats should be if there are none.
class BeatGrid : public PictureGridPic {
    Q_OBJECT

public:
    explicit BeatGrid(QWidget* parent);

    /// Takes the pictures and names of the table.
    void ShowBeats(const BeatTable& table);

    /// Puts the selection frame around the table's selected beat, or explains that there are no beats.
    void ShowSelection(const BeatTable& table);
};

} // namespace sprout
