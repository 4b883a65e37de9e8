// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Artwork.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdint>
#include <vector>

#include "ui/Palette.h"

namespace sprout {

namespace {

QByteArray SourceOf(const QString& name, const QColor& inPlaceOfDeepLeaf)
{
    QFile file(QStringLiteral(":/art/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray source = file.readAll();
    if (inPlaceOfDeepLeaf.isValid())
        source.replace(kDeepLeaf.name().toUpper().toLatin1(), inPlaceOfDeepLeaf.name().toLatin1());
    return source;
}

QImage Drawn(const QString& name, QSize devicePixels, const QColor& inPlaceOfDeepLeaf, const QColor& ground)
{
    QSvgRenderer renderer(SourceOf(name, inPlaceOfDeepLeaf));
    if (!renderer.isValid() || devicePixels.isEmpty())
        return {};
    QImage image(devicePixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(devicePixels)));
    return image;
}

QString KeyOf(const QString& name, QSize devicePixels, qreal pixelRatio, const QColor& colour)
{
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(name)
        .arg(devicePixels.width())
        .arg(devicePixels.height())
        .arg(pixelRatio)
        .arg(colour.isValid() ? colour.name() : QString());
}

} // namespace

QPixmap Artwork(const QString& name, QSize size, qreal pixelRatio, const QColor& inPlaceOfDeepLeaf)
{
    static QHash<QString, QPixmap> kept;
    const QSize devicePixels = (QSizeF(size) * pixelRatio).toSize();
    const QString key = KeyOf(name, devicePixels, pixelRatio, inPlaceOfDeepLeaf);
    const auto found = kept.constFind(key);
    if (found != kept.constEnd())
        return *found;
    QPixmap pixmap = QPixmap::fromImage(Drawn(name, devicePixels, inPlaceOfDeepLeaf, Qt::transparent));
    pixmap.setDevicePixelRatio(pixelRatio);
    kept.insert(key, pixmap);
    return pixmap;
}

Picture ArtworkPicture(const QString& name)
{
    const QImage image = Drawn(name, QSize(kPictureSide, kPictureSide), {}, Qt::white);
    if (image.isNull())
        return {};
    std::vector<std::uint32_t> pixels;
    pixels.reserve(kPicturePixels);
    for (int y = 0; y < kPictureSide; ++y) {
        for (int x = 0; x < kPictureSide; ++x) {
            const QRgb colour = image.pixel(x, y);
            pixels.push_back(static_cast<std::uint32_t>(qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour)));
        }
    }
    return {kPictureSide, kPictureSide, std::move(pixels)};
}

QImage ToImage(const Picture& picture)
{
    QImage image(picture.Width(), picture.Height(), QImage::Format_RGB32);
    for (int y = 0; y < picture.Height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint32_t colour = picture.Pixel(x, y);
            line[x] = qRgb(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                           static_cast<int>(colour >> 16 & 0xFF));
        }
    }
    return image;
}

} // namespace sprout
