// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ScaledPicture.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace sprout {

namespace {

constexpr std::uint32_t kBesidePicture = 0xFFFFFF;

struct PixelRange {
    int first;
    int end;
};

/// The range of pixels along a side that one of the `scaled` pixels represents, at least one.
PixelRange PixelsUnder(int place, int side, int scaled)
{
    const auto under = [side, scaled](int at) { return static_cast<int>(std::int64_t{at} * side / scaled); };
    return {under(place), std::max(under(place + 1), under(place) + 1)};
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

/// A side in proportion to the longer one, which becomes that of a small picture.
int FittedSide(int side, int longer)
{
    return static_cast<int>(std::max<std::int64_t>((std::int64_t{side} * kPictureSide + longer / 2) / longer, 1));
}

} // namespace

Picture ScaledPicture(const Picture& picture, int width, int height)
{
    if (picture.Pixels().empty())
        return picture;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(AverageColour(picture, PixelsUnder(x, picture.Width(), width),
                                           PixelsUnder(y, picture.Height(), height)));
    return {width, height, std::move(pixels)};
}

Picture FittedPicture(const Picture& picture)
{
    if (picture.Pixels().empty() || (picture.Width() == kPictureSide && picture.Height() == kPictureSide))
        return picture;
    const int longer = std::max(picture.Width(), picture.Height());
    const Picture scaled =
        ScaledPicture(picture, FittedSide(picture.Width(), longer), FittedSide(picture.Height(), longer));
    const int left = (kPictureSide - scaled.Width()) / 2;
    const int top = (kPictureSide - scaled.Height()) / 2;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(kPicturePixels);
    for (int y = -top; y < kPictureSide - top; ++y) {
        for (int x = -left; x < kPictureSide - left; ++x) {
            const bool isInside = x >= 0 && x < scaled.Width() && y >= 0 && y < scaled.Height();
            pixels.push_back(isInside ? scaled.Pixel(x, y) : kBesidePicture);
        }
    }
    return {kPictureSide, kPictureSide, std::move(pixels)};
}

} // namespace sprout
