// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

#include "service/sdl/SdlSoundOutput.h"
#include "support/TestFolder.h"

namespace sprout {

using Bytes = std::vector<std::byte>;
using Clock = std::chrono::steady_clock;

inline std::byte Silence(const SoundFormat& format)
{
    return format.Bits == 8 ? std::byte{0x80} : std::byte{0};
}

/// Samples without silent bytes, different enough that no frame can be taken for another.
inline Bytes Samples(const SoundFormat& format, int frames)
{
    Bytes bytes;
    unsigned value = 1;
    for (int i = 0; i < frames * format.FrameBytes(); ++i) {
        value = value * 1103515245 + 12345;
        bytes.push_back(static_cast<std::byte>(1 + (value >> 16) % 127));
    }
    return bytes;
}

/// Returns true as soon as `condition` holds; false if that takes too long.
inline bool Comes(const std::function<bool()>& condition)
{
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::yield();
    }
    return true;
}

/// An open, silent sound of `samples`.
inline SoundHandle Opened(SdlSoundOutput& output, const SoundFormat& format, const Bytes& samples,
                          SoundHandle old = nullptr)
{
    SoundHandle sound = output.Open(std::move(old), 0, format, static_cast<std::int32_t>(samples.size()));
    if (sound)
        sound->Load(samples);
    return sound;
}

class SdlTest : public ::testing::Test {
protected:
    explicit SdlTest(const char* driver) { setenv("SDL_AUDIODRIVER", driver, 1); }
    ~SdlTest() override { unsetenv("SDL_AUDIODRIVER"); }
};

/// A silent device that plays at the speed of the clock.
class SdlDummyTest : public SdlTest {
protected:
    SdlDummyTest() : SdlTest("dummy") {}

    SdlSoundOutput output;
    const SoundFormat format;
};

/// A device that writes what it plays into a file, as fast as it can.
class SdlDiskTest : public SdlTest {
protected:
    SdlDiskTest() : SdlTest("disk")
    {
        setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "0", 1);
    }
    ~SdlDiskTest() override
    {
        unsetenv("SDL_DISKAUDIOFILE");
        unsetenv("SDL_DISKAUDIODELAY");
    }

    [[nodiscard]] bool FileGrows(std::uintmax_t byBytes) const
    {
        const auto before = std::filesystem::file_size(file);
        return Comes([&] { return std::filesystem::file_size(file) >= before + byBytes; });
    }

    [[nodiscard]] Bytes Played() const
    {
        const std::string text = ReadBytes(file);
        const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
        return {bytes, bytes + text.size()};
    }

    /// What was played, without the silence before and after it.
    [[nodiscard]] Bytes Sounded(const SoundFormat& format) const
    {
        const Bytes all = Played();
        const auto sounds = [silence = Silence(format)](std::byte byte) { return byte != silence; };
        const auto first = std::find_if(all.begin(), all.end(), sounds);
        const auto last = std::find_if(all.rbegin(), all.rend(), sounds).base();
        return first < last ? Bytes(first, last) : Bytes();
    }

    TestFolder folder;
    const std::string file = folder.Path() / "played.raw";
    SdlSoundOutput output;
};

inline bool Ends(const SoundHandle& sound)
{
    return Comes([&] { return !sound->Place().Playing; });
}

inline Bytes Repeated(const Bytes& samples, std::size_t bytes)
{
    Bytes repeated;
    for (std::size_t i = 0; i < bytes; ++i)
        repeated.push_back(samples[i % samples.size()]);
    return repeated;
}

} // namespace sprout
