// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePic.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLine>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <optional>
#include <utility>

#include "core/Shared.h"
#include "ui/Palette.h"
#include "ui/SpokenRoles.h"

namespace sprout {

namespace {

constexpr int kMarkerWidth = 2;
constexpr int kBandTop = 1;
constexpr int kDashOn = 4;
constexpr int kDashPitch = 8;
constexpr int kDashedLineInset = 2;
constexpr int kBandOpacity = 150;

QColor BandColour()
{
    QColor colour = ColourOf(Shared().WaveColours.LineCursorColor);
    colour.setAlpha(kBandOpacity);
    return colour;
}

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

std::optional<WaveMove> MoveOfKey(const QKeyEvent& event)
{
    const bool far = event.modifiers() & Qt::ControlModifier;
    switch (event.key()) {
    case Qt::Key_Left:
        return far ? WaveMove::FarLeft : WaveMove::Left;
    case Qt::Key_Right:
        return far ? WaveMove::FarRight : WaveMove::Right;
    case Qt::Key_Home:
        return WaveMove::Home;
    case Qt::Key_End:
        return WaveMove::End;
    default:
        return {};
    }
}

} // namespace

WaveMarker::WaveMarker(const char* name, const QColor& fill, QWidget* parent) : QWidget(parent), colour(fill)
{
    setObjectName(QString::fromLatin1(name));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WaveMarker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), colour);
}

WavePic::WavePic(QWidget* parent)
    : QWidget(parent),
      band(new WaveMarker("SelectBandShp", BandColour(), this)),
      marker(new WaveMarker("PlayPosShp", ColourOf(Shared().WaveColours.PlayPosIndiColor), this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::IBeamCursor);
    SetSpokenRole(*this, QAccessible::Graphic);
    window()->installEventFilter(this);
    HideBand();
    MovePlayMarker(kMarkerOutOfSight);
}

void WavePic::Show(WaveDrawing newDrawing)
{
    drawing = std::move(newDrawing);
    picture = QImage();
    update();
}

void WavePic::ShowBand(const WaveBand& place)
{
    band->setGeometry(qRound(place.Left), kBandTop, place.Width, height() - 2 * kBandTop);
    band->show();
}

void WavePic::HideBand()
{
    band->hide();
}

void WavePic::MovePlayMarker(std::int32_t left)
{
    marker->setGeometry(left, 0, kMarkerWidth, height());
}

void WavePic::Speak(const QString& selection)
{
    setAccessibleName(selection.isEmpty() ? tr("Your recorded sound") : tr("Your recorded sound: %1").arg(selection));
}

QImage WavePic::Draw(double ratio) const
{
    QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
    const WaveViewColours& colours = Shared().WaveColours;
    image.fill(ColourOf(colours.NormalBackColor));
    if (drawing.HasWave) {
        QPainter painter(&image);
        PaintSelection(painter, ratio);
        FillBox(painter, {0, drawing.CentreY}, {static_cast<double>(width()), drawing.CentreY},
                ColourOf(colours.CenterLineColor), ratio);
        PaintPass(painter, drawing.Left, colours.WaveFormNormalColorL, ratio);
        PaintPass(painter, drawing.Right, colours.WaveFormNormalColorR, ratio);
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

void WavePic::PaintSelection(QPainter& painter, double ratio) const
{
    const QColor colour = ColourOf(Shared().WaveColours.SelectBackColor);
    const double left = drawing.MarkLeft;
    if (drawing.Mark == SelectionMark::Box)
        FillBox(painter, {left, -1}, {drawing.MarkRight, static_cast<double>(height())}, colour, ratio);
    if (drawing.Mark != SelectionMark::Line)
        return;
    const int bottom = height() - kDashedLineInset;
    for (int y = kDashedLineInset; y <= bottom; y += kDashPitch)
        FillBox(painter, {left, static_cast<double>(y)}, {left, static_cast<double>(std::min(y + kDashOn - 1, bottom))},
                colour, ratio);
}

void WavePic::PaintPass(QPainter& painter, const std::vector<WavePoint>& points, std::int32_t colour,
                        double ratio) const
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

void WavePic::paintEvent(QPaintEvent* /*event*/)
{
    const double ratio = devicePixelRatioF();
    if (picture.isNull() || picture.devicePixelRatio() != ratio)
        picture = Draw(ratio);
    QPainter painter(this);
    painter.drawImage(0, 0, picture);
}

void WavePic::resizeEvent(QResizeEvent* /*event*/)
{
    picture = QImage();
    marker->resize(kMarkerWidth, height());
    Q_EMIT Resized();
}

void WavePic::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mouseDown = true;
    mouseX = event->position().x();
    Q_EMIT Pressed(mouseX);
}

void WavePic::mouseMoveEvent(QMouseEvent* event)
{
    if (!mouseDown)
        return;
    mouseX = event->position().x();
    Q_EMIT Moved(mouseX);
}

void WavePic::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mouseX = event->position().x();
    LetGo();
}

void WavePic::LetGo()
{
    if (std::exchange(mouseDown, false))
        Q_EMIT Released(mouseX);
}

bool WavePic::eventFilter(QObject* watched, QEvent* event)
{
    // A key can open a message while the mouse is down; the picture would then miss the release.
    if (event->type() == QEvent::WindowBlocked)
        LetGo();
    return QWidget::eventFilter(watched, event);
}

void WavePic::hideEvent(QHideEvent* event)
{
    LetGo();
    QWidget::hideEvent(event);
}

void WavePic::keyPressEvent(QKeyEvent* event)
{
    const std::optional<WaveMove> move = MoveOfKey(*event);
    const bool isAll = event->matches(QKeySequence::SelectAll);
    if (!move && !isAll)
        return QWidget::keyPressEvent(event);
    if (mouseDown) // the mouse is selecting
        return;
    if (isAll)
        Q_EMIT AllWanted();
    else
        Q_EMIT CursorMoved(*move, event->modifiers() & Qt::ShiftModifier ? WaveKeep::Selection : WaveKeep::Cursor);
}

void WavePic::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    Q_EMIT FocusChanged();
}

void WavePic::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    Q_EMIT FocusChanged();
}

} // namespace sprout
