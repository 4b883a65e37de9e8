// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/Errors.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "support/ScratchDevice.h"
#include "support/SmallDisk.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

inline std::string Little(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    return text;
}

struct Format {
    std::uint32_t channels = 1;
    std::uint32_t rate = 44100;
    std::uint32_t bits = 16;
};

/// The RIFF head and the format chunk, 36 bytes.
inline std::string Head(const Format& format, std::uint32_t dataSize)
{
    const std::uint32_t align = format.channels * format.bits / 8;
    return "RIFF" + Little(dataSize + 36, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) + Little(format.channels, 2) +
           Little(format.rate, 4) + Little(align * format.rate, 4) + Little(align, 2) + Little(format.bits, 2);
}

inline std::string Wav(const Format& format, const std::string& samples)
{
    const auto size = static_cast<std::uint32_t>(samples.size());
    return Head(format, size) + "data" + Little(size, 4) + samples;
}

inline WaveData Wave(std::int32_t bits, std::vector<std::int16_t> left, std::vector<std::int16_t> right = {})
{
    WaveData wave;
    wave.Bits = bits;
    wave.Channels = right.empty() ? 1 : 2;
    wave.Length = static_cast<std::int32_t>(left.size());
    wave.WavL = Channel::FromSamples(left);
    if (!right.empty())
        wave.WavR = Channel::FromSamples(right);
    return wave;
}

class WavFile : public testing::Test {
protected:
    [[nodiscard]] fs::path Path() const { return fake.folder.Path() / "sound.wav"; }

    [[nodiscard]] WaveData Load(const std::string& bytes, ReadSamples samples = ReadSamples::Yes)
    {
        WriteBytes(Path(), bytes);
        return LoadWaveFile(Path(), samples);
    }

    void ExpectRefused(const std::string& bytes, const std::string& title, const std::string& text)
    {
        fake.messages.shown.clear();
        EXPECT_EQ(Load(bytes), EmptyWave());
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.shown[0].title, title);
        EXPECT_EQ(fake.messages.shown[0].text, text);
        EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::None);
    }

    void ExpectSaveTold(const WaveData& wave, const fs::path& path, const std::string& title, const std::string& text)
    {
        fake.messages.shown.clear();
        SaveWaveFile(wave, path);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.shown[0].title, title);
        if (!text.empty()) {
            EXPECT_EQ(fake.messages.shown[0].text, text);
        }
    }

    FakeServices fake;
};

} // namespace sprout
