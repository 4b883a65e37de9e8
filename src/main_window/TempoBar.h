// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

class HintWatcher;

/// The tempo of the shared song: slot (`TempoSliderImg`) and pointer (`TempoPrtImg`), the percentage (`TempoLbl`) and
/// the song's duration (`SngDurLbl`).
class TempoBar : public QWidget {
    Q_OBJECT

public:
    TempoBar(QWidget* parent, HintWatcher& watcher);

    /// Shows the song's tempo.
    void UpdateTempoSliderValue();
};

} // namespace sprout
