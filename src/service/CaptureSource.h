// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "service/SoundCapture.h"

namespace sprout {

/// Where the sound of a source goes. The calls come from a thread of the source's, one at a time, and return at once.
class CaptureSink {
public:
    CaptureSink() = default;
    CaptureSink(const CaptureSink&) = delete;
    CaptureSink& operator=(const CaptureSink&) = delete;
    virtual ~CaptureSink() = default;

    /// frames: whole ones, 44,100 Hz, 16 bits, low byte first, left and right in turn.
    virtual void Take(std::span<const std::byte> frames) = 0;
    /// frames: how many the source left out.
    virtual void TakeHole(std::int64_t frames) = 0;
};

enum class SourceState {
    Runs,
    Suspended, ///< by the server or the machine; it may run again
    Gone       ///< for good
};

/// One way to the machine's microphones. All calls come from the interface thread, and none waits longer than a second.
class CaptureSource {
public:
    CaptureSource() = default;
    CaptureSource(const CaptureSource&) = delete;
    CaptureSource& operator=(const CaptureSource&) = delete;
    virtual ~CaptureSource() = default;

    /// Opens the source, from which frames go to `sink` until the close.
    [[nodiscard]] virtual CaptureOpening Open(CaptureSink& sink) = 0;
    /// No frame comes any more when it returns.
    virtual void Close() = 0;
    /// Of what is open; `Gone` where nothing is.
    [[nodiscard]] virtual SourceState State() = 0;

    // See `SoundCapture`.
    [[nodiscard]] virtual std::optional<SoundSources> ListSources() = 0;
    [[nodiscard]] virtual std::uint64_t SourceChanges() = 0;
    virtual void SelectSource(std::int32_t index) = 0;
    virtual void SetVolume(std::int32_t index, std::int32_t volume) = 0;
};

} // namespace sprout
