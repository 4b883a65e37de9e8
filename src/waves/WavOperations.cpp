// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <new>
#include <stdexcept>
#include <string>

#include "base/ByteCursor.h"
#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Longs.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/Tell.h"
#include "waves/WaveBytes.h"
#include "waves/WaveFields.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

// Files store samples exactly as memory does.
static_assert(std::endian::native == std::endian::little);

/// Ends a load with its own message.
struct Refusal {
    Words title;
    Words text;
};

WaveData ReadWaveHead(ByteSource& source, std::int32_t dataSize, const std::string& name)
{
    const WaveFields fields = ReadWaveFields(source);
    WaveData wave;
    wave.Channels = fields.Channels;
    if (!IsKnownChannels(wave.Channels))
        throw Refusal{Words::Text("Error Loading %1", name), Words::Text("Channal info invalid at byte location 23")};
    wave.Rate = fields.Rate;
    if (!IsKnownRate(wave.Rate))
        throw Refusal{Words::Text("Failed Loading %1", name),
                      Words::Text("Sampling rate (%1) not supported", wave.Rate)};
    wave.Bits = fields.Bits;
    if (!IsKnownBits(wave.Bits))
        throw Refusal{Words::Text("Error Loading %1", name), Words::Text("Bits per sample not supported")};
    wave.Length = RoundHalfEven(static_cast<double>(dataSize) / FrameBytes(wave));
    return wave;
}

/// All sample bytes for the wave's length; those missing in the file are zero.
std::vector<std::byte> ReadSampleBytes(ByteSource& source, const WaveData& wave, std::uint64_t begin)
{
    if (wave.Length < 0)
        throw RunTimeError(Words::Text("The file gives a length below zero."));
    const std::uint64_t there = source.Size() - std::min(source.Size(), begin);
    const std::uint64_t wanted = static_cast<std::uint64_t>(wave.Length) * static_cast<std::uint64_t>(FrameBytes(wave));
    if (wanted > there && wave.Length > kMostPromisedFrames)
        throw RunTimeError(Words::Text("The file promises more sound than it holds."));
    std::vector<std::byte> bytes(static_cast<std::size_t>(wanted));
    source.Read(begin, std::span(bytes).first(static_cast<std::size_t>(std::min(wanted, there))));
    return bytes;
}

std::int16_t SampleAt(std::span<const std::byte> bytes, std::size_t index, std::int32_t bits)
{
    if (bits == 8)
        return static_cast<std::int16_t>(std::to_integer<int>(bytes[index]) - 128);
    return static_cast<std::int16_t>(std::to_integer<unsigned>(bytes[index * 2]) |
                                     (std::to_integer<unsigned>(bytes[index * 2 + 1]) << 8));
}

Channel Deinterleave(std::span<const std::byte> bytes, const WaveData& wave, std::size_t which)
{
    Channel channel = Channel::Unfilled(wave.Length);
    const auto step = static_cast<std::size_t>(wave.Channels);
    const std::span<std::int16_t> samples = channel.Change().subspan(1);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = SampleAt(bytes, i * step + which, wave.Bits);
    return channel;
}

/// name: the file's name in messages.
WaveData ReadWave(const fs::path& path, const std::string& name, ReadSamples samples)
{
    FileSource source(path);
    if (source.Size() < kSmallestWave)
        throw Refusal{Words::Text("Error Loading %1", name), Words::Text("No wave Data found in file")};
    const std::uint64_t data = FindWaveData(source);
    if (data == 0)
        throw Refusal{Words::Text("Error Loading %1", name), Words::Text("The String 'Data' - is not found")};
    WaveData wave = ReadWaveHead(source, ReadWaveDataSize(source, data), name);
    if (samples == ReadSamples::HeaderOnly)
        return wave;
    const std::vector<std::byte> bytes = ReadSampleBytes(source, wave, data + 8);
    wave.WavL = Deinterleave(bytes, wave, 0);
    if (wave.Channels == 2)
        wave.WavR = Deinterleave(bytes, wave, 1);
    return wave;
}

/// Writes the parts of a WAV file and stops at the first failure.
class WaveWriter {
public:
    explicit WaveWriter(const fs::path& path) : file(path, std::ios::binary | std::ios::trunc)
    {
        if (!file)
            throw RunTimeError(Words::Text("The file %1 could not be made.", PathText(path)));
    }

    void Int32(std::int32_t value) { Bytes(std::as_bytes(std::span(&value, 1))); }
    void Bytes(std::span<const std::byte> bytes)
    {
        file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        Check();
    }
    void MoveTo(std::streamoff place) { file.seekp(place); }
    void Close()
    {
        file.close();
        Check();
    }

private:
    void Check() const
    {
        if (!file)
            throw RunTimeError(Words::Text("The file could not be written to its end."));
    }

    std::ofstream file;
};

void WriteSamples(WaveWriter& writer, const WaveData& wave)
{
    constexpr std::int32_t blockFrames = 16384;
    std::vector<std::byte> bytes(static_cast<std::size_t>(blockFrames * FrameBytes(wave)));
    for (std::int32_t first = 1; first <= wave.Length; first += blockFrames) {
        const std::int32_t frames = std::min(wave.Length - first + 1, blockFrames);
        const auto block =
            std::span(bytes).first(static_cast<std::size_t>(frames) * static_cast<std::size_t>(FrameBytes(wave)));
        PackFrames(wave, first, block);
        writer.Bytes(block);
    }
}

void WriteWave(const WaveData& wave, const fs::path& path)
{
    CheckFrames(wave);
    const double dataBytes = static_cast<double>(FrameBytes(wave)) * wave.Length;
    const std::int32_t dataSize = RoundHalfEven(dataBytes);
    const std::int32_t riffSize = RoundHalfEven(dataBytes + 36);
    const fs::path file = ThroughLinks(path);
    if (!DeleteFile(file))
        throw RunTimeError(Words::Text("The file %1 cannot be replaced.", PathText(path)));
    WaveWriter writer(file);
    writer.Bytes(WaveHead(wave));
    WriteSamples(writer, wave);
    writer.MoveTo(40);
    writer.Int32(dataSize);
    writer.MoveTo(4);
    writer.Int32(riffSize);
    writer.Close();
}

Channel CutChannel(const Channel& source, std::int32_t first, std::int32_t length)
{
    if (length == 0)
        return {};
    if (first < 1 || first - 1 > source.UpperBound() - length)
        throw RunTimeError(Words::Text("The part lies outside of the sound."));
    return Channel::FromSamples(
        source.Samples().subspan(static_cast<std::size_t>(first - 1), static_cast<std::size_t>(length)));
}

} // namespace

WaveData EmptyWave()
{
    WaveData wave;
    wave.Bits = Shared().BitsPerSample;
    wave.Channels = Shared().Channels;
    wave.Rate = Shared().SampleRate;
    return wave;
}

WaveData LoadWaveFile(const fs::path& path, ReadSamples samples)
{
    return TryLoadWaveFile(path, samples).value_or(EmptyWave());
}

std::optional<WaveData> TryLoadWaveFile(const fs::path& path, ReadSamples samples)
{
    const fs::path file = FindFile(path);
    if (file.empty())
        return std::nullopt;
    std::optional<WaveData> wave;
    GuardedTelling(Words::Text("Wave file load error"), [&] {
        try {
            wave = ReadWave(file, PathText(path), samples);
        } catch (const Refusal& refusal) {
            Tell(refusal.title, refusal.text);
        }
    });
    return wave;
}

bool MayWriteWave(const WaveData& wave, const fs::path& path)
{
    if (path.empty())
        Tell({}, Words::Text("No file name given to write"));
    else if (wave.Length == 0)
        Tell(Words::Text("Writing wave error"), Words::Text("Silent or Zero size wave found"));
    else if (!IsKnownFormat(wave))
        Tell({}, Words::Text("Format not Known to write wave file"));
    else
        return true;
    return false;
}

void SaveWaveFile(const WaveData& wave, const fs::path& path)
{
    if (!MayWriteWave(wave, path))
        return;
    GuardedTelling(Words::Text("Wav file Write error"), [&] { WriteWave(wave, path); });
}

std::vector<std::int32_t> WaveToLongs(const WaveData& wave)
{
    LongsWriter writer;
    writer.PutWave(wave);
    return writer.Elements();
}

WaveData LongsToWave(std::span<const std::int32_t> longs)
{
    if (longs.size() <= 1)
        return EmptyWave();
    MemorySource source(std::as_bytes(longs));
    return LongsReader::Raw(source, 0, source.Size()).GetWave();
}

WaveData CutWaveSlice(const WaveData& source, std::int32_t first, std::int32_t last)
{
    WaveData slice;
    slice.Bits = source.Bits;
    slice.Channels = source.Channels;
    slice.Rate = source.Rate;
    slice.Length = RoundHalfEven(std::max(static_cast<double>(last) - first + 1, 0.0));
    slice.WavL = CutChannel(source.WavL, first, slice.Length);
    if (source.Channels == 2)
        slice.WavR = CutChannel(source.WavR, first, slice.Length);
    return slice;
}

namespace {

/// From 650 to 700 Hz in 0.2 s, fading out.
WaveData GlidingTone()
{
    constexpr double twoPi = 6.28318530717958;
    const std::int32_t rate = Shared().SampleRate;
    if (rate < 1)
        throw RunTimeError(Words::Text("There is no sample rate."));
    WaveData tone = EmptyWave();
    tone.Length = RoundHalfEven(0.2 * rate);
    const double amplitude = RoundHalfEven(0.7 * (tone.Bits == 8 ? 127 : 32767));
    double step = twoPi / (rate / 650.0);
    const double lastStep = twoPi / (rate / 700.0);
    const double ratio = std::pow(lastStep / step, 1.0 / tone.Length);
    tone.WavL = Channel(tone.Length);
    const std::span<std::int16_t> samples = tone.WavL.Change();
    double phase = 0;
    for (std::int32_t i = 1; i <= tone.Length; ++i) {
        const double fade = static_cast<double>(tone.Length - i) / tone.Length;
        samples[static_cast<std::size_t>(i)] =
            static_cast<std::int16_t>(RoundHalfEven(std::sin(phase) * amplitude * fade));
        step *= ratio;
        phase += step;
        if (phase > twoPi)
            phase -= twoPi;
    }
    if (tone.Channels == 2)
        tone.WavR = tone.WavL;
    return tone;
}

} // namespace

WaveData MakeTestTone()
{
    WaveData tone = EmptyWave();
    GuardedTelling(Words::Text("Generate Sine Error"), [&tone] { tone = GlidingTone(); });
    return tone;
}

} // namespace sprout
