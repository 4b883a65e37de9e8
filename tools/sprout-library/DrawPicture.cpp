// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/DrawPicture.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <vector>

#include "base/Errors.h"

namespace sprout {

namespace {

std::uint32_t SwapRedAndBlue(std::uint32_t colour)
{
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

QImage ImageOf(const Picture& picture)
{
    QImage image(picture.Width(), picture.Height(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, 0xFF000000U | SwapRedAndBlue(picture.Pixel(x, y)));
    return image;
}

} // namespace

Picture DrawPicture(std::uint32_t ground, std::span<const std::filesystem::path> drawings)
{
    QImage image(kPictureSide, kPictureSide, QImage::Format_RGB32);
    image.fill(0xFF000000U | ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const std::filesystem::path& drawing : drawings) {
        QSvgRenderer renderer;
        if (!renderer.load(QFile::decodeName(drawing.c_str())))
            throw RunTimeError(Words::Text("The drawing %1 cannot be read.", drawing.native()));
        renderer.render(&painter, QRectF(0, 0, kPictureSide, kPictureSide));
    }
    painter.end();
    std::vector<std::uint32_t> pixels;
    pixels.reserve(kPicturePixels);
    for (int y = 0; y < kPictureSide; ++y)
        for (int x = 0; x < kPictureSide; ++x)
            pixels.push_back(SwapRedAndBlue(image.pixel(x, y) & 0xFFFFFFU));
    return {kPictureSide, kPictureSide, std::move(pixels)};
}

double SharePixels(const Picture& a, const Picture& b)
{
    int same = 0;
    for (std::size_t i = 0; i < a.Pixels().size(); ++i)
        same += a.Pixels()[i] == b.Pixels()[i] ? 1 : 0;
    return static_cast<double>(same) / static_cast<double>(a.Pixels().size());
}

void WriteSheet(std::span<const Picture> pictures, const std::filesystem::path& file)
{
    constexpr int columns = 12, scale = 3, gap = 8;
    constexpr int pitch = kPictureSide * scale + gap;
    const int rows = (static_cast<int>(pictures.size()) + columns - 1) / columns;
    QImage sheet(columns * pitch + gap, std::max(1, rows) * pitch + gap, QImage::Format_RGB32);
    sheet.fill(0xFFFFF8E7U);
    QPainter painter(&sheet);
    int place = 0;
    for (const Picture& picture : pictures) {
        const QPoint corner(gap + place % columns * pitch, gap + place / columns * pitch);
        painter.drawImage(corner, ImageOf(picture).scaled(kPictureSide * scale, kPictureSide * scale));
        ++place;
    }
    painter.end();
    if (!sheet.save(QFile::decodeName(file.c_str()), "PNG"))
        throw RunTimeError(Words::Text("The sheet %1 could not be written.", file.native()));
}

} // namespace sprout
