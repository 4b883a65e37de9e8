// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackPictures.h"

#include "main_window/rules/BevelTunePicture.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/Artwork.h"

namespace sprout {

QPixmap TrackBlankPic(std::int32_t trackType, qreal pixelRatio)
{
    const int kind = trackType == static_cast<std::int32_t>(TrackKind::Audio) ? 1 : 0;
    return Artwork(QStringLiteral("pictures/TrackBlankPic%1").arg(kind), QSize(kTileWidth, kBackgroundHeight),
                   pixelRatio);
}

QPixmap TrackDrawnPic(std::int32_t tile, qreal pixelRatio)
{
    return Artwork(QStringLiteral("tiles/Tile%1").arg(tile), QSize(kTileWidth, kPaintHeight), pixelRatio);
}

QPixmap BusyMarkPic(std::int32_t picture, qreal pixelRatio)
{
    return Artwork(QStringLiteral("pictures/BusyMark%1").arg(picture), QSize(kBusyMarkWidth, kTimeBandHeight),
                   pixelRatio);
}

QPixmap CanvasPicture(const char* name, QSize size, qreal pixelRatio)
{
    return Artwork(QStringLiteral("pictures/") + QString::fromLatin1(name), size, pixelRatio);
}

QImage RaisedTunePicture(const Picture& picture)
{
    return ToImage(BevelTunePicture(picture));
}

} // namespace sprout
