// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/WmaEncoder.h"

namespace sprout {

/// `WmaEncoder` on FFmpeg, whose libraries are loaded by `Load` and stay loaded. Encodes within its calls, without
/// threads.
class FfmpegWmaEncoder : public WmaEncoder {
public:
    [[nodiscard]] bool Load() override;
    [[nodiscard]] std::int32_t FormatListLength() override;
    [[nodiscard]] std::optional<std::string> FormatList() override;
    /// Also null if the format is not in the list.
    [[nodiscard]] std::unique_ptr<WmaFile> Open(Replacement& target, const WmaFormat& format) override;
};

} // namespace sprout
