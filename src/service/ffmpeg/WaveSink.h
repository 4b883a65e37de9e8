// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/Errors.h"

namespace sprout {

/// Thrown if a decoded sound cannot be written.
class NotWritten : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// A WAV file of 44,100 Hz and 16 bits that is written from start to end. Throws `NotWritten`.
class WaveSink {
public:
    /// descriptor: an empty file, open for writing, which outlives the sink. mostFrames: further frames are dropped.
    WaveSink(int descriptor, std::int64_t mostFrames) : file(descriptor), most(mostFrames) {}

    /// Call before the first frames. count: 1 or 2.
    void SetChannels(int count) { channels = count; }
    [[nodiscard]] int Channels() const { return channels; }

    /// Takes whole frames, interleaved.
    void Put(std::span<const std::int16_t> samples);
    /// Frames taken so far.
    [[nodiscard]] std::int64_t Frames() const { return frames; }
    /// True if more frames came than it takes.
    [[nodiscard]] bool IsOverfull() const { return isOverfull; }

    /// Writes what is left, and the header; the last call.
    void Finish();

private:
    void Flush();

    int file;
    std::int64_t most;
    int channels = 0;
    std::int64_t frames = 0;
    bool isOverfull = false;
    std::vector<std::int16_t> waiting;
    std::uint64_t place = 44;
};

} // namespace sprout
