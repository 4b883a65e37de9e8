// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

#include <cstdint>

#include "recording/Recd_Pics.h"
#include "recording/rules/CaptureView.h"
#include "ui/widgets/Hints.h"

class QLabel;

namespace sprout {

/// What the recording window shows of a capture: its duration (`Dur_Lbl`), its status (`Rec_Stat_Lbl`), the level of
/// each channel and how much has been recorded.
class CaptureDisplay {
    Q_DECLARE_TR_FUNCTIONS(CaptureDisplay)

public:
    /// Adds the meters and the progress to the window and places all parts, in the window's body.
    CaptureDisplay(QWidget& window, QLabel& duration, QLabel& status, HintWatcher& watcher);

    /// Scales the meters for peaks of this many bits.
    void Measure(std::int32_t bits);
    /// Empties the meters.
    void Clear();
    void Show(const CaptureView& view);

private:
    QLabel& Dur_Lbl;
    QLabel& Rec_Stat_Lbl;
    LevelMeterPic* RecShowLPic;
    LevelMeterPic* RecShowRPic;
    RecordingProgressPic* RecProgressPic;
};

} // namespace sprout
