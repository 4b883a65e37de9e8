// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridPictures.h"

#include <algorithm>

#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/FittingFont.h"

namespace sprout {

namespace {

constexpr int kGridLineLeft = 10;
constexpr int kGridLineHeight = 28;
constexpr int kMostGridImageSide = 4 * kPictureSide; // enough for every screen

/// Shrinks a large picture once instead of at every drawing.
QImage GridImage(const Picture& picture)
{
    QImage image = ToImage(picture);
    if (image.width() <= kMostGridImageSide && image.height() <= kMostGridImageSide)
        return image;
    return image.scaled(kMostGridImageSide, kMostGridImageSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The pixels of a small picture stay sharp if each of them covers whole screen pixels.
bool NeedsSmoothing(const QImage& image, qreal pixelRatio)
{
    const qreal side = kPictureSide * pixelRatio;
    const auto fits = [side](int pixels) { return pixels > 0 && side == qRound(side / pixels) * qreal(pixels); };
    return !fits(image.width()) || !fits(image.height());
}

} // namespace

void GridPictures::Set(const std::vector<GridEntry>& entries)
{
    pictures.clear();
    pictures.reserve(entries.size());
    for (const GridEntry& entry : entries)
        pictures.push_back({entry, {}});
}

void GridPictures::Paint(QPainter& painter, const PictureGrid& grid, int selected, const QRect& exposed)
{
    const int first = (grid.topRow - 1) * grid.columns + 1;
    for (int index = std::max(first, 1); index <= grid.count && IsInGridView(grid, index); ++index) {
        const GridPlace at = PlaceInGrid(grid, index);
        const QRect place(at.x, at.y, kPictureSide, kPictureSide);
        if (exposed.intersects(place.adjusted(-1, -1, 1, 1)))
            PaintOne(painter, index, place, index != selected);
    }
}

void GridPictures::PaintOne(QPainter& painter, int index, const QRect& place, bool hasBorder)
{
    Shown& shown = pictures[static_cast<std::size_t>(index - 1)];
    if (shown.image.isNull())
        shown.image = GridImage(shown.entry.Picture);
    if (hasBorder)
        painter.fillRect(place.adjusted(-1, -1, 1, 1), shown.entry.Original ? kOriginalBorder : kUserBorder);
    painter.fillRect(place, Qt::white);
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          NeedsSmoothing(shown.image, painter.device()->devicePixelRatioF()));
    painter.drawImage(place, shown.image);
}

void PaintEmptyGrid(QPainter& painter, QSize grid, const QStringList& lines)
{
    painter.setPen(kBark);
    const int room = grid.width() - 2 * kGridLineLeft;
    const int inset = kGridInset / 2;
    const int lineHeight =
        std::min(kGridLineHeight, (grid.height() - 2 * inset) / std::max(1, static_cast<int>(lines.size())));
    int top = inset;
    for (const QString& line : lines) {
        painter.setFont(FittingFont(LabelFont(), line, room));
        painter.drawText(QRect(kGridLineLeft, top, room, lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(line, Qt::ElideMiddle, room));
        top += lineHeight;
    }
}

} // namespace sprout
