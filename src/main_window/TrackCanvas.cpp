// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCanvas.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <utility>

#include "core/Shared.h"
#include "main_window/TrackPic.h"
#include "main_window/TrackTitlePic.h"
#include "main_window/rules/CellValues.h"
#include "ui/Hints.h"
#include "ui/Palette.h"
#include "ui/QtText.h"
#include "ui/ToolCursor.h"

namespace sprout {

namespace {

constexpr int kScrollBarBreadth = 18;
constexpr int kWheelNotch = 120;

enum class Bar { Rows, Cells };

struct ScrollKey {
    int key;
    Bar bar;
    QAbstractSlider::SliderAction action;
};

constexpr std::array kScrollKeys{
    ScrollKey{Qt::Key_Up, Bar::Rows, QAbstractSlider::SliderSingleStepSub},
    ScrollKey{Qt::Key_Down, Bar::Rows, QAbstractSlider::SliderSingleStepAdd},
    ScrollKey{Qt::Key_PageUp, Bar::Rows, QAbstractSlider::SliderPageStepSub},
    ScrollKey{Qt::Key_PageDown, Bar::Rows, QAbstractSlider::SliderPageStepAdd},
    ScrollKey{Qt::Key_Left, Bar::Cells, QAbstractSlider::SliderSingleStepSub},
    ScrollKey{Qt::Key_Right, Bar::Cells, QAbstractSlider::SliderSingleStepAdd},
    ScrollKey{Qt::Key_Home, Bar::Cells, QAbstractSlider::SliderToMinimum},
    ScrollKey{Qt::Key_End, Bar::Cells, QAbstractSlider::SliderToMaximum},
};

struct ToolButton {
    Tool tool;
    std::string_view button;
};

constexpr std::array kToolButtons{ToolButton{Tool::Brush, "BrushBtn"}, ToolButton{Tool::Eraser, "EraserBtn"},
                                  ToolButton{Tool::PlayTool, "PlayToolBtn"}};

std::string_view ButtonOf(Tool tool)
{
    const auto* row = std::find_if(kToolButtons.begin(), kToolButtons.end(),
                                   [tool](const ToolButton& candidate) { return candidate.tool == tool; });
    return row->button;
}

/// Gives a bar its range and its place, of which no event tells, and returns the place.
std::int32_t FitScrollBar(QScrollBar& bar, const ScrollRange& range, std::int32_t first, int pageStep)
{
    const QSignalBlocker quiet(bar);
    bar.setEnabled(range.enabled);
    bar.setRange(1, range.maximum);
    bar.setPageStep(std::max(pageStep, 1));
    bar.setValue(first);
    return bar.value();
}

template <class... Arguments>
void Ask(const std::function<void(Arguments...)>& call, const std::type_identity_t<Arguments>&... arguments)
{
    if (call)
        call(arguments...);
}

} // namespace

TrackCanvas::TrackCanvas(QWidget* parent, ButtonScheme& buttons, TrackCanvasCalls windowCalls)
    : QWidget(parent), calls(std::move(windowCalls))
{
    setObjectName(QStringLiteral("TrackFramePic"));
    MakeSurfaces(buttons);
    MakeScrollBars();
}

void TrackCanvas::MakeSurfaces(ButtonScheme& buttons)
{
    titlePic = new TrackTitlePic(view, buttons, calls, this);
    trackPic = new TrackPic(view, this);
    titlePic->Redraw = trackPic->Redraw = [this] { DrawTracksAll(); };
    connect(titlePic, &TrackTitlePic::RowChosen, this, &TrackCanvas::ShowRow);
    connect(trackPic, &TrackPic::Pressed, this, &TrackCanvas::Press);
    connect(trackPic, &TrackPic::Moved, this, &TrackCanvas::Move);
    connect(trackPic, &TrackPic::Released, this, [this] { stroke.End(); });
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
    titlePic->Clear();
    trackPic->Clear();
    DrawTrackTop();
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        DrawTrackOne(track);
    titlePic->PlaceAddButtons(song.TrackCount);
    HideTrackButtons();
    trackPic->ShowCellCursor(std::nullopt);
}

void TrackCanvas::FitScrollBars()
{
    const SongState& song = Shared().Song;
    const int rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    const int cellsInView = view.trackPicWidth / kCellWidth;
    // A range that became smaller takes the view along.
    view.FirstTrack = FitScrollBar(*vScroll, TrackScrollRange(view, song.TrackCount), view.FirstTrack, rowsInView - 1);
    view.FirstCell =
        FitScrollBar(*hScroll, CellScrollRange(view, song.SongCells), view.FirstCell, cellsInView - kCellsOfAGroup);
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

void TrackCanvas::SetCurrentTool(Tool newTool)
{
    tool = newTool;
    if (pointerImage == PointerImage::ToolCursor)
        trackPic->setCursor(ToolCursor(ButtonOf(tool), devicePixelRatioF()));
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

TrackHit TrackCanvas::HitTest(QPoint at) const
{
    return HitTestTrack(view, Shared().Song.TrackCount, Shared().Song.SongCells, at.x(), at.y());
}

void TrackCanvas::Press(QPoint at)
{
    const TrackHit hit = HitTest(at);
    switch (ActionOfPress(tool, hit)) {
    case PressAction::Nothing:
        return;
    case PressAction::PlaySongFrom:
        return Ask(calls.PlaySongFrom, hit.cell);
    case PressAction::PlayTrackFrom:
        return Ask(calls.PlayTrackFrom, hit.track, hit.cell);
    case PressAction::BeginStroke:
        if (stroke.Begin(Shared().Song, tool, hit, at.x(), at.y()))
            DrawStroke();
        Ask(calls.EnableTrackTitlePlayTimer);
    }
}

void TrackCanvas::Move(QPoint at)
{
    if (stroke.Dragging())
        at.setY(stroke.DownY());
    const TrackHit hit = HitTest(at);
    ShowPointer(PointerOverTracks(view, hit, stroke.Dragging() ? stroke.DragTrack() : 0));
    // Also without a hit: a drag beyond the edge goes on with the cell that lies there.
    if (stroke.MoveTo(Shared().Song, tool, hit.cell))
        DrawStroke();
}

void TrackCanvas::DrawStroke()
{
    DrawTrackTop();
    DrawTrackOne(stroke.DragTrack());
}

void TrackCanvas::Leave()
{
    trackPic->ShowCellCursor(std::nullopt);
    Ask(calls.ShowCell, std::string_view());
}

void TrackCanvas::ShowPointer(const TrackPointer& pointer)
{
    ShowPointerImage(pointer.image);
    ShowHint(QtText(pointer.hint));
    Ask(calls.ShowCell, std::string_view(pointer.TrackMouPosLbl));
    trackPic->ShowCellCursor(pointer.cellCursor);
}

void TrackCanvas::ShowPointerImage(PointerImage image)
{
    if (image == pointerImage)
        return;
    pointerImage = image;
    if (image == PointerImage::Default)
        trackPic->unsetCursor();
    else
        trackPic->setCursor(
            ToolCursor(ButtonOf(image == PointerImage::PlayTool ? Tool::PlayTool : tool), devicePixelRatioF()));
}

void TrackCanvas::ShowRow(std::int32_t track)
{
    const std::int32_t rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    if (track < view.FirstTrack)
        vScroll->setValue(track);
    else if (track >= view.FirstTrack + rowsInView)
        vScroll->setValue(track - std::max(rowsInView, 1) + 1);
}

void TrackCanvas::wheelEvent(QWheelEvent* event)
{
    QPoint turned = event->angleDelta();
    if (event->modifiers() & Qt::ShiftModifier)
        turned = QPoint(turned.x() + turned.y(), 0);
    wheelRest += turned;
    const QPoint notches(wheelRest.x() / kWheelNotch, wheelRest.y() / kWheelNotch);
    wheelRest -= QPoint(notches.x() * kWheelNotch, notches.y() * kWheelNotch);
    vScroll->setValue(vScroll->value() - notches.y());
    hScroll->setValue(hScroll->value() - notches.x() * kCellsOfAGroup);
    event->accept();
}

void TrackCanvas::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        return Ask(calls.PlayOrStop);
    const auto* row = std::find_if(kScrollKeys.begin(), kScrollKeys.end(),
                                   [event](const ScrollKey& candidate) { return candidate.key == event->key(); });
    if (row == kScrollKeys.end())
        return QWidget::keyPressEvent(event);
    (row->bar == Bar::Rows ? vScroll : hScroll)->triggerAction(row->action);
}

} // namespace sprout
