// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/Mixer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Parallel.h"
#include "core/Shared.h"
#include "sound/RenderThreads.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

using Samples = std::span<const std::int16_t>;
using Progress = std::function<void(std::size_t, std::size_t)>;

constexpr std::size_t kBlockFrames = 8192; // sums of this size fit into the first-level cache
constexpr std::size_t kChunkFrames = 16 * kBlockFrames;
constexpr std::size_t kMostUncheckedSums = 65535; // this many samples cannot exceed 32 bits

using Sums = std::array<std::int32_t, kBlockFrames>;

/// The samples of a wave; none if it is silent.
struct StereoFrames {
    Samples left;
    Samples right;

    [[nodiscard]] bool AreMono() const { return left.data() == right.data(); }
};

/// A placed wave that sounds; frames are counted from 0.
struct Sounding {
    std::size_t begin;
    std::size_t end;
    const StereoFrames* frames;
};

struct ClipLimits {
    std::int32_t low;
    std::int32_t high;
};

std::int32_t ClipLimit(std::int32_t clip, std::int32_t fullScale)
{
    const std::int64_t product = static_cast<std::int64_t>(clip) * fullScale;
    if (product != static_cast<std::int32_t>(product))
        throw RunTimeError(Words::Text("The clip percent is too large."));
    return RoundHalfEven(static_cast<double>(product) / 100);
}

void ConvertWave(WaveData& wave, std::int32_t pan)
{
    if (wave.Channels != 2)
        wave = ConvertWaveChannels(wave, 2);
    if (wave.Bits != Shared().BitsPerSample || wave.Rate != Shared().SampleRate)
        wave = ConvertWaveFormat(wave, 0, 0);
    if (pan != 0)
        wave = ApplyWavePan(wave, pan);
}

bool NeedsWork(const WaveData& wave, std::int32_t pan)
{
    return wave.Bits != Shared().BitsPerSample || wave.Rate != Shared().SampleRate || pan != 0;
}

/// Converts the waves from index 1 on to the program's format; those that need arithmetic share the cores.
void ConvertWaves(std::vector<WaveData>& waves, std::int32_t pan, const Progress& progress)
{
    std::vector<WaveData*> costly;
    for (std::size_t i = 1; i < waves.size(); ++i) {
        if (waves[i].Length <= 0)
            continue;
        if (NeedsWork(waves[i], pan))
            costly.push_back(&waves[i]);
        else
            ConvertWave(waves[i], pan);
    }
    ParallelFor(
        costly.size(), [&costly, pan](std::size_t i) { ConvertWave(*costly[i], pan); }, progress,
        RenderThreads::Most());
}

std::vector<StereoFrames> TakeFrames(const std::vector<WaveData>& waves)
{
    std::vector<StereoFrames> frames(waves.size());
    for (std::size_t i = 0; i < waves.size(); ++i)
        if (waves[i].Length > 0)
            frames[i] = {FramesOf(waves[i].WavL, waves[i].Length), FramesOf(waves[i].WavR, waves[i].Length)};
    return frames;
}

std::vector<Sounding> TakeSoundings(std::span<const WaveFilePlacement> placements,
                                    const std::vector<StereoFrames>& waves)
{
    std::vector<Sounding> soundings;
    soundings.reserve(placements.size());
    for (const WaveFilePlacement& placement : placements) {
        if (placement.WaveIndex < 0 || static_cast<std::size_t>(placement.WaveIndex) >= waves.size())
            throw RunTimeError(Words::Text("A place refers to a sound that does not exist."));
        const StereoFrames& frames = waves[static_cast<std::size_t>(placement.WaveIndex)];
        if (frames.left.empty())
            continue;
        if (placement.Offset < 0)
            throw RunTimeError(Words::Text("A sound lies before the beginning."));
        const auto begin = static_cast<std::size_t>(placement.Offset);
        soundings.push_back({begin, begin + frames.left.size(), &frames});
    }
    return soundings;
}

std::int32_t TotalLength(const std::vector<Sounding>& soundings)
{
    std::size_t total = 0;
    for (const Sounding& sounding : soundings)
        total = std::max(total, sounding.end);
    if (total > static_cast<std::size_t>(kLongestWaveFrames))
        throw RunTimeError(Words::Text("The sound is too long."));
    return static_cast<std::int32_t>(total);
}

/// The soundings that overlap frames `begin` to `end`, in their order.
template <class Soundings>
std::vector<Sounding> Overlapping(const Soundings& soundings, std::size_t begin, std::size_t end)
{
    std::vector<Sounding> overlapping;
    for (const Sounding& sounding : soundings)
        if (sounding.begin < end && sounding.end > begin)
            overlapping.push_back(sounding);
    return overlapping;
}

void Add(std::span<std::int32_t> sums, Samples samples)
{
    for (std::size_t i = 0; i < samples.size(); ++i)
        sums[i] += samples[i];
}

/// Adds sounds to sums; those that are as long as all the sums, four at a time, so that each sum is read and written
/// once for four of them.
class PlainAdder {
public:
    explicit PlainAdder(std::span<std::int32_t> target) : sums(target) {}

    void AddAt(std::size_t place, Samples samples)
    {
        if (samples.size() < sums.size()) {
            Add(sums.subspan(place), samples);
            return;
        }
        whole[waiting++] = samples;
        if (waiting == whole.size())
            AddFour();
    }

    void AddRest()
    {
        for (const Samples samples : std::span(whole).first(waiting))
            Add(sums, samples);
        waiting = 0;
    }

private:
    void AddFour()
    {
        const auto [first, second, third, fourth] = whole;
        for (std::size_t i = 0; i < sums.size(); ++i)
            sums[i] += (first[i] + second[i]) + (third[i] + fourth[i]);
        waiting = 0;
    }

    std::span<std::int32_t> sums;
    std::array<Samples, 4> whole;
    std::size_t waiting = 0;
};

void AddScaled(std::span<std::int32_t> sums, Samples samples, double gain)
{
    for (std::size_t i = 0; i < samples.size(); ++i)
        sums[i] = RoundHalfEven(gain * samples[i] + sums[i]);
}

/// Stores the clipped sums. A clip above 100 percent may leave values that do not fit into 16 bits.
void Store(std::span<const std::int32_t> sums, ClipLimits limits, std::int16_t* samples)
{
    std::int32_t lost = 0;
    for (std::size_t i = 0; i < sums.size(); ++i) {
        const std::int32_t sum = sums[i];
        const std::int32_t clipped = sum > limits.high ? limits.high : sum < limits.low ? limits.low : sum;
        samples[i] = static_cast<std::int16_t>(clipped);
        lost |= clipped ^ samples[i];
    }
    if (lost != 0)
        throw RunTimeError(Words::Text("A sample does not fit into 16 bits."));
}

/// One mix: its sounds and their target.
class Mix {
public:
    Mix(std::vector<Sounding> placed, std::int32_t gainPercent, ClipLimits clipLimits)
        : soundings(std::move(placed)),
          gain(static_cast<float>(gainPercent / 100.0)),
          limits(clipLimits),
          total(TotalLength(soundings)),
          isMono(std::ranges::all_of(soundings, [](const Sounding& one) { return one.frames->AreMono(); }))
    {
    }

    /// The mixed wave; if all its sounds are mono, both channels are one. Each piece of the time line is summed
    /// separately, so that the pieces share the cores and the sums stay in the cache.
    WaveData Render(const Progress& progress)
    {
        WaveData result = EmptyWave();
        result.Channels = 2;
        if (total == 0)
            return result;
        result.Length = total;
        result.WavL = Channel::Unfilled(total);
        left = result.WavL.Change().data() + 1;
        if (!isMono) {
            result.WavR = Channel::Unfilled(total);
            right = result.WavR.Change().data() + 1;
        }
        const std::size_t chunks = (Total() + kChunkFrames - 1) / kChunkFrames;
        ParallelFor(
            chunks, [this](std::size_t chunk) { RenderChunk(chunk * kChunkFrames); }, progress, RenderThreads::Most());
        if (isMono)
            result.WavR = result.WavL;
        return result;
    }

private:
    [[nodiscard]] std::size_t Total() const { return static_cast<std::size_t>(total); }

    void RenderChunk(std::size_t begin)
    {
        const std::size_t end = std::min(begin + kChunkFrames, Total());
        const std::vector<Sounding> near = Overlapping(soundings, begin, end);
        const auto sums = std::make_unique_for_overwrite<Sums>();
        for (std::size_t block = begin; block < end; block += kBlockFrames) {
            const std::vector<Sounding> sounding = Overlapping(near, block, block + kBlockFrames);
            const std::span used = std::span(*sums).first(std::min(kBlockFrames, end - block));
            RenderBlock(used, sounding, &StereoFrames::left, block, left);
            if (!isMono)
                RenderBlock(used, sounding, &StereoFrames::right, block, right);
        }
    }

    void RenderBlock(std::span<std::int32_t> sums, const std::vector<Sounding>& sounding,
                     Samples StereoFrames::*channel, std::size_t begin, std::int16_t* samples) const
    {
        std::fill(sums.begin(), sums.end(), 0);
        const bool plain = gain == 1 && sounding.size() <= kMostUncheckedSums;
        PlainAdder adder(sums);
        for (const Sounding& one : sounding) {
            const std::size_t from = std::max(one.begin, begin);
            const std::size_t count = std::min(one.end, begin + sums.size()) - from;
            const Samples added = (one.frames->*channel).subspan(from - one.begin, count);
            if (plain)
                adder.AddAt(from - begin, added);
            else
                AddScaled(sums.subspan(from - begin), added, gain);
        }
        adder.AddRest();
        Store(sums, limits, samples + begin);
    }

    std::vector<Sounding> soundings;
    float gain;
    ClipLimits limits;
    std::int32_t total;
    bool isMono;
    std::int16_t* left = nullptr;
    std::int16_t* right = nullptr;
};

} // namespace

WaveData MixWaves(std::vector<WaveData> waves, std::span<const WaveFilePlacement> placements, std::int32_t gain,
                  std::int32_t pan, std::int32_t clip, const Progress& progress)
{
    ConvertWaves(waves, Shared().Channels == 2 ? pan : 0, progress);
    const std::vector<StereoFrames> frames = TakeFrames(waves);
    const ClipLimits limits{ClipLimit(clip, std::numeric_limits<std::int16_t>::min()),
                            ClipLimit(clip, std::numeric_limits<std::int16_t>::max())};
    return Mix(TakeSoundings(placements, frames), gain, limits).Render(progress);
}

} // namespace sprout
