// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/rules/SmallPicture.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace sprout {

namespace {

constexpr int kMostSmallSide = 4 * kPictureSide;

struct PixelRange {
    int first;
    int end;
};

/// The pixels of a side that a pixel of the small picture stands for, at least one.
PixelRange PixelsUnder(int place, int side)
{
    const int first = place * side / kMostSmallSide;
    return {first, std::max((place + 1) * side / kMostSmallSide, first + 1)};
}

std::uint32_t AverageColour(const Picture& picture, PixelRange columns, PixelRange rows)
{
    std::uint64_t red = 0;
    std::uint64_t green = 0;
    std::uint64_t blue = 0;
    for (int y = rows.first; y < rows.end; ++y) {
        for (int x = columns.first; x < columns.end; ++x) {
            const std::uint32_t colour = picture.Pixel(x, y);
            red += colour & 0xFF;
            green += colour >> 8 & 0xFF;
            blue += colour >> 16 & 0xFF;
        }
    }
    const auto pixels =
        static_cast<std::uint64_t>(columns.end - columns.first) * static_cast<std::uint64_t>(rows.end - rows.first);
    const auto mean = [pixels](std::uint64_t sum) { return static_cast<std::uint32_t>((sum + pixels / 2) / pixels); };
    return mean(blue) << 16 | mean(green) << 8 | mean(red);
}

} // namespace

Picture SmallPicture(const Picture& picture)
{
    if (picture.Width() <= kMostSmallSide && picture.Height() <= kMostSmallSide)
        return picture;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(kMostSmallSide) * kMostSmallSide);
    for (int y = 0; y < kMostSmallSide; ++y)
        for (int x = 0; x < kMostSmallSide; ++x)
            pixels.push_back(AverageColour(picture, PixelsUnder(x, picture.Width()), PixelsUnder(y, picture.Height())));
    return {kMostSmallSide, kMostSmallSide, std::move(pixels)};
}

} // namespace sprout
