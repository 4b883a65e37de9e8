// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TitleRow.h"

#include "main_window/TrackPictures.h"
#include "main_window/rules/TitleStrip.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/look/Look.h"

namespace sprout {

namespace {

constexpr std::int32_t kThreeDigits = 100;
constexpr int kSmallNumberPixels = 12;

} // namespace

void PaintTitleRow(SurfacePainter& painter, const Track& track, std::int32_t number, std::int32_t rowTop,
                   qreal pixelRatio)
{
    const QRect background(0, rowTop + kBackgroundTop, kTitleStripWidth, kBackgroundHeight);
    const QRect picture(kTrackPictureLeft, rowTop + kPaintTop, kPictureSide, kPictureSide);
    painter.Tile(background, TrackBlankPic(track.TrackType, pixelRatio));
    if (track.IsAudio())
        painter.Lay(picture, CanvasPicture("RecordButtonPic", picture.size(), pixelRatio));
    else
        painter.LayBitmap(picture, RaisedTunePicture(track.TrackTune.Picture));

    QFont font = ButtonFont();
    if (number >= kThreeDigits)
        font.setPixelSize(kSmallNumberPixels);
    painter.Write(TrackNumberLeft(number), rowTop + kTrackNumberTop, font, QString::number(number));
    painter.Lay(QRect(QPoint(kDeleteButtonLeft, rowTop + kDeleteButtonTop), kDeleteButtonPicSize),
                CanvasPicture("DeleteButtonPic", kDeleteButtonPicSize, pixelRatio));
    painter.Lay(QRect(QPoint(kPlayPicLeft, rowTop + kPlayPicTop), kPlayPicSize),
                CanvasPicture("PlayPic", kPlayPicSize, pixelRatio));
}

} // namespace sprout
