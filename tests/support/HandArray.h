// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// An array of a song or tune file, built by hand without the program's own writer.
class HandArray {
public:
    HandArray& Add(std::initializer_list<std::int32_t> values);
    HandArray& Add(const std::vector<std::int32_t>& values);
    HandArray& Many(std::int32_t value, int count);
    /// A packed text. bytes: as they are in the file.
    HandArray& Text(std::string_view bytes);
    /// 1024 equal colours.
    HandArray& Picture(std::int32_t colour) { return Many(colour, 1024); }

    /// The array, with element 0 set to the index of the last one.
    [[nodiscard]] std::vector<std::int32_t> Elements() const;

private:
    std::vector<std::int32_t> elements{0};
};

[[nodiscard]] std::string BytesOf(const std::vector<std::int32_t>& elements);

/// The elements that `bytes` hold from `begin` on; an incomplete last one is dropped.
[[nodiscard]] std::vector<std::int32_t> ElementsOf(std::string_view bytes);

/// A whole file. marker: "TqSng" or "TqTun"; version: the text of the key "File Version".
[[nodiscard]] std::string FileOf(std::string_view marker, std::string_view version,
                                 const std::vector<std::int32_t>& elements);

/// The elements of a file's array, found by "Data=" and element 0.
[[nodiscard]] std::vector<std::int32_t> ArrayOf(std::string_view fileBytes);

[[nodiscard]] Picture PlainPicture(std::uint32_t colour);

/// A wave of these samples; a right channel makes it stereo.
[[nodiscard]] WaveData WaveOf(std::vector<std::int16_t> left, std::vector<std::int16_t> right = {});

} // namespace sprout
