// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Shared.h"

namespace sprout {

/// The codecs in an encoder's list of formats (`WmaEncoder::FormatList`). A line that is not a format leaves its row in
/// the arrays empty; of each number, the valid prefix counts.
[[nodiscard]] std::vector<WmaCodec> ParseWmaCodecs(std::string_view list);

/// A codec and one of its formats, both counted from 0.
struct WmaFormatPlace {
    std::int32_t Codec = 0;
    std::int32_t Format = 0;
    friend bool operator==(const WmaFormatPlace&, const WmaFormatPlace&) = default;
};

/// The first Windows Media Audio format of 64 kbit/s, 44,100 Hz, stereo, 16 bits; nothing if there is none.
[[nodiscard]] std::optional<WmaFormatPlace> FindWmaFormat(std::span<const WmaCodec> codecs);

} // namespace sprout
