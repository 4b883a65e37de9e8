// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTool.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "core/Shared.h"
#include "main_window/TrackPic.h"
#include "ui/look/ToolCursor.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace {

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

} // namespace

TrackTool::TrackTool(TrackPic& surface, const TrackView& shownView, const TrackCanvasCalls& windowCalls)
    : trackPic(surface), view(shownView), calls(windowCalls)
{
    connect(&trackPic, &TrackPic::Pressed, this, &TrackTool::Press);
    connect(&trackPic, &TrackPic::Moved, this, &TrackTool::Move);
    connect(&trackPic, &TrackPic::Released, this, &TrackTool::EndStroke);
    connect(&trackPic, &TrackPic::Left, this, &TrackTool::Leave);
}

void TrackTool::SetCurrentTool(Tool newTool)
{
    tool = newTool;
    if (pointerImage == PointerImage::ToolCursor)
        trackPic.setCursor(ToolCursor(ButtonOf(tool), trackPic.devicePixelRatioF()));
}

std::int32_t TrackTool::BrushedTrack() const
{
    return stroke.Dragging() && tool == Tool::Brush ? stroke.DragTrack() : 0;
}

TrackHit TrackTool::HitTest(QPoint at) const
{
    return HitTestTrack(view, Shared().Song.TrackCount, Shared().Song.SongCells, at.x(), at.y());
}

void TrackTool::Press(QPoint at)
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
        return BeginStroke(hit, at);
    }
}

void TrackTool::BeginStroke(const TrackHit& hit, QPoint at)
{
    Q_EMIT StrokeBegun();
    if (stroke.Begin(Shared().Song, tool, hit, at.y()))
        Q_EMIT Painted(stroke.DragTrack());
    Ask(calls.EnableTrackTitlePlayTimer);
}

void TrackTool::Move(QPoint at)
{
    if (stroke.Dragging())
        at.setY(stroke.DownY());
    const TrackHit hit = HitTest(at);
    ShowPointer(PointerOverTracks(view, hit, stroke.Dragging() ? stroke.DragTrack() : 0));
    // Even without a hit: a drag beyond the edge continues with the cell there.
    if (stroke.MoveTo(Shared().Song, tool, hit.cell))
        Q_EMIT Painted(stroke.DragTrack());
}

void TrackTool::Leave()
{
    trackPic.ShowCellCursor(std::nullopt);
    Ask(calls.ShowCell, std::string_view());
}

void TrackTool::ShowPointer(const TrackPointer& pointer)
{
    ShowPointerImage(pointer.image);
    ShowHint(pointer.hint);
    Ask(calls.ShowCell, std::string_view(pointer.TrackMouPosLbl));
    trackPic.ShowCellCursor(pointer.cellCursor);
}

void TrackTool::ShowPointerImage(PointerImage image)
{
    if (image == pointerImage)
        return;
    pointerImage = image;
    if (image == PointerImage::Default)
        trackPic.unsetCursor();
    else
        trackPic.setCursor(ToolCursor(ButtonOf(image == PointerImage::PlayTool ? Tool::PlayTool : tool),
                                      trackPic.devicePixelRatioF()));
}

} // namespace sprout
