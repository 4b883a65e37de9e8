// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

#include <cstdint>

#include "recording/rules/CaptureView.h"
#include "recording/rules/Meter.h"

namespace sprout {

/// A level meter: a bar that rises from the bottom, a line at the loudest peak of the last second, and a warning sign
/// if the sound was too loud. All of it can be read without colour.
class LevelMeterPic : public QWidget {
public:
    using QWidget::QWidget;

    /// Scales the meter to the widget's height, for peaks up to `peakMaximum`.
    void MeasureMeter(std::int32_t peakMaximum);
    void Clear() { ShowLevel({}, kIdleBarColour); }
    /// barColour: 0x00BBGGRR.
    void ShowLevel(const MeterView& view, std::int32_t barColour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Meter meter;
    MeterView shown;
    std::int32_t colour = kIdleBarColour;
};

/// How much has been recorded, on a scale up to the recording limit.
class RecordingProgressPic : public QWidget {
public:
    using QWidget::QWidget;

    void ShowSeconds(float seconds);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    float elapsed = 0;
};

} // namespace sprout
