// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCanvas.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <optional>
#include <utility>

#include "core/Shared.h"
#include "main_window/TrackPic.h"
#include "main_window/TrackTitlePic.h"
#include "sound/PlayMod.h"
#include "ui/look/Palette.h"
#include "ui/words/Texts.h"

namespace sprout {

TrackCanvas::TrackCanvas(QWidget* parent, ButtonScheme& buttons, TrackCanvasCalls windowCalls)
    : QWidget(parent),
      calls(std::move(windowCalls)),
      titlePic(new TrackTitlePic(scroll.View(), buttons, calls, this)),
      trackPic(new TrackPic(scroll.View(), this)),
      tool(*trackPic, scroll.View(), calls),
      keys(*trackPic, tool, scroll)
{
    setObjectName(QStringLiteral("TrackFramePic"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    scroll.MakeBars(*this);
    ConnectParts();
}

void TrackCanvas::ConnectParts()
{
    titlePic->Redraw = [this] { titlePic->DrawAll(Shared().Song); };
    trackPic->Redraw = [this] { trackPic->DrawAll(Shared().Song); };
    connect(&scroll, &TrackScroll::Scrolled, this, &TrackCanvas::DrawTracksAll);
    connect(titlePic, &TrackTitlePic::RowChosen, &scroll, &TrackScroll::ShowRow);
    connect(&tool, &TrackTool::StrokeBegun, &scroll, &TrackScroll::EndFollowing);
    connect(&tool, &TrackTool::Painted, this, [this](int track) {
        DrawTrackTop();
        DrawTrackOne(track);
    });
}

void TrackCanvas::PlaceParts()
{
    const int picWidth = std::max(width() - kTitleStripWidth - kScrollBarBreadth, 0);
    const int picHeight = std::max(height() - kScrollBarBreadth, 0);
    titlePic->setGeometry(0, 0, kTitleStripWidth, picHeight);
    trackPic->setGeometry(kTitleStripWidth, 0, picWidth, picHeight);
    scroll.PlaceBars(trackPic->geometry());
    trackPic->FitMarkers();
}

void TrackCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceParts();
    DrawTracksAll();
}

void TrackCanvas::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), kSand);
}

void TrackCanvas::DrawTracksAll()
{
    const SongState& song = Shared().Song;
    scroll.FitSong(song.TrackCount, song.SongCells);
    titlePic->Forget();
    trackPic->Forget();
    titlePic->PlaceAddButtons(song.TrackCount);
    HideTrackButtons();
    trackPic->ShowCellCursor(std::nullopt);
}

void TrackCanvas::ShowFromStart()
{
    scroll.GoToStart();
    DrawTracksAll();
}

void TrackCanvas::ShowAddedTrack()
{
    scroll.GoToAdded(Shared().Song.TrackCount);
    DrawTracksAll();
}

void TrackCanvas::DrawTrackOne(std::int32_t track)
{
    const SongState& song = Shared().Song;
    if (track < 1 || track > song.TrackCount)
        return;
    titlePic->DrawRow(song, track);
    trackPic->DrawRow(song, track);
}

void TrackCanvas::DrawTrackTop()
{
    trackPic->DrawTop(Shared().Song);
}

void TrackCanvas::HideTrackButtons()
{
    titlePic->HideTrackButtons();
}

std::int32_t TrackCanvas::HoverTrack() const
{
    return titlePic->HoverTrack();
}

bool TrackCanvas::TrackTuneBtnVisible() const
{
    return titlePic->TrackTuneBtnVisible();
}

bool TrackCanvas::TrackAudioBtnVisible() const
{
    return titlePic->TrackAudioBtnVisible();
}

void TrackCanvas::ShowPlayIndicator(const PlayIndicator& indicator)
{
    trackPic->ShowPlayIndicator(indicator);
}

void TrackCanvas::wheelEvent(QWheelEvent* event)
{
    scroll.TurnWheel(*event);
}

void TrackCanvas::keyPressEvent(QKeyEvent* event)
{
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses || event->key() == Qt::Key_Space) {
        if (event->isAutoRepeat()) // a held key would start and stop in turn
            return;
        return presses ? keys.PressCell() : Ask(calls.PlayOrStop);
    }
    if (!keys.PressKey(*event) && !scroll.PressKey(event->key()))
        QWidget::keyPressEvent(event);
}

void TrackCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control)
        tool.EndStroke();
    QWidget::keyReleaseEvent(event);
}

void StopPlay(TrackCanvas& canvas)
{
    Player().StopPlay();
    canvas.ShowPlayIndicator({});
}

} // namespace sprout
