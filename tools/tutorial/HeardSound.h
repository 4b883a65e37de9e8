// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/WaveData.h"
#include "service/SoundOutput.h"

namespace sprout {

/// A sound output that keeps what the program plays on it. Its time stands still, except where it is told to move.
class HeardSound : public SoundOutput {
public:
    [[nodiscard]] std::int32_t SoundDeviceCount() override { return 1; }
    [[nodiscard]] SoundHandle Open(SoundHandle old, std::int32_t windowHandle, const SoundFormat& format,
                                   std::int32_t bufferBytes) override;

    /// Lets some seconds of the sound that was started last pass, and returns what is heard meanwhile; empty if the
    /// sound is over.
    [[nodiscard]] WaveData Hear(double seconds);

private:
    class Object;

    [[nodiscard]] WaveData Frames(std::size_t first, std::size_t count) const;

    std::vector<std::byte> pcm; ///< of the sound that was started last
    SoundFormat format;
    SoundPlace place;
};

/// A sound in mono at 22,050 Hz and with a soft end: a fourth of the bytes.
[[nodiscard]] WaveData SoundOfSlide(const WaveData& heard);

} // namespace sprout
