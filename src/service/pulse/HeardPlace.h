// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "base/SoundFormat.h"
#include "service/pulse/SoundQueue.h"

namespace sprout {

/// Whether a sound was heard to its end.
enum class EndHeard {
    No,
    Yes,
    Unknown, ///< by the clock, but the last report is old: the device may have stalled since
};

/// How much of a sound was heard, computed from the reports of a server that counts the bytes which the device has
/// taken from the stream. The place is in bytes from the start of the first pass and never goes back.
class HeardPlace {
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit HeardPlace(const SoundFormat& soundFormat) : format(soundFormat) {}

    [[nodiscard]] std::int64_t Place() const { return place; }

    /// Goes back to the start of the sound.
    void Rewind() { place = 0; }
    /// The stream is empty and is filled from the place on.
    void StartAnew();
    /// The stream continues with what it holds.
    void GoOn();

    /// What the device had taken at that start. Reports from before do not count.
    void DeviceStarted(std::int64_t taken);
    [[nodiscard]] bool HasDeviceStarted() const { return takenAtStart.has_value(); }
    /// What the device had taken when it stopped. It is heard to its end; what it gave back is heard when the sound
    /// continues.
    void DeviceStopped(std::int64_t taken);
    /// At `time` the device had taken `taken`, the last part of which takes `unheard` to be heard.
    void Report(Time time, std::int64_t taken, std::chrono::nanoseconds unheard);

    /// Moves the place to what was heard of `queue` by `now`, as far as is reported.
    [[nodiscard]] EndHeard Follow(Time now, const SoundQueue& queue);

private:
    struct Heard {
        Time time;
        std::int64_t place = 0;
    };

    SoundFormat format;
    std::int64_t place = 0;
    std::optional<std::int64_t> takenAtPlace0;
    std::optional<std::int64_t> takenAtStart;
    std::optional<Heard> heard; // what was last reported
};

} // namespace sprout
