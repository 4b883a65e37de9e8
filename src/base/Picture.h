// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sprout {

/// Side in pixels of the pictures of beats, tunes and stars.
inline constexpr int kPictureSide = 32;
inline constexpr int kPicturePixels = kPictureSide * kPictureSide;

/// A picture: a value with identity. Copies share one immutable block of pixels.
class Picture {
public:
    /// No picture.
    Picture() = default;

    /// `pixels`: colours 0x00BBGGRR, row by row, `width` x `height` of them.
    Picture(int width, int height, std::vector<std::uint32_t> pixels);

    [[nodiscard]] bool IsNothing() const { return !block; }
    [[nodiscard]] int Width() const { return block ? block->width : 0; }
    [[nodiscard]] int Height() const { return block ? block->height : 0; }
    /// x and y from 0, inside the picture.
    [[nodiscard]] std::uint32_t Pixel(int x, int y) const;
    /// All pixels, row by row.
    [[nodiscard]] std::span<const std::uint32_t> Pixels() const;

    /// True if both share one block: copies of one picture, not pictures that look alike. Two empty pictures are the
    /// same.
    friend bool SamePicture(const Picture& a, const Picture& b) { return a.block == b.block; }

private:
    struct Block {
        int width = 0;
        int height = 0;
        std::vector<std::uint32_t> pixels;
    };
    std::shared_ptr<const Block> block;
};

/// The 1024 colours of a picture in song and tune files: columns from the left, each from the top. A larger picture is
/// cut to its top left, a smaller one padded with white.
[[nodiscard]] std::array<std::int32_t, kPicturePixels> PictureColumns(const Picture& picture);

/// Rebuilds the picture from the result of `PictureColumns`. columns: 1024 colours.
[[nodiscard]] Picture PictureFromColumns(std::span<const std::int32_t> columns);

} // namespace sprout
