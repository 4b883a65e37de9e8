// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/WaveSink.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <system_error>

#include "service/ffmpeg/SoundDecoder.h"

namespace sprout {

namespace {

// Samples and header are written to the file as they are in memory.
static_assert(std::endian::native == std::endian::little);

constexpr std::size_t kBlockSamples = 32768;

struct Head {
    std::array<char, 4> Riff{'R', 'I', 'F', 'F'};
    std::uint32_t RiffBytes = 0;
    std::array<char, 8> WaveFmt{'W', 'A', 'V', 'E', 'f', 'm', 't', ' '};
    std::uint32_t FormatBytes = 16;
    std::uint16_t Pcm = 1;
    std::uint16_t Channels = 0;
    std::uint32_t Rate = kDecodedRate;
    std::uint32_t BytesASecond = 0;
    std::uint16_t FrameBytes = 0;
    std::uint16_t Bits = 16;
    std::array<char, 4> Data{'d', 'a', 't', 'a'};
    std::uint32_t DataBytes = 0;
};
static_assert(sizeof(Head) == 44);

void WriteAt(int file, std::uint64_t place, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(place));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            throw NotWritten(Words::AsIs(std::generic_category().message(count < 0 ? errno : EIO)));
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        place += static_cast<std::uint64_t>(count);
    }
}

} // namespace

void WaveSink::Put(std::span<const std::int16_t> samples)
{
    const auto width = static_cast<std::size_t>(channels);
    const std::size_t given = samples.size() / width;
    const std::size_t taken = static_cast<std::size_t>(std::min(static_cast<std::int64_t>(given), most - frames));
    isOverfull = isOverfull || taken < given;
    frames += static_cast<std::int64_t>(taken);
    const auto whole = samples.first(taken * width);
    waiting.insert(waiting.end(), whole.begin(), whole.end());
    if (waiting.size() >= kBlockSamples)
        Flush();
}

void WaveSink::Flush()
{
    const auto bytes = std::as_bytes(std::span(waiting));
    WriteAt(file, place, bytes);
    place += bytes.size();
    waiting.clear();
}

void WaveSink::Finish()
{
    Flush();
    Head head;
    head.Channels = static_cast<std::uint16_t>(channels);
    head.FrameBytes = static_cast<std::uint16_t>(channels * 2);
    head.BytesASecond = head.FrameBytes * head.Rate;
    head.DataBytes = static_cast<std::uint32_t>(place - sizeof head);
    head.RiffBytes = head.DataBytes + 36;
    WriteAt(file, 0, std::as_bytes(std::span(&head, 1)));
}

} // namespace sprout
