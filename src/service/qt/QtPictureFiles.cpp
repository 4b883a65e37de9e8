// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/qt/QtPictureFiles.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

#include "core/Errors.h"

namespace sprout {

namespace {

constexpr int kMostPixelsASide = 4096;

QString QtPath(const std::filesystem::path& path)
{
    return QFile::decodeName(path.c_str());
}

std::uint32_t ToBgr(QRgb colour)
{
    return static_cast<std::uint32_t>(qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour));
}

/// What is seen through lies on white.
QImage Opaque(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB32);
    QImage white(image.size(), QImage::Format_RGB32);
    const QImage alpha = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < white.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(alpha.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(white.scanLine(y));
        for (int x = 0; x < white.width(); ++x) {
            const int cover = qAlpha(from[x]);
            const auto over = [cover](int part) { return (part * cover + 255 * (255 - cover) + 127) / 255; };
            to[x] = qRgb(over(qRed(from[x])), over(qGreen(from[x])), over(qBlue(from[x])));
        }
    }
    return white;
}

} // namespace

Picture QtPictureFiles::LoadPicture(const std::filesystem::path& path) const
{
    QImageReader reader(QtPath(path));
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > kMostPixelsASide || size.height() > kMostPixelsASide)
        throw RunTimeError("The picture " + path.native() + " is too large.");
    const QImage read = reader.read();
    if (read.isNull())
        throw RunTimeError("The picture " + path.native() + " cannot be read.");
    const QImage image = Opaque(read);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            pixels.push_back(ToBgr(line[x]));
    }
    return {image.width(), image.height(), std::move(pixels)};
}

void QtPictureFiles::SavePicture(const Picture& picture, const std::filesystem::path& path) const
{
    QImage image(picture.Width(), picture.Height(), QImage::Format_RGB888);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint32_t colour = picture.Pixel(x, y);
            image.setPixelColor(x, y,
                                QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                                       static_cast<int>((colour >> 16) & 0xFF)));
        }
    }
    if (!image.save(QtPath(path), "BMP"))
        throw RunTimeError("The picture " + path.native() + " could not be written.");
}

} // namespace sprout
