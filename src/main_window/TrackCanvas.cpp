// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCanvas.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

#include "core/Shared.h"
#include "main_window/TrackPic.h"
#include "main_window/TrackTitlePic.h"
#include "main_window/rules/CellValues.h"
#include "sound/PlayMod.h"
#include "ui/Palette.h"

namespace sprout {

namespace {

/// Sets a scroll bar's range and value without signals, and returns the value.
std::int32_t FitScrollBar(QScrollBar& bar, const ScrollRange& range, std::int32_t first, int pageStep)
{
    const QSignalBlocker quiet(bar);
    bar.setEnabled(range.enabled);
    bar.setRange(1, range.maximum);
    bar.setPageStep(std::max(pageStep, 1));
    bar.setValue(first);
    return bar.value();
}

} // namespace

TrackCanvas::TrackCanvas(QWidget* parent, ButtonScheme& buttons, TrackCanvasCalls windowCalls)
    : QWidget(parent), calls(std::move(windowCalls))
{
    setObjectName(QStringLiteral("TrackFramePic"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    MakeSurfaces(buttons);
    MakeScrollBars();
}

void TrackCanvas::MakeSurfaces(ButtonScheme& buttons)
{
    titlePic = new TrackTitlePic(view, buttons, calls, this);
    trackPic = new TrackPic(view, this);
    titlePic->Redraw = [this] { titlePic->DrawAll(Shared().Song); };
    trackPic->Redraw = [this] { trackPic->DrawAll(Shared().Song); };
    connect(titlePic, &TrackTitlePic::RowChosen, this, &TrackCanvas::ShowRow);
    connect(trackPic, &TrackPic::Pressed, this, &TrackCanvas::Press);
    connect(trackPic, &TrackPic::Moved, this, &TrackCanvas::Move);
    connect(trackPic, &TrackPic::Released, this, &TrackCanvas::EndStroke);
    connect(trackPic, &TrackPic::Left, this, &TrackCanvas::Leave);
}

void TrackCanvas::MakeScrollBars()
{
    const auto make = [this](const char* name, const QString& spokenName, Qt::Orientation orientation,
                             std::int32_t TrackView::*first) {
        auto* bar = new QScrollBar(orientation, this);
        bar->setObjectName(QString::fromLatin1(name));
        bar->setAccessibleName(spokenName);
        connect(bar, &QScrollBar::valueChanged, this, [this, first](int value) {
            view.*first = value;
            if (first == &TrackView::FirstCell)
                followed.reset();
            DrawTracksAll();
        });
        return bar;
    };
    vScroll = make("TrackVScroll", tr("Scroll the tracks"), Qt::Vertical, &TrackView::FirstTrack);
    hScroll = make("TrackHScroll", tr("Scroll through the song"), Qt::Horizontal, &TrackView::FirstCell);
    hScroll->setSingleStep(kCellsOfAGroup);
}

void TrackCanvas::PlaceParts()
{
    const int picWidth = std::max(width() - kTitleStripWidth - kScrollBarBreadth, 0);
    const int picHeight = std::max(height() - kScrollBarBreadth, 0);
    titlePic->setGeometry(0, 0, kTitleStripWidth, picHeight);
    trackPic->setGeometry(kTitleStripWidth, 0, picWidth, picHeight);
    vScroll->setGeometry(kTitleStripWidth + picWidth, 0, kScrollBarBreadth, picHeight);
    hScroll->setGeometry(kTitleStripWidth, picHeight, picWidth, kScrollBarBreadth);
    view.trackPicWidth = picWidth;
    view.trackPicHeight = picHeight;
    view.titlePicHeight = picHeight;
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
    view = ClampedView(view, song.TrackCount);
    FitScrollBars();
    titlePic->Forget();
    trackPic->Forget();
    titlePic->PlaceAddButtons(song.TrackCount);
    HideTrackButtons();
    trackPic->ShowCellCursor(std::nullopt);
}

void TrackCanvas::FitScrollBars()
{
    const SongState& song = Shared().Song;
    const int rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    const int cellsInView = view.trackPicWidth / kCellWidth;
    // If a range shrinks, the view moves with it.
    view.FirstTrack = FitScrollBar(*vScroll, TrackScrollRange(view, song.TrackCount), view.FirstTrack, rowsInView - 1);
    view.FirstCell =
        FitScrollBar(*hScroll, CellScrollRange(view, song.SongCells), view.FirstCell, cellsInView - kCellsOfAGroup);
}

void TrackCanvas::ShowFromStart()
{
    view.FirstTrack = 1;
    view.FirstCell = 1;
    DrawTracksAll();
}

void TrackCanvas::ShowAddedTrack()
{
    view.FirstTrack = FirstTrackForAdded(view, Shared().Song.TrackCount);
    DrawTracksAll();
}

void TrackCanvas::BeginFollowing()
{
    followed = FollowedEdges::Both;
}

void TrackCanvas::FollowMarker(std::int32_t cell)
{
    if (!followed || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    ScrollToCell(FollowingFirstCell(view, cell, *followed, hScroll->maximum()));
    followed = FollowedEdges::Right;
}

/// Scrolls without the user.
void TrackCanvas::ScrollToCell(std::int32_t cell)
{
    if (cell == view.FirstCell)
        return;
    view.FirstCell = cell;
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

Tool TrackCanvas::CurrentTool() const
{
    return tool;
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

std::int32_t TrackCanvas::BrushedTrack() const
{
    return stroke.Dragging() && tool == Tool::Brush ? stroke.DragTrack() : 0;
}

TrackView TrackCanvas::View() const
{
    return view;
}

void TrackCanvas::ShowPlayIndicator(const PlayIndicator& indicator)
{
    trackPic->ShowPlayIndicator(indicator);
}

void StopPlay(TrackCanvas& canvas)
{
    Player().StopPlay();
    canvas.ShowPlayIndicator({});
}

} // namespace sprout
