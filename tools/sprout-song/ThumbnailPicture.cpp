// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/ThumbnailPicture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cassert>
#include <new>
#include <span>

#include "base/Errors.h"
#include "main_window/rules/TrackGeometry.h"
#include "sprout-song/ThumbnailPlan.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr qreal kSheetCornerPart = 12; // of the side
constexpr qreal kBarCornerPart = 3;    // of the height
constexpr qreal kLinePart = 128;       // of the side
constexpr int kLeastPatternPx = 12;    // below this a pattern would be dirt: its mean colour says more
constexpr int kLeastOutlinePx = 6;
constexpr int kOutlineDarker = 155; // percent
constexpr int kEdgeDarker = 115;    // percent
// In parts of the side.
constexpr int kLeastMeadowPart = 8;
constexpr int kHighestMeadowPart = 3;

QImage EmptyImage(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        throw std::bad_alloc();
    image.fill(Qt::transparent);
    return image;
}

/// An artwork that repeats side by side, `height` pixels high. name: below art/.
QImage Pattern(const QString& name, int height)
{
    QSvgRenderer artwork(QStringLiteral(":/thumbnail/%1.svg").arg(name));
    assert(artwork.isValid());
    const QSize size = artwork.defaultSize();
    QImage image = EmptyImage(QSize(std::max(qRound(1.0 * size.width() * height / size.height()), 1), height));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    artwork.render(&painter, QRectF(image.rect()));
    return image;
}

QColor MeanColour(const QImage& image)
{
    return image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
}

/// How something is filled and outlined.
struct Ink {
    QBrush fill;
    QColor outline;
};

Ink InkOf(const QString& name, int height)
{
    const QImage image = Pattern(name, std::max(height, kLeastPatternPx));
    const QColor mean = MeanColour(image);
    return {height < kLeastPatternPx ? QBrush(mean) : QBrush(image), mean.darker(kOutlineDarker)};
}

class ThumbnailPainter {
public:
    ThumbnailPainter(QImage& image, const ThumbnailPlan& shown) : side(image.width()), plan(shown), painter(&image)
    {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    void PaintGround();
    void PaintLane(const ThumbnailLane& lane, bool isAudio);
    void CutCorners();

private:
    void PaintBar(const QRectF& place, const Ink& ink);
    void Round(const QRectF& place);
    [[nodiscard]] QRectF Sheet() const { return {0, 0, qreal(side), qreal(side)}; }
    [[nodiscard]] qreal Line() const { return std::max(side / kLinePart, 1.0); }

    int side;
    const ThumbnailPlan& plan;
    QPainter painter;
};

void ThumbnailPainter::PaintGround()
{
    painter.fillRect(Sheet(), kPaper);
    const int room = side - plan.meadowTop;
    if (room < side / kLeastMeadowPart)
        return;
    const QImage meadow = Pattern(QStringLiteral("pictures/Meadow"), std::min(room, side / kHighestMeadowPart));
    painter.setBrushOrigin(0, side - meadow.height());
    painter.fillRect(QRect(0, side - meadow.height(), side, meadow.height()), QBrush(meadow));
}

void ThumbnailPainter::PaintLane(const ThumbnailLane& lane, bool isAudio)
{
    const Ink ground = InkOf(QStringLiteral("pictures/TrackBlankPic%1").arg(isAudio ? 1 : 0), plan.rowHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground.fill);
    Round(QRectF(plan.left, lane.top, plan.right - plan.left, plan.rowHeight));
    const int height = plan.rowHeight - 2 * plan.barInset;
    const Ink ink = InkOf(QStringLiteral("tiles/Tile%1").arg(TileNumber(isAudio, lane.track)), height);
    for (const ThumbnailBar& bar : lane.bars)
        PaintBar(QRectF(bar.left, lane.top + plan.barInset, bar.right - bar.left, height), ink);
}

/// Draws a part of a row; a pattern begins at its top left.
void ThumbnailPainter::Round(const QRectF& place)
{
    const qreal corner = std::min(place.height() / kBarCornerPart, place.width() / 2);
    painter.setBrushOrigin(place.topLeft());
    painter.drawRoundedRect(place, corner, corner);
}

void ThumbnailPainter::PaintBar(const QRectF& place, const Ink& ink)
{
    const qreal line = Line();
    painter.setBrush(ink.fill);
    if (place.height() < kLeastOutlinePx || place.width() < 3 * line) {
        painter.setPen(Qt::NoPen);
        return Round(place);
    }
    painter.setPen(QPen(ink.outline, line));
    Round(place.adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

void ThumbnailPainter::CutCorners()
{
    const qreal corner = side / kSheetCornerPart;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kSand.darker(kEdgeDarker), 2 * Line())); // the outer half is cut off
    painter.drawRoundedRect(Sheet(), corner, corner);
    QImage mask = EmptyImage(QSize(side, side));
    QPainter cut(&mask);
    cut.setRenderHint(QPainter::Antialiasing);
    cut.setPen(Qt::NoPen);
    cut.setBrush(Qt::black);
    cut.drawRoundedRect(Sheet(), corner, corner);
    cut.end();
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
}

std::vector<std::byte> EncodedPng(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        throw RunTimeError(Words::Text("The picture could not be written."));
    const auto encoded = std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    return {encoded.begin(), encoded.end()};
}

} // namespace

std::vector<std::byte> DrawThumbnail(const SongState& paint, int side)
{
    const ThumbnailPlan plan = PlanThumbnail(paint, side);
    QImage image = EmptyImage(QSize(side, side));
    {
        ThumbnailPainter painter(image, plan);
        painter.PaintGround();
        for (const ThumbnailLane& lane : plan.lanes)
            painter.PaintLane(lane, At(paint.Tracks, lane.track).IsAudio());
        painter.CutCorners();
    }
    return EncodedPng(image);
}

} // namespace sprout
