// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <array>
#include <functional>

#include "main_window/TrackCanvasCalls.h"
#include "main_window/TrackLabel.h"
#include "main_window/TrackTuneBtn.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {

/// The controls on the title strip: the headings, the buttons that float over a row, and the buttons that add a track
/// with their label. They are made in the order of the window's table; a click runs the window's function.
class StripControls {
public:
    /// calls: outlive the controls, which belong to the strip.
    StripControls(QWidget& strip, ButtonScheme& buttons, const TrackCanvasCalls& calls);

    /// Places the buttons that add a track, and their label, below the last row.
    void PlaceAddButtons(const TrackView& view, std::int32_t trackCount) const;

    std::array<TrackLabel*, 2> headings; ///< `Label5` and `Label1`
    TrackTuneBtn* tuneBtn;
    ImageButton* playBtn;
    ImageButton* audioBtn;
    ImageButton* addRecBtn;
    ImageButton* addBtn;
    ImageButton* deleteBtn;
    QLabel* topLbl;
};

} // namespace sprout
