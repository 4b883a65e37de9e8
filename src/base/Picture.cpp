// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Picture.h"

#include <cassert>
#include <utility>

namespace sprout {

namespace {

constexpr std::uint32_t kColourBits = 0x00FFFFFF;
constexpr std::uint32_t kWhite = 0x00FFFFFF;

std::size_t ColumnPlace(int x, int y)
{
    return static_cast<std::size_t>(x) * kPictureSide + static_cast<std::size_t>(y);
}

} // namespace

Picture::Picture(int width, int height, std::vector<std::uint32_t> pixels)
{
    assert(width >= 0 && height >= 0);
    assert(pixels.size() == static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    block = std::make_shared<const Block>(Block{width, height, std::move(pixels)});
}

std::uint32_t Picture::Pixel(int x, int y) const
{
    assert(x >= 0 && y >= 0 && x < Width() && y < Height());
    return block
        ->pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(block->width) + static_cast<std::size_t>(x)];
}

std::span<const std::uint32_t> Picture::Pixels() const
{
    if (!block)
        return {};
    return block->pixels;
}

std::array<std::int32_t, kPicturePixels> PictureColumns(const Picture& picture)
{
    std::array<std::int32_t, kPicturePixels> columns{};
    for (int x = 0; x < kPictureSide; ++x) {
        for (int y = 0; y < kPictureSide; ++y) {
            const bool inside = x < picture.Width() && y < picture.Height();
            columns[ColumnPlace(x, y)] = static_cast<std::int32_t>(inside ? picture.Pixel(x, y) : kWhite);
        }
    }
    return columns;
}

Picture PictureFromColumns(std::span<const std::int32_t> columns)
{
    assert(columns.size() == kPicturePixels);
    std::vector<std::uint32_t> pixels(kPicturePixels);
    for (int x = 0; x < kPictureSide; ++x) {
        for (int y = 0; y < kPictureSide; ++y) {
            const std::size_t rowPlace = static_cast<std::size_t>(y) * kPictureSide + static_cast<std::size_t>(x);
            pixels[rowPlace] = static_cast<std::uint32_t>(columns[ColumnPlace(x, y)]) & kColourBits;
        }
    }
    return {kPictureSide, kPictureSide, std::move(pixels)};
}

} // namespace sprout
