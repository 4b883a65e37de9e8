// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "base/SoundFormat.h"

namespace sprout {

/// The byte that silence in `format` consists of.
[[nodiscard]] std::byte SilenceOf(const SoundFormat& format);

/// A sound output's own copy of a sound: whole frames of one format.
class PcmSound {
public:
    explicit PcmSound(const SoundFormat& soundFormat) : format(soundFormat) {}

    /// Becomes a copy of `pcm`, padded with silence or cut to `soundBytes`; half a frame at the end is dropped. Throws
    /// std::bad_alloc.
    void Load(std::span<const std::byte> pcm, std::size_t soundBytes);
    /// Copies from `place`, in bytes, to the end of the sound or of `out`. Returns the number of bytes copied.
    std::size_t CopyFrom(std::size_t place, std::span<std::byte> out) const;

    [[nodiscard]] const SoundFormat& Format() const { return format; }
    /// In bytes.
    [[nodiscard]] std::size_t Size() const { return bytes.size(); }

private:
    SoundFormat format;
    std::vector<std::byte> bytes;
};

} // namespace sprout
