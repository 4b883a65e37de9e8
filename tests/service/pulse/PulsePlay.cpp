// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulsePlay.h"

#include <algorithm>
#include <utility>

namespace sprout {

Bytes Samples(const SoundFormat& format, int frames, unsigned seed)
{
    Bytes bytes;
    unsigned value = seed;
    for (int i = 0; i < frames * format.FrameBytes(); ++i) {
        value = value * 1103515245 + 12345;
        bytes.push_back(static_cast<std::byte>(1 + (value >> 16) % 127));
    }
    return bytes;
}

Bytes Repeated(const Bytes& samples, std::size_t bytes)
{
    Bytes repeated;
    repeated.reserve(bytes);
    for (std::size_t i = 0; i < bytes; ++i)
        repeated.push_back(samples[i % samples.size()]);
    return repeated;
}

::testing::AssertionResult Same(const Bytes& one, const Bytes& other)
{
    if (one == other)
        return ::testing::AssertionSuccess();
    const auto differing = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first - one.begin();
    return ::testing::AssertionFailure() << one.size() << " and " << other.size() << " bytes differ from byte "
                                         << differing << " on";
}

Bytes WithoutSilence(Bytes bytes)
{
    bytes.erase(std::remove(bytes.begin(), bytes.end(), std::byte{0}), bytes.end());
    return bytes;
}

bool Ends(const SoundHandle& sound)
{
    return Comes([&] { return !sound->Place().Playing; });
}

SoundHandle Opened(SoundOutput& output, const SoundFormat& format, const Bytes& samples, SoundHandle old)
{
    SoundHandle sound = output.Open(std::move(old), 0, format, static_cast<std::int32_t>(samples.size()));
    if (sound)
        sound->Load(samples);
    return sound;
}

SoundHandle PulseTest::Playing(const Bytes& samples, Loop loop, TestRecording& recording)
{
    SoundHandle sound = Opened(output, format, samples);
    if (sound)
        sound->Start(StartFrom::Beginning, loop);
    return sound && recording.Sounds() ? std::move(sound) : nullptr;
}

} // namespace sprout
