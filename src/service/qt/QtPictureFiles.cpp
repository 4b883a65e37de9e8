// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/qt/QtPictureFiles.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "base/Errors.h"

namespace sprout {

namespace {

constexpr int kMostPixelsASide = 4096;
constexpr qint64 kMostFileBytes = 80'000'000; // a .bmp of the largest size at 32 bits per pixel, and some more

QString QtPath(const std::filesystem::path& path)
{
    return QFile::decodeName(path.c_str());
}

std::uint32_t ToBgr(QRgb colour)
{
    return static_cast<std::uint32_t>(qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour));
}

/// Passes on a requested image of this width. Qt returns an empty one if it has no memory.
QImage Allocated(QImage image, int width)
{
    if (image.isNull() && width > 0)
        throw std::bad_alloc();
    return image;
}

/// Puts transparent pixels on white.
QImage Opaque(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return Allocated(image.convertToFormat(QImage::Format_RGB32), image.width());
    QImage white = Allocated(QImage(image.size(), QImage::Format_RGB32), image.width());
    const QImage alpha = Allocated(image.convertToFormat(QImage::Format_ARGB32), image.width());
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

std::int64_t Number(const QByteArray& bytes, int place, int count)
{
    std::uint64_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = value << 8 | static_cast<std::uint8_t>(bytes.at(place + i));
    return static_cast<std::int64_t>(value);
}

/// Pixels of an uncompressed .bmp are stored in whole lines after its header.
bool IsCutBmp(const QByteArray& bytes, QSize size)
{
    constexpr int headBytes = 54;
    constexpr std::int64_t oldHead = 12; // of a kind without compression
    if (bytes.size() < headBytes)
        return true;
    const bool old = Number(bytes, 14, 4) == oldHead;
    const std::int64_t compression = old ? 0 : Number(bytes, 30, 4);
    if (compression == 1 || compression == 2)
        return false; // run lengths mark their own end
    const std::int64_t bits = Number(bytes, old ? 24 : 28, 2);
    const std::int64_t lineBytes = (size.width() * bits + 31) / 32 * 4;
    return Number(bytes, 10, 4) + lineBytes * std::abs(size.height()) > bytes.size();
}

/// The end mark follows the last scan of a .jpg; inside a scan neither mark can occur.
bool IsCutJpg(const QByteArray& bytes)
{
    return bytes.lastIndexOf(QByteArray("\xFF\xD9", 2)) < bytes.lastIndexOf(QByteArray("\xFF\xDA", 2));
}

/// True for a picture whose end is missing; the readers would silently fill it with a colour.
bool IsCut(const QByteArray& bytes, const QByteArray& kind, QSize size)
{
    if (kind == "bmp")
        return IsCutBmp(bytes, size);
    return kind == "jpeg" && IsCutJpg(bytes);
}

bool IsKnownKind(const QByteArray& kind)
{
    return kind == "bmp" || kind == "jpeg" || kind == "gif" || kind == "png";
}

QImage ReadImage(QByteArray bytes, const std::filesystem::path& path)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray kind = reader.format(); // by content, whatever the file name
    const QSize size = reader.size();
    if (std::abs(size.width()) > kMostPixelsASide || std::abs(size.height()) > kMostPixelsASide)
        throw RunTimeError(Words::Text("The picture %1 is too large.", path.native()));
    if (!IsKnownKind(kind) || size.width() < 1 || size.height() == 0 || IsCut(bytes, kind, size))
        throw RunTimeError(Words::Text("The picture %1 cannot be read.", path.native()));
    QImage image = reader.read();
    if (image.isNull())
        throw RunTimeError(Words::Text("The picture %1 cannot be read.", path.native()));
    return image;
}

QImage ToImage(const Picture& picture)
{
    QImage image = Allocated(QImage(picture.Width(), picture.Height(), QImage::Format_RGB888), picture.Width());
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const std::uint32_t colour = picture.Pixel(x, y);
            image.setPixelColor(x, y,
                                QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                                       static_cast<int>((colour >> 16) & 0xFF)));
        }
    }
    return image;
}

} // namespace

Picture QtPictureFiles::LoadPicture(const std::filesystem::path& path) const
{
    QFile file(QtPath(path));
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error) || !file.open(QIODevice::ReadOnly))
        throw RunTimeError(Words::Text("The picture %1 cannot be opened.", path.native()));
    if (file.size() > kMostFileBytes)
        throw RunTimeError(Words::Text("The picture %1 is too large.", path.native()));
    const QImage image = Opaque(ReadImage(file.readAll(), path));
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(image.width()) *
                                      static_cast<std::size_t>(image.height()));
    auto to = pixels.begin();
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        to = std::transform(line, line + image.width(), to, ToBgr);
    }
    return {image.width(), image.height(), std::move(pixels)};
}

std::vector<std::byte> QtPictureFiles::EncodeBmp(const Picture& picture) const
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!ToImage(picture).save(&buffer, "BMP"))
        throw RunTimeError(Words::Text("The picture could not be written."));
    const auto encoded = std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    return {encoded.begin(), encoded.end()};
}

void QtPictureFiles::SavePicture(const Picture& picture, const std::filesystem::path& path) const
{
    if (!ToImage(picture).save(QtPath(path), "BMP"))
        throw RunTimeError(Words::Text("The picture %1 could not be written.", path.native()));
}

} // namespace sprout
