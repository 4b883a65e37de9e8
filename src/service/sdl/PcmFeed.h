// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "base/PcmSound.h"
#include "service/SoundOutput.h"

namespace sprout {

/// The source of a device's samples: a copy of the sound, the place in it, and the time at which it is heard.
///
/// `Fill` runs in the device's thread; it takes no lock, never waits and allocates nothing. All other operations belong
/// to one other thread; those that change the sound wait at most for a running `Fill`.
class PcmFeed {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// queuedFrames: how many unheard frames the device still holds when it asks for more.
    PcmFeed(const SoundFormat& format, std::int64_t queuedFrames);

    /// Stops and sets the sound to `pcm`, padded with silence or cut to `soundBytes`.
    void Load(std::span<const std::byte> pcm, std::size_t soundBytes);
    void Start(StartFrom from, Loop loop);
    /// A device that was just opened gets silence for `asks` requests before it gets the sound: its first blocks may be
    /// lost while it starts.
    void SettleDevice(int asks) { asksToSettle = asks; }
    /// Keeps the place: what was handed over is heard to its end, and `StartFrom::WhereItStopped` continues after it.
    void Stop();
    void SetLooping(Loop loop);
    /// True until the device asks for more after it took the last frame. May be called from any thread.
    [[nodiscard]] bool Plays() const { return playing; }
    /// Where the sound is at time `now`.
    [[nodiscard]] SoundPlace PlaceAt(Time now);

    /// When the device took the first frame since the last start from the beginning; nothing if it has not yet. May be
    /// called from any thread.
    [[nodiscard]] std::optional<Time> FirstTaken() const;

    /// Hands over the next frames of the sound, or silence if there are none. now: when the device asked.
    void Fill(std::span<std::byte> out, Time now);

private:
    [[nodiscard]] std::size_t FillFromSound(std::span<std::byte> out, Time now);

    const SoundFormat format;
    const std::int64_t queuedFrames;

    // Changed only while the device takes nothing from the sound.
    PcmSound sound;
    std::size_t place = 0; // next byte to hand over
    bool ended = false;    // silence followed the last frame, so nothing may continue without a gap

    // Handshake of the two threads: each sets its own flag (`playing` or `filling`) before it checks the other, so at
    // least one of them always sees the other.
    std::atomic<bool> playing = false;
    std::atomic<bool> filling = false;

    std::atomic<bool> looping = false;
    std::atomic<int> asksToSettle = 0;
    // Frames since the start, counting every pass of a loop.
    std::atomic<std::int64_t> framesHanded = 0;
    // When frame 0 would have been heard, in nanoseconds of the clock; `kUnknown` before the first `Fill`.
    std::atomic<std::int64_t> timeOfFrame0;
    std::atomic<std::int64_t> firstTaken; // likewise; `kUnknown` before the first frame
    std::int64_t framesHeard = 0;         // the cursor never goes back
};

} // namespace sprout
