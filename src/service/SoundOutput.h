// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "base/SoundFormat.h"

namespace sprout {

enum class Loop { No, Yes };
enum class StartFrom { Beginning, WhereItStopped };

/// Where a sound object stands.
struct SoundPlace {
    std::int32_t Cursor = 0; ///< frames of the sound that were heard before this moment
    bool Playing = false;    ///< false once the sound has ended or was stopped
};

/// A sound that is open on an output device. It plays on its own, in a thread of the device.
///
/// A device that is lost while it plays tells of it in `Place` alone: the sound has then ended.
class SoundObject {
public:
    SoundObject() = default;
    SoundObject(const SoundObject&) = delete;
    SoundObject& operator=(const SoundObject&) = delete;
    /// Stops the sound and closes the device.
    virtual ~SoundObject() = default;

    /// Copies `pcm` to the beginning of the sound and stops it. Throws std::bad_alloc.
    virtual void Load(std::span<const std::byte> pcm) = 0;
    /// Starts playing; with `Loop::Yes` the end is followed by the beginning without a gap.
    virtual void Start(StartFrom from, Loop loop) = 0;
    /// Stops within 30 ms and keeps the place.
    virtual void Stop() = 0;
    /// The frame that is heard now, within 15 ms.
    [[nodiscard]] virtual SoundPlace Place() = 0;
    /// Changes looping of a sound while it plays.
    virtual void SetLooping(Loop loop) = 0;
};

using SoundHandle = std::unique_ptr<SoundObject>;

/// The machine's sound output. All calls come from one thread.
class SoundOutput {
public:
    SoundOutput() = default;
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;
    virtual ~SoundOutput() = default;

    /// Output devices that the machine lists.
    [[nodiscard]] virtual std::int32_t SoundDeviceCount() = 0;

    /// Opens a sound of `bufferBytes` in `format` on the default device.
    ///
    /// old: the sound object of the last play, or empty; the one that comes back replaces it. windowHandle: the window
    /// that the sound belongs to; a machine whose sounds belong to no window does not look at it. Returns an empty
    /// handle where no device could be opened. The objects must not outlive the output.
    [[nodiscard]] virtual SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                           std::int32_t bufferBytes) = 0;
};

} // namespace sprout
