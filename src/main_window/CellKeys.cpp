// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/CellKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

#include "core/Shared.h"
#include "main_window/TrackPic.h"
#include "main_window/TrackScroll.h"
#include "main_window/TrackTool.h"
#include "main_window/rules/CellValues.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

struct ArrowKey {
    int key;
    std::int32_t tracks;
    std::int32_t cells;
};

constexpr std::array kArrowKeys{ArrowKey{Qt::Key_Up, -1, 0}, ArrowKey{Qt::Key_Down, 1, 0},
                                ArrowKey{Qt::Key_Left, 0, -1}, ArrowKey{Qt::Key_Right, 0, 1}};

} // namespace

CellKeys::CellKeys(TrackPic& surface, TrackTool& trackTool, TrackScroll& trackScroll)
    : trackPic(surface), tool(trackTool), scroll(trackScroll)
{
}

bool CellKeys::PressKey(const QKeyEvent& event)
{
    if (event.modifiers() & Qt::ControlModifier && Step(event))
        return true;
    return event.modifiers() & Qt::ShiftModifier && Leap(event.key());
}

bool CellKeys::Step(const QKeyEvent& event)
{
    const auto* arrow = std::find_if(kArrowKeys.begin(), kArrowKeys.end(),
                                     [&event](const ArrowKey& candidate) { return candidate.key == event.key(); });
    if (arrow == kArrowKeys.end())
        return false;
    const bool draws = event.modifiers() & Qt::ShiftModifier && tool.CurrentTool() != Tool::PlayTool && keyTrack > 0;
    if (draws && !tool.IsDrawing()) {
        ShowCell();
        tool.Press(Place());
    }
    if (!tool.IsDrawing())
        keyTrack += arrow->tracks;
    MoveBy(arrow->cells);
    return true;
}

bool CellKeys::Leap(int key)
{
    if (key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return false;
    MoveBy(key == Qt::Key_PageDown ? kCellsOfAGroup : -kCellsOfAGroup);
    return true;
}

void CellKeys::MoveBy(std::int32_t cells)
{
    const SongState& song = Shared().Song;
    keyTrack = std::clamp(keyTrack, 0, song.TrackCount);
    keyCell = std::clamp(keyCell + cells, 1, std::max(song.SongCells, 1)); // a file may contain a song without cells
    ShowCell();
    TellCell();
}

void CellKeys::PressCell()
{
    keyTrack = std::clamp(keyTrack, 0, Shared().Song.TrackCount);
    ShowCell();
    tool.Press(Place());
    tool.EndStroke();
    TellCell();
}

void CellKeys::ShowCell()
{
    if (keyTrack > 0)
        scroll.ShowRow(keyTrack);
    scroll.ShowCell(keyCell);
    tool.Move(Place());
}

void CellKeys::TellCell()
{
    // Screen readers read the name of the focused widget when it changes.
    SetSpokenName(trackPic, CellInWords(Shared().Song, keyTrack, keyCell));
}

QPoint CellKeys::Place() const
{
    const TrackView& view = scroll.View();
    return {CellLeft(view, keyCell), keyTrack == 0 ? 0 : RowTop(view, keyTrack) + kPaintTop};
}

} // namespace sprout
