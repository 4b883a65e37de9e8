// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "sound/PlayMod.h"
#include "support/FakeServices.h"

namespace sprout {

/// A stereo wave in the program's format: left 1, 2, 3 ..., right the same values negated.
inline WaveData CountingWave(std::int32_t length)
{
    WaveData wave;
    wave.Length = length;
    wave.WavL = Channel(length);
    wave.WavR = Channel(length);
    const auto left = wave.WavL.Change();
    const auto right = wave.WavR.Change();
    for (std::int32_t i = 1; i <= length; ++i) {
        left[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i);
        right[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(-i);
    }
    return wave;
}

inline WaveData MonoWave(std::int32_t bits, std::int32_t rate, const std::vector<std::int16_t>& samples)
{
    WaveData wave;
    wave.Bits = bits;
    wave.Channels = 1;
    wave.Rate = rate;
    wave.WavL = Channel::FromSamples(samples);
    wave.Length = wave.WavL.UpperBound();
    return wave;
}

inline std::vector<std::byte> Bytes(const std::vector<int>& values)
{
    std::vector<std::byte> bytes;
    for (const int value : values)
        bytes.push_back(static_cast<std::byte>(value));
    return bytes;
}

/// Fresh services and play state, and a player whose driver is on.
class PlayTest : public ::testing::Test {
protected:
    PlayTest()
    {
        PlayShared() = PlayModState();
        SetSoundDriver(true);
    }
    ~PlayTest() override
    {
        ReleasePlayer();
        PlayShared() = PlayModState();
    }

    /// Keeps what the player raises from now on, as "prompt|title".
    void Listen()
    {
        Player().MsgBoxOb = [this](const Words& prompt, const Words& title) {
            raised.push_back(prompt.English() + "|" + title.English());
        };
    }

    FakeServices services;
    FakeSoundOutput& sound = services.sound;
    FakePlayDisplay& display = services.playDisplay;
    PlayModState& play = PlayShared();
    std::vector<std::string> raised;
};

} // namespace sprout
