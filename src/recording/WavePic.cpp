// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePic.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <optional>
#include <utility>

#include "core/Shared.h"
#include "recording/WaveMarker.h"
#include "recording/WavePainter.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kMarkerWidth = 2;
constexpr int kBandTop = 1;
constexpr int kBandOpacity = 150;

QColor BandColour()
{
    QColor colour = ColourOf(Shared().WaveColours.LineCursorColor);
    colour.setAlpha(kBandOpacity);
    return colour;
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

void WavePic::Speak(const Words& selection)
{
    SetSpokenName(*this, selection.IsBlank() ? Words::Text("Your recorded sound")
                                             : Words::Text("Your recorded sound: %1", selection));
}

QImage WavePic::Draw(double ratio) const
{
    return PaintWave(drawing, size(), ratio);
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
