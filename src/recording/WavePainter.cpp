// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePainter.h"

#include <QLine>
#include <QPainter>

#include <algorithm>
#include <vector>

#include "core/Shared.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kDashOn = 4;
constexpr int kDashPitch = 8;
constexpr int kDashedLineInset = 2;

/// Width in device pixels of a line that is one logical pixel wide.
int LineWidth(double ratio)
{
    return std::max(qRound(ratio), 1);
}

/// Fills a box including all its edges; positions in logical pixels.
void FillBox(QPainter& painter, QPointF topLeft, QPointF bottomRight, const QColor& colour, double ratio)
{
    const int line = LineWidth(ratio);
    const QPoint from(DevicePixel(topLeft.x(), ratio), DevicePixel(topLeft.y(), ratio));
    const QPoint to(DevicePixel(bottomRight.x(), ratio), DevicePixel(bottomRight.y(), ratio));
    painter.fillRect(QRect(from, QSize(to.x() - from.x() + line, to.y() - from.y() + line)), colour);
}

void PaintSelection(QPainter& painter, const WaveDrawing& drawing, int height, double ratio)
{
    const QColor colour = ColourOf(Shared().WaveColours.SelectBackColor);
    const double left = drawing.MarkLeft;
    if (drawing.Mark == SelectionMark::Box)
        FillBox(painter, {left, -1}, {drawing.MarkRight, static_cast<double>(height)}, colour, ratio);
    if (drawing.Mark != SelectionMark::Line)
        return;
    const int bottom = height - kDashedLineInset;
    for (int y = kDashedLineInset; y <= bottom; y += kDashPitch)
        FillBox(painter, {left, static_cast<double>(y)}, {left, static_cast<double>(std::min(y + kDashOn - 1, bottom))},
                colour, ratio);
}

void PaintPass(QPainter& painter, const std::vector<WavePoint>& points, std::int32_t colour, double ratio)
{
    const int lineWidth = LineWidth(ratio);
    std::vector<QLine> lines;
    lines.reserve(points.size());
    QPoint before;
    for (const WavePoint& point : points) {
        const QPoint place(DevicePixel(point.X, ratio), DevicePixel(point.Y, ratio));
        lines.emplace_back(lines.empty() ? place : before, place);
        before = place;
    }
    painter.save();
    // Qt centres a wide line on its points; the pixels of a point lie to its right and below it.
    const int shift = lineWidth / 2;
    painter.translate(QPoint(shift, shift));
    painter.setPen(QPen(ColourOf(colour), lineWidth));
    painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    painter.restore();
}

} // namespace

QImage PaintWave(const WaveDrawing& drawing, QSize size, double ratio)
{
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    const WaveViewColours& colours = Shared().WaveColours;
    image.fill(ColourOf(colours.NormalBackColor));
    if (drawing.HasWave) {
        QPainter painter(&image);
        PaintSelection(painter, drawing, size.height(), ratio);
        FillBox(painter, {0, drawing.CentreY}, {static_cast<double>(size.width()), drawing.CentreY},
                ColourOf(colours.CenterLineColor), ratio);
        PaintPass(painter, drawing.Left, colours.WaveFormNormalColorL, ratio);
        PaintPass(painter, drawing.Right, colours.WaveFormNormalColorR, ratio);
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace sprout
