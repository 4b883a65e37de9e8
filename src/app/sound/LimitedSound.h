// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "service/SoundOutput.h"

namespace sprout {

/// The setting `LoudnessLimit` in percent: 10 to 100.
[[nodiscard]] std::int32_t LoudnessLimit();

/// Samples in the format of a `SoundObject`, each brought to `percent` of its distance from silence.
[[nodiscard]] std::vector<std::byte> AtLoudness(std::span<const std::byte> pcm, std::int32_t bits,
                                                std::int32_t percent);

/// A sound output that plays everything at the loudness that a school allows. Songs, exports and recordings know
/// nothing of it: only what goes to the device is changed. A change of the setting counts from the next play on.
class LimitedSound : public SoundOutput {
public:
    /// all: the output that plays; it outlives this one.
    explicit LimitedSound(SoundOutput& all) : output(all) {}

    [[nodiscard]] std::int32_t SoundDeviceCount() override { return output.SoundDeviceCount(); }
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

private:
    SoundOutput& output;
};

} // namespace sprout
