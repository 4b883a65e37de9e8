// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TunFramPic.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kLampWidth = 30;
constexpr int kLampHeight = 16;
constexpr int kStripEndWidth = 4;
constexpr int kStripHeight = 38;
constexpr int kNumberInset = 2; ///< of the digits' upper edge
constexpr int kBeatIconSide = 32;
constexpr int kWheelStep = 120; ///< eighths of a degree per notch
constexpr QColor kFrameLight{0xFF, 0xFF, 0xFF};
constexpr QColor kFrameShade{0x80, 0x80, 0x80};

/// Reports steps whose beat has no file; each name is looked up once.
class MissingBeats {
public:
    bool IsMissing(const Beat& beat)
    {
        if (Shared().SongBeatsInside || beat.Name.empty())
            return false;
        const auto [known, isNew] = missing.try_emplace(beat.Name, false);
        if (isNew)
            known->second = FindBeatWave(beat.Name).empty();
        return known->second;
    }

private:
    std::map<std::string, bool> missing;
};

/// The pixel that contains a position, at any pixel ratio.
QPoint PixelOf(QPointF position)
{
    return {static_cast<int>(std::floor(position.x())), static_cast<int>(std::floor(position.y()))};
}

} // namespace

TunFramPic::TunFramPic(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("TunFramPic"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TunFramPic::DrawTuneSteps(const Tune& tune, std::int32_t leftOfFirst)
{
    const auto size = static_cast<std::size_t>(tune.StepCount) + 1;
    stepsLeft = leftOfFirst;
    pressedStep = 0;
    columns.assign(size, Column());
    bars.assign(size, DurationBar());
    middles.assign(size, 0);
    MissingBeats missing;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        const TuneStep& step = At(tune.Steps, number);
        if (!step.IsOn())
            continue;
        const Picture& icon = step.StepBeat.Picture;
        At(columns, number) = {true, missing.IsMissing(step.StepBeat),
                               icon.IsNothing() ? Shared().DefaultTunePicture : icon};
        At(bars, number) = BarOfStep(number, stepsLeft, step.PitchShift, step.Duration);
        At(middles, number) = BarMiddle(step.Duration);
    }
    update();
}

void TunFramPic::DrawIconPressed(std::int32_t step)
{
    pressedStep = step;
    repaint();
}

QPixmap TunFramPic::Art(const char* name, int width, int height) const
{
    return Artwork(QStringLiteral("pictures/") + QString::fromLatin1(name), QSize(width, height), devicePixelRatioF());
}

void TunFramPic::paintEvent(QPaintEvent* event)
{
    const QRect area = event->rect();
    QPainter painter(this);
    painter.setFont(HintFont());
    // At whole pixel ratios icons are enlarged pixel by pixel.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, devicePixelRatioF() != std::floor(devicePixelRatioF()));
    painter.fillRect(area, kPaper);
    PaintStrip(painter, area);
    ForColumnsIn(area, [&](std::int32_t step) {
        PaintLamp(painter, step);
        if (!At(columns, step).on)
            return;
        PaintIcon(painter, step);
        PaintFrame(painter, step);
        PaintKeys(painter, step);
    });
    PaintBars(painter, area);
}

void TunFramPic::ForColumnsIn(const QRect& area, const std::function<void(std::int32_t)>& paint) const
{
    // A column extends slightly over its left edge and into the next column.
    const std::int32_t first = std::max((area.left() - stepsLeft) / kStepPitch, 1);
    const std::int32_t last = std::min((area.right() - stepsLeft) / kStepPitch + 2, StepCount());
    for (std::int32_t step = first; step <= last; ++step)
        paint(step);
}

void TunFramPic::PaintStrip(QPainter& painter, const QRect& area) const
{
    painter.drawPixmap(kStripEndLeft, kStripTop, Art("PitchOnOffLeft", kStripEndWidth, kStripHeight));
    const QPixmap middle = Art("PitchOnOffMiddle", kStepPitch, kStripHeight);
    ForColumnsIn(area, [&](std::int32_t step) { painter.drawPixmap(StepLeft(step, stepsLeft), kStripTop, middle); });
    painter.drawPixmap(StepLeft(StepCount() + 1, stepsLeft), kStripTop,
                       Art("PitchOnOffRight", kStripEndWidth, kStripHeight));
}

void TunFramPic::PaintLamp(QPainter& painter, std::int32_t step) const
{
    const int x = StepLeft(step, stepsLeft);
    painter.drawPixmap(x, kLampTop, Art(At(columns, step).on ? "StpOnPic" : "StpOffPic", kLampWidth, kLampHeight));
    // The font's line has room above its digits, which start exactly at the position.
    const int baseline = kNumberTop + kNumberInset + painter.fontMetrics().capHeight();
    painter.setPen(kBark);
    painter.drawText(x, baseline, QString::number(step));
}

void TunFramPic::PaintIcon(QPainter& painter, std::int32_t step) const
{
    const Column& column = At(columns, step);
    const int x = StepLeft(step, stepsLeft);
    const QRect place(x - 1, step == pressedStep ? kPressedIconTop : kIconTop, kBeatIconSide, kBeatIconSide);
    painter.drawImage(place, ToImage(column.picture));
    if (column.beatIsMissing)
        painter.drawPixmap(x - 2, kIconTop - 1, Art("MissingBeatMark", kBeatIconSide, kBeatIconSide));
}

void TunFramPic::PaintFrame(QPainter& painter, std::int32_t step) const
{
    const FrameEdges frame = IconFrame(step, stepsLeft);
    const bool pressed = step == pressedStep;
    const int width = frame.right - frame.left + 1;
    const int height = frame.bottom - frame.top + 1;
    const QColor& topLeft = pressed ? kFrameShade : kFrameLight;
    const QColor& bottomRight = pressed ? kFrameLight : kFrameShade;
    painter.fillRect(frame.left, frame.top, width, 1, topLeft);
    painter.fillRect(frame.left, frame.top, 1, height, topLeft);
    painter.fillRect(frame.left, frame.bottom, width, 1, bottomRight);
    painter.fillRect(frame.right, frame.top, 1, height, bottomRight);
}

void TunFramPic::PaintKeys(QPainter& painter, std::int32_t step) const
{
    // The key for the beat's own pitch, the lowest one of the upper octave, is highlighted.
    const int x = StepLeft(step, stepsLeft);
    painter.drawPixmap(x, kUpperOctaveTop, Art("KeysPicOwnPitch", kOctaveWidth, kOctaveHeight));
    painter.drawPixmap(x, kLowerOctaveTop, Art("KeysPic", kOctaveWidth, kOctaveHeight));
}

void TunFramPic::PaintBars(QPainter& painter, const QRect& area) const
{
    // From last to first: a bar that reaches into the next columns is drawn over theirs.
    for (std::int32_t step = StepCount(); step >= 1; --step) {
        const DurationBar& bar = At(bars, step);
        const bool isSeen = bar.left <= area.right() && bar.right >= area.left();
        if (At(columns, step).on && isSeen)
            PaintBar(painter, bar, At(middles, step));
    }
}

void TunFramPic::PaintBar(QPainter& painter, const DurationBar& bar, std::int32_t middle) const
{
    painter.drawPixmap(bar.left, bar.top, Art("DurationLeft", kDurationLeftWidth, kBarHeight));
    // A file may contain a bar of any length.
    const int shown = std::min(middle, std::max(width() - bar.left, 0));
    if (shown > 0)
        painter.drawPixmap(QRect(bar.left + kDurationLeftWidth, bar.top, shown, kBarHeight),
                           Art("DurationMiddle", kBarHeight, kBarHeight));
    painter.drawPixmap(bar.handleX, bar.handleY, Art("DurationRight", kDurationRightWidth, kBarHeight));
}

void TunFramPic::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT Pressed(PixelOf(event->position()), event->button());
}

void TunFramPic::mouseMoveEvent(QMouseEvent* event)
{
    Q_EMIT Moved(PixelOf(event->position()), event->buttons());
}

void TunFramPic::mouseReleaseEvent(QMouseEvent* event)
{
    Q_EMIT Released(PixelOf(event->position()), event->button());
}

void TunFramPic::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const int eighths = turned.x() != 0 ? turned.x() : turned.y();
    Q_EMIT Wheeled(-eighths * kStepPitch / kWheelStep);
    event->accept();
}

void TunFramPic::resizeEvent(QResizeEvent* /*event*/)
{
    Q_EMIT Resized();
}

} // namespace sprout
