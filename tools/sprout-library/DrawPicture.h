// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

#include "base/Picture.h"

namespace sprout {

/// A picture of `kPictureSide` pixels per side: drawings stacked on a flat background.
///
/// ground: 0x00RRGGBB. drawings: SVG files, the lowest first. Needs no display and no application object.
/// Throws `RunTimeError` if a file is not a drawing.
[[nodiscard]] Picture DrawPicture(std::uint32_t ground, std::span<const std::filesystem::path> drawings);

/// Share of pixels, 0 to 1, that have the same colour in both pictures.
[[nodiscard]] double SharePixels(const Picture& a, const Picture& b);

/// Writes pictures, each enlarged four times, as a sheet of rows to an image file. Throws `RunTimeError`.
void WriteSheet(std::span<const Picture> pictures, const std::filesystem::path& file);

} // namespace sprout
