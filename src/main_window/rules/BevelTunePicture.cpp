// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/BevelTunePicture.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "base/Numbers.h"

namespace sprout {

namespace {

enum class Shade { Darken, Lighten };

struct Shading {
    Shade shade;
    double share; ///< the share that is left of the component, or of its distance to white
};

struct WorkSurface {
    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

std::uint32_t ShadeComponent(std::uint32_t component, const Shading& shading)
{
    const double value = component;
    const double shaded = shading.shade == Shade::Darken ? value * shading.share : 255 - (255 - value) * shading.share;
    return static_cast<std::uint32_t>(RoundHalfEven(shaded));
}

void ShadePixel(WorkSurface& surface, int x, int y, const Shading& shading)
{
    auto& pixel = surface.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(surface.width) +
                                 static_cast<std::size_t>(x)];
    std::uint32_t shaded = 0;
    for (int shift = 0; shift <= 16; shift += 8)
        shaded |= ShadeComponent(pixel >> shift & 0xFF, shading) << shift;
    pixel = shaded;
}

/// Shades a row and then a column, each from `first` to the size minus `margin`.
void ShadeLines(WorkSurface& surface, int row, int column, int first, int margin, const Shading& shading)
{
    if (row >= 0 && row < surface.height)
        for (int x = first; x <= surface.width - margin; ++x)
            ShadePixel(surface, x, row, shading);
    if (column >= 0 && column < surface.width)
        for (int y = first; y <= surface.height - margin; ++y)
            ShadePixel(surface, column, y, shading);
}

} // namespace

Picture BevelTunePicture(const Picture& picture)
{
    if (picture.IsNothing())
        return picture;
    const auto pixels = picture.Pixels();
    WorkSurface surface{picture.Width(), picture.Height(), {pixels.begin(), pixels.end()}};
    ShadeLines(surface, surface.height - 2, surface.width - 2, 1, 2, {Shade::Darken, 0.7});
    ShadeLines(surface, surface.height - 1, surface.width - 1, 1, 1, {Shade::Darken, 0.4});
    ShadeLines(surface, 1, 1, 1, 2, {Shade::Lighten, 0.4});
    ShadeLines(surface, 0, 0, 0, 1, {Shade::Lighten, 0.8});
    return {surface.width, surface.height, std::move(surface.pixels)};
}

} // namespace sprout
