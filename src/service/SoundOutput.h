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

/// The state of a sound object.
struct SoundPlace {
    std::int32_t Cursor = 0; ///< frames of the sound heard so far
    bool Playing = false;    ///< false once the sound has ended or been stopped
};

/// A sound that is open on an output device. It plays by itself, in a thread of the device.
///
/// If a device is lost during playback, only `Place` reports it: the sound has then ended.
class SoundObject {
public:
    SoundObject() = default;
    SoundObject(const SoundObject&) = delete;
    SoundObject& operator=(const SoundObject&) = delete;
    /// Stops the sound and closes the device.
    virtual ~SoundObject() = default;

    /// Copies `pcm` to the start of the sound and stops it. Throws std::bad_alloc.
    virtual void Load(std::span<const std::byte> pcm) = 0;
    /// Starts playing. With `Loop::Yes` the sound repeats without a gap.
    virtual void Start(StartFrom from, Loop loop) = 0;
    /// Stops within 30 ms and keeps the position.
    virtual void Stop() = 0;
    /// The frame being heard now, within 15 ms.
    [[nodiscard]] virtual SoundPlace Place() = 0;
    /// Changes looping while the sound plays.
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
    /// old: the sound object of the last play, or empty; the returned one replaces it. windowHandle: the window that
    /// the sound belongs to; ignored on machines whose sounds belong to no window. Returns an empty handle if no device
    /// can be opened. The objects must not outlive the output.
    [[nodiscard]] virtual SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                           std::int32_t bufferBytes) = 0;
};

} // namespace sprout
