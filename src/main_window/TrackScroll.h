// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

#include <cstdint>
#include <optional>

#include "main_window/rules/PlayIndicator.h"
#include "main_window/rules/TrackGeometry.h"

class QScrollBar;
class QWheelEvent;
class QWidget;

namespace sprout {

/// Which part of the song is in view, with the bars that scroll it by rows (`TrackVScroll`) and by cells
/// (`TrackHScroll`). The wheel and keys move the bars; a play can pull the view along.
class TrackScroll : public QObject {
    Q_OBJECT

public:
    [[nodiscard]] const TrackView& View() const { return view; }

    /// Adds the bars to the canvas. Call it once, before the rest.
    void MakeBars(QWidget& canvas);
    /// Puts the bars to the right of the painting surface and below it.
    void PlaceBars(const QRect& surface);
    /// Fits bars and view to the song. If a range shrinks, the view moves with it.
    void FitSong(std::int32_t trackCount, std::int32_t songCells);

    // These two do not move the bars; the next `FitSong` does.
    void GoToStart();
    /// Goes to the last row and the buttons below it.
    void GoToAdded(std::int32_t trackCount);

    /// Scrolls as little as brings a row or a cell into view.
    void ShowRow(std::int32_t track);
    void ShowCell(std::int32_t cell);

    /// Keeps the marker of a play that starts in view, until the user scrolls sideways or `EndFollowing`.
    void BeginFollowing();
    void EndFollowing();
    /// Scrolls to the marker's cell if the play is followed and no mouse button is held.
    void FollowMarker(std::int32_t cell);

    void TurnWheel(QWheelEvent& event);
    /// Scrolls by a key. Returns false if the key does not scroll.
    bool PressKey(int key);

Q_SIGNALS:
    /// Another part of the song is in view.
    void Scrolled();

private:
    QScrollBar* MakeBar(QWidget& canvas, Qt::Orientation orientation, std::int32_t TrackView::*first);

    TrackView view;
    QScrollBar* vScroll = nullptr;
    QScrollBar* hScroll = nullptr;
    std::optional<FollowedEdges> followed; ///< the edges that make the view follow a play; none: not followed
    QPoint wheelRest;                      ///< rotation since the last whole notch, in eighths of a degree
};

} // namespace sprout
