// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackPictures.h"

#include "main_window/rules/BevelTunePicture.h"

namespace sprout {

namespace {

/// The background of a row by track type. name: contains a placeholder for the type's number.
WantedArtwork RowArtwork(const QString& name, std::int32_t trackType, qreal pixelRatio)
{
    const int kind = trackType == static_cast<std::int32_t>(TrackKind::Audio) ? 1 : 0;
    return {name.arg(kind), QSize(kTileWidth, kBackgroundHeight), pixelRatio};
}

WantedArtwork BlankArtwork(std::int32_t trackType, qreal pixelRatio)
{
    return RowArtwork(QStringLiteral("pictures/TrackBlankPic%1"), trackType, pixelRatio);
}

WantedArtwork TileArtwork(std::int32_t tile, qreal pixelRatio)
{
    return {QStringLiteral("tiles/Tile%1").arg(tile), QSize(kTileWidth, kPaintHeight), pixelRatio};
}

WantedArtwork CanvasArtwork(const char* name, QSize size, qreal pixelRatio)
{
    return {QStringLiteral("pictures/") + QString::fromLatin1(name), size, pixelRatio};
}

} // namespace

QPixmap TrackBlankPic(std::int32_t trackType, qreal pixelRatio)
{
    return Artwork(BlankArtwork(trackType, pixelRatio));
}

QPixmap TrackPlainPic(std::int32_t trackType, qreal pixelRatio)
{
    return Artwork(RowArtwork(QStringLiteral("pictures/TrackPlainPic%1"), trackType, pixelRatio));
}

QPixmap TrackDrawnPic(std::int32_t tile, qreal pixelRatio)
{
    return Artwork(TileArtwork(tile, pixelRatio));
}

QPixmap BusyMarkPic(std::int32_t picture, qreal pixelRatio)
{
    return Artwork(QStringLiteral("pictures/BusyMark%1").arg(picture), QSize(kBusyMarkWidth, kTimeBandHeight),
                   pixelRatio);
}

QPixmap CanvasPicture(const char* name, QSize size, qreal pixelRatio)
{
    return Artwork(CanvasArtwork(name, size, pixelRatio));
}

std::vector<WantedArtwork> CanvasArtworks(qreal pixelRatio)
{
    std::vector<WantedArtwork> artworks{CanvasArtwork("TimeSlide", kTimeSlideSize, pixelRatio),
                                        CanvasArtwork("Meadow", kMeadowTileSize, pixelRatio),
                                        CanvasArtwork("Hills", kHillsTileSize, pixelRatio),
                                        BlankArtwork(static_cast<std::int32_t>(TrackKind::Music), pixelRatio),
                                        CanvasArtwork("DeleteButtonPic", kDeleteButtonPicSize, pixelRatio),
                                        CanvasArtwork("PlayPic", kPlayPicSize, pixelRatio)};
    for (std::int32_t tile = 1; tile <= kMusicTiles; ++tile)
        artworks.push_back(TileArtwork(tile, pixelRatio));
    return artworks;
}

QImage RaisedTunePicture(const Picture& picture)
{
    return ToImage(BevelTunePicture(picture));
}

} // namespace sprout
