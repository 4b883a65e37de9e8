// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Mod.h"

#include <algorithm>
#include <array>
#include <bit>
#include <memory>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

#include "base/ByteCursor.h"
#include "base/Parallel.h"
#include "core/Paths.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

// The files' samples are read straight into memory.
static_assert(std::endian::native == std::endian::little);

constexpr std::uint64_t kSampleBytes = sizeof(std::int16_t);
/// A capture keeps at most this many; anything after them is not sound.
constexpr std::uint64_t kMostSamples = (std::uint64_t{1} << 29) - 11;

/// A raw file of one channel; nothing if it is missing or has no samples.
class RawFile {
public:
    static std::optional<RawFile> Open(const fs::path& path)
    {
        std::error_code error;
        if (!fs::is_regular_file(path, error))
            return std::nullopt;
        RawFile file(std::make_unique<FileSource>(path));
        return file.Samples() == 0 ? std::nullopt : std::optional<RawFile>(std::move(file));
    }

    /// The number of samples when the file was opened.
    [[nodiscard]] std::uint64_t Samples() const { return std::min(source->Size() / kSampleBytes, kMostSamples); }

    /// Elements 0 to `upperBound`: the file's samples, then silence after its end.
    [[nodiscard]] Channel Read(std::int32_t upperBound) const
    {
        Channel channel = Channel::Unfilled(upperBound);
        const std::span<std::int16_t> elements = channel.Change();
        const auto there = std::min(elements.size(), static_cast<std::size_t>(Samples()));
        source->Read(0, std::as_writable_bytes(elements.first(there)));
        std::fill(elements.begin() + static_cast<std::ptrdiff_t>(there), elements.end(), std::int16_t{0});
        return channel;
    }

private:
    explicit RawFile(std::unique_ptr<FileSource> file) : source(std::move(file)) {}

    std::unique_ptr<FileSource> source;
};

/// Clears element 0, which is unused in a wave.
Channel AsWaveChannel(Channel channel)
{
    channel.Change().front() = 0;
    return channel;
}

} // namespace

RecdState& Recd()
{
    static RecdState state;
    return state;
}

void LoadRecordedFiles(const fs::path& left, const fs::path& right)
{
    if (const std::optional<RawFile> leftFile = RawFile::Open(left)) {
        const std::optional<RawFile> rightFile = RawFile::Open(right);
        const auto length = static_cast<std::int32_t>(leftFile->Samples() - 1);
        const std::array files{&leftFile, &rightFile};
        std::array<Channel, 2> samples;
        // Both at once: a child is waiting for long recordings.
        ParallelFor(files.size(), [&](std::size_t channel) {
            if (const std::optional<RawFile>& file = *files[channel])
                samples[channel] = file->Read(length);
        });
        Recd().RecdWavR = rightFile ? std::move(samples[1]) : samples[0];
        Recd().RecdWavL = std::move(samples[0]);
        Recd().RecdLength = length;
    }
    DeleteFile(left);
    DeleteFile(right);
}

WaveData TakeRecordedWave()
{
    RecdState& recd = Recd();
    WaveData wave{recd.RecdBits, recd.RecdChannels, recd.RecdRate, {}, {}, 0};
    const std::int32_t length = std::exchange(recd.RecdLength, 0);
    Channel left = std::exchange(recd.RecdWavL, Channel());
    Channel right = std::exchange(recd.RecdWavR, Channel());
    if (length < 1)
        return wave;
    // A block shared by both stays shared.
    const bool isOneBlock = left.SharesBlockWith(right);
    if (isOneBlock)
        right = Channel();
    wave.WavL = AsWaveChannel(std::move(left));
    wave.WavR = isOneBlock ? wave.WavL : AsWaveChannel(std::move(right));
    wave.Length = length;
    return wave;
}

} // namespace sprout
