// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/PcmSound.h"
#include "service/SoundOutput.h"

namespace sprout {

/// Bytes of whole frames that last `time` in `format`.
[[nodiscard]] std::int64_t BytesOf(const SoundFormat& format, std::chrono::nanoseconds time);

/// What goes to a server's queue: the passes of a sound one after the other, then silence after the last.
///
/// Places are bytes since the start of the first pass, at whole frames.
class SoundQueue {
public:
    explicit SoundQueue(const SoundFormat& format) : sound(format) {}

    /// See `PcmSound`.
    void Load(std::span<const std::byte> pcm, std::size_t soundBytes) { sound.Load(pcm, soundBytes); }
    /// The next fill continues at `place`. Without a loop, the pass that contains it or ends there is the last.
    void Start(std::int64_t place, Loop loop);
    /// Fills `out` with the next bytes.
    void Fill(std::span<std::byte> out);
    /// Makes the sound continue after its end, or end with a whole pass. place: the first one that may still be
    /// changed; a sound that ends before it still ends, and a loop plays the pass that contains it to the end. Returns
    /// how many of the last filled bytes are now different; they are filled again next.
    [[nodiscard]] std::size_t SetLooping(Loop loop, std::int64_t place);

    [[nodiscard]] bool EndsBy(std::int64_t place) const { return place >= end; }
    /// The end of the last pass; the greatest number for a loop.
    [[nodiscard]] std::int64_t End() const { return end; }
    [[nodiscard]] std::int64_t Filled() const { return filled; }
    /// The place as a frame of its pass; the last frame at the end.
    [[nodiscard]] std::int32_t FrameAt(std::int64_t place) const;
    [[nodiscard]] const SoundFormat& Format() const { return sound.Format(); }

private:
    [[nodiscard]] std::int64_t EndOfPass(std::int64_t place) const;

    PcmSound sound;
    std::int64_t filled = 0;
    std::int64_t end = 0; // of the last pass
};

} // namespace sprout
