// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/SoundFormat.h"

namespace sprout {

/// The byte of which silence in `format` consists.
[[nodiscard]] std::byte SilenceOf(const SoundFormat& format);

/// A sound output's own copy of a sound: whole frames of one format.
class PcmSound {
public:
    explicit PcmSound(const SoundFormat& soundFormat) : format(soundFormat) {}

    /// Becomes `pcm`, which silence or a cut brings to `soundBytes`; half a frame at the end is left out. Throws
    /// std::bad_alloc.
    void Load(std::span<const std::byte> pcm, std::size_t soundBytes);
    /// Copies from `place`, in bytes, up to the end of the sound or of `out`. Returns the bytes copied.
    std::size_t CopyFrom(std::size_t place, std::span<std::byte> out) const;

    [[nodiscard]] const SoundFormat& Format() const { return format; }
    /// In bytes.
    [[nodiscard]] std::size_t Size() const { return bytes.size(); }

private:
    SoundFormat format;
    std::vector<std::byte> bytes;
};

} // namespace sprout
