// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/Song.h"
#include "main_window/TrackSurface.h"
#include "main_window/rules/PlayIndicator.h"
#include "main_window/rules/TrackLooks.h"
#include "main_window/rules/TrackPointer.h"

namespace sprout {

class CellOutline;
class TrackMarker;

/// The painting surface: the time band and the tracks' painted runs. On top are the cell cursor (`CellCursor`), with an
/// outline (`CellOutline`) while the surface has the focus, and the two play position markers (`PlayPosImg0`,
/// `PlayPosImg1`). It draws and reports mouse events; others decide what a press means.
class TrackPic : public TrackSurface {
    Q_OBJECT

public:
    /// view: what is scrolled into view; it outlives the surface.
    TrackPic(const TrackView& view, QWidget* parent);

    /// Clears the surface and draws all of it.
    void DrawAll(const SongState& song);
    /// Draws a track's row if it is in view and its picture has changed. Does nothing if the whole surface is waiting
    /// for a redraw.
    void DrawRow(const SongState& song, std::int32_t track);
    /// Draws the time band if its picture has changed.
    void DrawTop(const SongState& song);

    /// Places the cell cursor, or hides it if there is none.
    void ShowCellCursor(const std::optional<CellCursor>& cursor);
    void ShowPlayIndicator(const PlayIndicator& indicator);
    /// Sets the markers' height to that of the surface.
    void FitMarkers();

Q_SIGNALS:
    void Pressed(QPoint at);
    void Moved(QPoint at);
    void Released();
    void Left();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void PaintOver(QPainter& painter) override;

private:
    void ShowCellOutline();
    void Clear();
    /// Draws a meadow at the lower edge of the cleared surface, if there is room below the rows.
    void PaintMeadow(std::int32_t trackCount);
    void PaintRow(const RowLook& look, std::int32_t rowTop);
    void WriteUnpainted(SurfacePainter& painter, const QRect& background, std::int32_t trackType) const;
    void PaintRun(SurfacePainter& painter, const PaintedRun& run, std::int32_t cycle, const QPixmap& tile,
                  std::int32_t rowTop) const;
    void PaintBusyMarks(SurfacePainter& painter, const std::vector<BusyMark>& marks) const;
    void PaintSeconds(SurfacePainter& painter, const SongState& song) const;

    const TrackView& view;
    std::vector<std::optional<RowLook>> drawnRows; ///< by row, from the top
    std::optional<TopLook> drawnTop;
    CellOutline* cellOutline; ///< below the cell cursor, while the surface has the focus
    TrackMarker* cellCursor;
    TrackMarker* songMarker;  ///< element 0 of `PlayPosImg`
    TrackMarker* trackMarker; ///< element 1
};

} // namespace sprout
