// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

#include <cstdint>

class QKeyEvent;

namespace sprout {

class TrackPic;
class TrackScroll;
class TrackTool;

/// The cell that the keys act on, shown by the cell cursor and named to screen readers. Keys move it, use the tool on
/// it and draw strokes.
class CellKeys {
public:
    /// All three outlive this object or die with it.
    CellKeys(TrackPic& surface, TrackTool& tool, TrackScroll& scroll);

    /// Control and an arrow key move the cell, with Shift they also draw; Shift and a page key move it by a group of
    /// cells. Returns false for other keys.
    bool PressKey(const QKeyEvent& event);
    /// Uses the tool on the cell, as a click of the mouse.
    void PressCell();

private:
    bool Step(const QKeyEvent& event);
    bool Leap(int key);
    void MoveBy(std::int32_t cells);
    void ShowCell();
    void TellCell();
    [[nodiscard]] QPoint Place() const;

    TrackPic& trackPic;
    TrackTool& tool;
    TrackScroll& scroll;
    std::int32_t keyTrack = 1; ///< 0 for the time band
    std::int32_t keyCell = 1;
};

} // namespace sprout
