// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does on the canvas: mouse, wheel and keys.
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>

#include "core/Shared.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackPic.h"
#include "main_window/rules/CellValues.h"
#include "main_window/rules/TrackPointer.h"
#include "ui/Hints.h"
#include "ui/QtText.h"
#include "ui/ToolCursor.h"

namespace sprout {

namespace {

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

struct ButtonOfTool {
    Tool tool;
    std::string_view button;
};

constexpr std::array kButtonsOfTools{ButtonOfTool{Tool::Brush, "BrushBtn"}, ButtonOfTool{Tool::Eraser, "EraserBtn"},
                                     ButtonOfTool{Tool::PlayTool, "PlayToolBtn"}};

std::string_view ButtonOf(Tool tool)
{
    const auto* row = std::find_if(kButtonsOfTools.begin(), kButtonsOfTools.end(),
                                   [tool](const ButtonOfTool& candidate) { return candidate.tool == tool; });
    return row->button;
}

struct ArrowKey {
    int key;
    std::int32_t tracks;
    std::int32_t cells;
};

constexpr std::array kArrowKeys{ArrowKey{Qt::Key_Up, -1, 0}, ArrowKey{Qt::Key_Down, 1, 0},
                                ArrowKey{Qt::Key_Left, 0, -1}, ArrowKey{Qt::Key_Right, 0, 1}};

/// The table row for a key, nullptr if there is none.
template <class Row, std::size_t size>
const Row* RowOfKey(const std::array<Row, size>& table, int key)
{
    const auto row =
        std::find_if(table.begin(), table.end(), [key](const Row& candidate) { return candidate.key == key; });
    return row == table.end() ? nullptr : &*row;
}

template <class... Arguments>
void Ask(const std::function<void(Arguments...)>& call, const std::type_identity_t<Arguments>&... arguments)
{
    if (call)
        call(arguments...);
}

} // namespace

void TrackCanvas::SetCurrentTool(Tool newTool)
{
    tool = newTool;
    if (pointerImage == PointerImage::ToolCursor)
        trackPic->setCursor(ToolCursor(ButtonOf(tool), devicePixelRatioF()));
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
        followed.reset();
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
    // Even without a hit: a drag beyond the edge continues with the cell there.
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

void TrackCanvas::EndStroke()
{
    stroke.End();
}

void TrackCanvas::ShowRow(std::int32_t track)
{
    const std::int32_t rowsInView = (view.trackPicHeight - kFirstRowTop) / kRowHeight;
    if (track < view.FirstTrack)
        vScroll->setValue(track);
    else if (track >= view.FirstTrack + rowsInView)
        vScroll->setValue(track - std::max(rowsInView, 1) + 1);
}

void TrackCanvas::ShowCell(std::int32_t cell)
{
    const std::int32_t cellsInView = view.trackPicWidth / kCellWidth;
    if (cell < view.FirstCell)
        hScroll->setValue(cell - kCellsOfAGroup);
    else if (cell >= view.FirstCell + cellsInView)
        hScroll->setValue(cell - std::max(cellsInView - kCellsOfAGroup, 0));
}

QPoint TrackCanvas::KeyPoint() const
{
    return {CellLeft(view, keyCell), keyTrack == 0 ? 0 : RowTop(view, keyTrack) + kPaintTop};
}

bool TrackCanvas::StepKeyCell(const QKeyEvent& event)
{
    const ArrowKey* arrow = RowOfKey(kArrowKeys, event.key());
    if (!arrow)
        return false;
    const bool draws = event.modifiers() & Qt::ShiftModifier && tool != Tool::PlayTool && keyTrack > 0;
    if (draws && !stroke.Dragging()) {
        ShowKeyCell();
        Press(KeyPoint());
    }
    if (!stroke.Dragging())
        keyTrack += arrow->tracks;
    MoveKeyCell(arrow->cells);
    return true;
}

bool TrackCanvas::LeapKeyCell(int key)
{
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    MoveKeyCell(key == Qt::Key_PageDown ? kCellsOfAGroup : -kCellsOfAGroup);
    return true;
}

void TrackCanvas::MoveKeyCell(std::int32_t cells)
{
    const SongState& song = Shared().Song;
    keyTrack = std::clamp(keyTrack, 0, song.TrackCount);
    keyCell = std::clamp(keyCell + cells, 1, std::max(song.SongCells, 1)); // a file may contain a song without cells
    ShowKeyCell();
    TellKeyCell();
}

void TrackCanvas::ShowKeyCell()
{
    if (keyTrack > 0)
        ShowRow(keyTrack);
    ShowCell(keyCell);
    Move(KeyPoint());
}

void TrackCanvas::PressKeyCell()
{
    keyTrack = std::clamp(keyTrack, 0, Shared().Song.TrackCount);
    ShowKeyCell();
    Press(KeyPoint());
    EndStroke();
    TellKeyCell();
}

void TrackCanvas::TellKeyCell()
{
    // Screen readers read the name of the focused widget when it changes.
    trackPic->setAccessibleName(QtText(CellInWords(Shared().Song, keyTrack, keyCell)));
}

void TrackCanvas::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control)
        EndStroke();
    QWidget::keyReleaseEvent(event);
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
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses || event->key() == Qt::Key_Space) {
        if (event->isAutoRepeat()) // a held key would start and stop in turn
            return;
        return presses ? PressKeyCell() : Ask(calls.PlayOrStop);
    }
    if (event->modifiers() & Qt::ControlModifier && StepKeyCell(*event))
        return;
    if (event->modifiers() & Qt::ShiftModifier && LeapKeyCell(event->key()))
        return;
    const ScrollKey* row = RowOfKey(kScrollKeys, event->key());
    if (!row)
        return QWidget::keyPressEvent(event);
    (row->bar == Bar::Rows ? vScroll : hScroll)->triggerAction(row->action);
}

} // namespace sprout
