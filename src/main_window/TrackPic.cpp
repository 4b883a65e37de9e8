// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackPic.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>

#include "main_window/CellOutline.h"
#include "main_window/TrackMarker.h"
#include "main_window/TrackPictures.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr QPoint kTimeSlideAt{-5, 2};
constexpr QPoint kUnpaintedTextAt{10, 6}; ///< below the row's top

/// Moves a marker and shows it, or hides it if it has no position.
void PlaceMarker(TrackMarker& marker, const std::optional<QPoint>& at)
{
    if (at)
        marker.move(*at);
    marker.setVisible(at.has_value());
}

} // namespace

TrackPic::TrackPic(const TrackView& shownView, QWidget* parent)
    : TrackSurface("TrackPic", kPaper, parent),
      view(shownView),
      cellOutline(new CellOutline(this)),
      cellCursor(new TrackMarker("CellCursor", this)),
      songMarker(new TrackMarker("PlayPosImg0", this)),
      trackMarker(new TrackMarker("PlayPosImg1", this))
{
    songMarker->SetPicture(QStringLiteral("pictures/PlayPosImg"));
    trackMarker->SetPicture(QStringLiteral("pictures/PlayPosImg"));
    SetSpokenRole(*this, QAccessible::Canvas);
    SetSpokenName(*this, Words::Text("Tracks"));
    SetSpokenDescription(*this, Words::Text("Paint here with the brush and the eraser. The arrow keys scroll, the "
                                            "space bar plays and stops. Control and "
                                            "an arrow key choose a cell, Shift and Page Up or Page Down one that is "
                                            "eight cells away. Enter uses the tool "
                                            "on it. Control, Shift and an arrow key draw."));
}

void TrackPic::Clear()
{
    TrackSurface::Clear();
    drawnRows.assign(static_cast<std::size_t>(std::max(VisibleRows(view), 0)) + 1, std::nullopt);
    drawnTop.reset();
}

void TrackPic::PaintMeadow(std::int32_t trackCount)
{
    if (const auto top = HillsTop(view, trackCount))
        Painter().Tile(QRect(0, *top, width(), kHillsHeight), CanvasPicture("Hills", kHillsTileSize, PixelRatio()));
    if (const auto top = MeadowTop(view, trackCount))
        Painter().Tile(QRect(0, *top, width(), kMeadowHeight), CanvasPicture("Meadow", kMeadowTileSize, PixelRatio()));
}

void TrackPic::DrawAll(const SongState& song)
{
    Clear();
    PaintMeadow(song.TrackCount);
    DrawTop(song);
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        DrawRow(song, track);
}

void TrackPic::DrawRow(const SongState& song, std::int32_t track)
{
    const auto row = static_cast<std::size_t>(track - view.FirstTrack);
    if (IsStale() || !RowIsVisible(view, track) || row >= drawnRows.size())
        return;
    RowLook look = LookOfRow(song, track, view);
    if (drawnRows[row] == look)
        return;
    PaintRow(look, RowTop(view, track));
    drawnRows[row] = std::move(look);
}

void TrackPic::PaintRow(const RowLook& look, std::int32_t rowTop)
{
    const QRect background(0, rowTop + kBackgroundTop, width(), kBackgroundHeight);
    SurfacePainter painter = Painter();
    painter.Tile(background, TrackBlankPic(look.trackType, PixelRatio()));
    const QPixmap tile = TrackDrawnPic(look.tile, PixelRatio());
    for (const PaintedRun& run : look.runs)
        PaintRun(painter, run, look.cycle, tile, rowTop);
    if (!look.painted)
        WriteUnpainted(painter, background, look.trackType);
    Changed(background);
}

void TrackPic::WriteUnpainted(SurfacePainter& painter, const QRect& background, std::int32_t trackType) const
{
    const QString text = QtText(Words::Text("Please paint on this track to play with others."));
    const int textEnd = kUnpaintedTextAt.x() + QFontMetrics(LabelFont()).horizontalAdvance(text);
    const int tiles = (textEnd + kTileWidth - 1) / kTileWidth;
    painter.Tile(QRect(background.topLeft(), QSize(std::min(tiles * kTileWidth, width()), background.height())),
                 TrackPlainPic(trackType, PixelRatio()));
    painter.Write(kUnpaintedTextAt.x(), background.top() - kBackgroundTop + kUnpaintedTextAt.y(), LabelFont(), text);
}

void TrackPic::PaintRun(SurfacePainter& painter, const PaintedRun& run, std::int32_t cycle, const QPixmap& tile,
                        std::int32_t rowTop) const
{
    for (const TilePlace& place : RunTiles(run, view, kTileWidth))
        painter.Lay(QRect(place.x, rowTop + kPaintTop, place.width, kPaintHeight), tile);
    for (const PixelRect& mark : RunMarks(run, cycle, view, rowTop))
        painter.Fill(QRect(mark.x, mark.y, mark.width, mark.height), Qt::black);
}

void TrackPic::DrawTop(const SongState& song)
{
    TopLook look = LookOfTop(song, view);
    if (IsStale() || drawnTop == look)
        return;
    const QRect band(0, 0, width(), kTimeBandHeight);
    SurfacePainter painter = Painter();
    painter.Fill(band, BackColour());
    painter.Lay(QRect(kTimeSlideAt, kTimeSlideSize), CanvasPicture("TimeSlide", kTimeSlideSize, PixelRatio()));
    PaintBusyMarks(painter, look.marks);
    PaintSeconds(painter, song);
    drawnTop = std::move(look);
    Changed(band);
}

void TrackPic::PaintBusyMarks(SurfacePainter& painter, const std::vector<BusyMark>& marks) const
{
    const std::array pictures{BusyMarkPic(0, PixelRatio()), BusyMarkPic(1, PixelRatio())};
    for (const BusyMark& mark : marks)
        painter.Lay(QRect(mark.x, 0, kCellWidth, kTimeBandHeight), pictures[mark.picture == 0 ? 0 : 1]);
}

void TrackPic::PaintSeconds(SurfacePainter& painter, const SongState& song) const
{
    const QFont font = HintFont();
    const int top = kTimeBandHeight - QFontMetrics(font).height();
    for (const SecondsLabel& label : SecondsLabels(song, view))
        painter.Write(label.x, top, font, QString::number(label.seconds));
}

void TrackPic::ShowCellCursor(const std::optional<CellCursor>& cursor)
{
    if (cursor)
        cellCursor->SetColour(ColourOf(cursor->colour));
    PlaceMarker(*cellCursor, cursor ? std::optional(QPoint(cursor->x, cursor->y)) : std::nullopt);
    ShowCellOutline();
}

void TrackPic::ShowCellOutline()
{
    cellOutline->PlaceAround(cellCursor->pos());
    cellOutline->setVisible(hasFocus() && !cellCursor->isHidden());
}

void TrackPic::ShowPlayIndicator(const PlayIndicator& indicator)
{
    PlaceMarker(*songMarker, indicator.songLeft ? std::optional(QPoint(*indicator.songLeft, 0)) : std::nullopt);
    PlaceMarker(*trackMarker,
                indicator.track ? std::optional(QPoint(indicator.track->left, indicator.track->top)) : std::nullopt);
}

void TrackPic::FitMarkers()
{
    songMarker->resize(kCellWidth, height());
}

void TrackPic::mousePressEvent(QMouseEvent* event)
{
    TrackSurface::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT Pressed(event->position().toPoint());
}

void TrackPic::mouseMoveEvent(QMouseEvent* event)
{
    Q_EMIT Moved(event->position().toPoint());
}

void TrackPic::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    Q_EMIT Released();
}

void TrackPic::leaveEvent(QEvent* event)
{
    Q_EMIT Left();
    TrackSurface::leaveEvent(event);
}

void TrackPic::focusInEvent(QFocusEvent* event)
{
    TrackSurface::focusInEvent(event);
    ShowCellOutline();
}

void TrackPic::focusOutEvent(QFocusEvent* event)
{
    // A stroke drawn by keys would miss their release.
    Q_EMIT Released();
    TrackSurface::focusOutEvent(event);
    ShowCellOutline();
}

void TrackPic::PaintOver(QPainter& painter)
{
    if (hasFocus() && FocusByKey())
        PaintFocusRing(painter, rect());
}

} // namespace sprout
