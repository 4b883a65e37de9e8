// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "service/SoundCapture.h"

namespace sprout {

/// Where a source sends its sound. The calls come from a thread of the source, one at a time, and return at once.
class CaptureSink {
public:
    CaptureSink() = default;
    CaptureSink(const CaptureSink&) = delete;
    CaptureSink& operator=(const CaptureSink&) = delete;
    virtual ~CaptureSink() = default;

    /// frames: whole frames, 44,100 Hz, 16 bits, low byte first, left and right interleaved.
    virtual void Take(std::span<const std::byte> frames) = 0;
    /// frames: how many frames the source left out.
    virtual void TakeHole(std::int64_t frames) = 0;
};

enum class SourceState {
    Runs,
    Suspended, ///< by the server or the machine; it may resume
    Gone       ///< permanently
};

/// One way to access the machine's microphones. All calls come from the interface thread; none waits longer than a
/// second.
class CaptureSource {
public:
    CaptureSource() = default;
    CaptureSource(const CaptureSource&) = delete;
    CaptureSource& operator=(const CaptureSource&) = delete;
    virtual ~CaptureSource() = default;

    /// Opens the source, which sends frames to `sink` until it is closed.
    [[nodiscard]] virtual CaptureOpening Open(CaptureSink& sink) = 0;
    /// No more frames come once it returns.
    virtual void Close() = 0;
    /// The state of the open source; `Gone` if nothing is open.
    [[nodiscard]] virtual SourceState State() = 0;

    // See `SoundCapture`.
    [[nodiscard]] virtual std::optional<SoundSources> ListSources() = 0;
    [[nodiscard]] virtual std::uint64_t SourceChanges() = 0;
    virtual void SelectSource(std::int32_t index) = 0;
    virtual void SetVolume(std::int32_t index, std::int32_t volume) = 0;
};

} // namespace sprout
