// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Pics.h"

#include <QPainter>

#include <algorithm>

#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kLoudestLine = 3;
constexpr int kWarningSide = 28;
constexpr int kWarningTop = 6;
constexpr int kMeterParts = 4;
constexpr int kMeterTick = 7;
constexpr double kRecordingLimit = 180; ///< seconds
constexpr int kLimitMinutes = 3;

void PaintFrame(QPainter& painter, const QRect& picture)
{
    painter.setPen(QPen(kBark, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(picture.adjusted(1, 1, -1, -1));
}

} // namespace

void LevelMeterPic::MeasureMeter(std::int32_t peakMaximum)
{
    meter = {height(), peakMaximum};
}

void LevelMeterPic::ShowLevel(const MeterView& view, std::int32_t barColour)
{
    if (view == shown && barColour == colour)
        return;
    shown = view;
    colour = barColour;
    update();
}

void LevelMeterPic::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kSand);
    const int top = meter.BarTop(shown.Peak);
    painter.fillRect(0, top, width(), height() - top, ColourOf(colour));
    for (int part = 1; part < kMeterParts; ++part)
        painter.fillRect(0, height() * part / kMeterParts, kMeterTick, 1, kBark);
    if (shown.Loudest > 0) {
        const int line = std::clamp(meter.BarTop(shown.Loudest), 0, height() - kLoudestLine);
        painter.fillRect(0, line, width(), kLoudestLine, kBark);
    }
    if (shown.Overloaded)
        painter.drawPixmap(
            (width() - kWarningSide) / 2, kWarningTop,
            Artwork(QStringLiteral("pictures/OverloadMark"), QSize(kWarningSide, kWarningSide), devicePixelRatioF()));
    PaintFrame(painter, rect());
}

void RecordingProgressPic::ShowSeconds(float seconds)
{
    const auto columns = [this](float value) { return ProgressColumns(width(), value, kRecordingLimit); };
    const bool isNew = columns(seconds) != columns(elapsed);
    elapsed = seconds;
    if (isNew)
        update();
}

void RecordingProgressPic::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kSand);
    painter.fillRect(0, 0, ProgressColumns(width(), elapsed, kRecordingLimit), height(), kLeaf);
    for (int minute = 1; minute < kLimitMinutes; ++minute)
        painter.fillRect(width() * minute / kLimitMinutes, 0, 1, height(), kBark);
    PaintFrame(painter, rect());
}

} // namespace sprout
