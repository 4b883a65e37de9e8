// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "base/Picture.h"

namespace sprout {

/// Picture files of the kinds .bmp, .jpg, .gif and .png. Needs no display.
class PictureFiles {
public:
    PictureFiles() = default;
    PictureFiles(const PictureFiles&) = delete;
    PictureFiles& operator=(const PictureFiles&) = delete;
    virtual ~PictureFiles() = default;

    /// Reads a picture in its original size. Throws `RunTimeError` if the file is not a picture, is cut short or claims
    /// more than 4096 pixels per side; nothing is allocated for such a claim.
    [[nodiscard]] virtual Picture LoadPicture(const std::filesystem::path& path) const = 0;

    /// The bytes of a .bmp with 24 bits per pixel. Throws `RunTimeError` for a picture without pixels.
    [[nodiscard]] virtual std::vector<std::byte> EncodeBmp(const Picture& picture) const = 0;

    /// Writes such a file. Throws `RunTimeError` on failure.
    virtual void SavePicture(const Picture& picture, const std::filesystem::path& path) const = 0;
};

} // namespace sprout
