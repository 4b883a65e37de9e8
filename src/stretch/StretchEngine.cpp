// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/StretchEngine.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "service/Resampler.h"
#include "stretch/Finish.h"
#include "stretch/OnsetDetector.h"
#include "stretch/Slices.h"
#include "stretch/Tonality.h"
#include "stretch/Vocoder.h"

namespace sprout::stretch {
namespace {

constexpr Index kShortestVocoded = 256;

Index FittingWindow(Index window, Index count)
{
    while (window > count)
        window /= 2;
    return window;
}

void AddBand(std::span<const float> sound, const TimeMap& map, Index window, const Crossover& crossover,
             const Sizes& sizes, std::span<float> result)
{
    const Index fitting = FittingWindow(window, std::ssize(sound));
    Vocoder vocoder(fitting, CrossoverGains(crossover, Vocoder::FftSizeFor(fitting), sizes.nominalRate));
    vocoder.AddStretched(sound, map, result);
}

/// Restores the original attack: the frames after it overlap it and shift its stroke a little.
///
/// The vocoder keeps the phases of the tones through the attack, so the two cross-fade unnoticed.
void RestoreAttack(std::span<const float> sound, Index verbatim, std::span<float> result)
{
    const Index kept = verbatim / 2;
    for (Index i = 0; i < verbatim; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const float way = i < kept ? 0.0F : static_cast<float>(i - kept) / static_cast<float>(verbatim - kept);
        result[at] = (1 - way) * sound[at] + way * result[at];
    }
}

/// The stretched slice plus `tail` samples, which fade out under the next one.
std::vector<float> StretchSlice(std::span<const float> sound, const Slice& slice, Index tail, const Sizes& sizes)
{
    const std::span<const float> part =
        sound.subspan(static_cast<std::size_t>(slice.inFirst), static_cast<std::size_t>(slice.inCount));
    std::vector<float> result(static_cast<std::size_t>(slice.outCount + tail));
    const TimeMap map(slice.verbatim, slice.inCount, slice.outCount + tail);
    if (IsNoisy(part, sizes)) {
        using enum Crossover::Keep;
        AddBand(part, map, sizes.longWindow, {Low, sizes.lowBandHz, sizes.highBandHz}, sizes, result);
        AddBand(part, map, sizes.shortWindow, {High, sizes.lowBandHz, sizes.highBandHz}, sizes, result);
    } else {
        AddBand(part, map, sizes.longWindow, {}, sizes, result);
    }
    RestoreAttack(part, slice.verbatim, result);
    return result;
}

void JoinSlice(std::span<const float> slice, Index at, Index fadeIn, Index fadeOut, std::span<float> result)
{
    const Index count = std::min<Index>(std::ssize(slice), std::ssize(result) - at);
    const auto addFaded = [&](Index first, Index end) {
        for (Index i = first; i < end; ++i) {
            float gain = i < fadeIn ? static_cast<float>(i) / static_cast<float>(fadeIn) : 1.0F;
            const Index left = std::ssize(slice) - i;
            gain *= left < fadeOut ? static_cast<float>(left) / static_cast<float>(fadeOut) : 1.0F;
            result[static_cast<std::size_t>(at + i)] += gain * slice[static_cast<std::size_t>(i)];
        }
    };
    const Index middle = std::min(fadeIn, count);
    const Index end = std::clamp(std::ssize(slice) - fadeOut, middle, count);
    addFaded(0, middle);
    const auto sounding = result.begin() + at;
    std::transform(slice.begin() + middle, slice.begin() + end, sounding + middle, sounding + middle, std::plus<>());
    addFaded(end, count);
}

/// Length of the sound before it is played `pitch` times as fast: enough for every sample of the result.
Index StretchedLength(Index outCount, double pitch)
{
    return static_cast<Index>(std::ceil(static_cast<double>(outCount) * pitch));
}

/// The float sound, stretched so that playing it `pitch` times as fast yields `outCount` samples.
std::vector<float> StretchForPitch(std::vector<float> sound, Index outCount, double pitch, const Sizes& sizes)
{
    const Index stretched = StretchedLength(outCount, pitch);
    const bool sameLength = std::abs(stretched - std::ssize(sound)) <= 1;
    if (sameLength || std::min<Index>({std::ssize(sound), stretched, outCount}) < kShortestVocoded)
        return sound;
    return StretchTime(sound, stretched, sizes);
}

} // namespace

std::vector<float> StretchTime(std::span<const float> sound, Index outCount, const Sizes& sizes)
{
    const std::vector<Slice> slices = CutSlices(FindOnsets(sound, sizes), std::ssize(sound), outCount, sizes);
    std::vector<float> result(static_cast<std::size_t>(outCount));
    for (std::size_t i = 0; i < slices.size(); ++i) {
        const Index fadeIn = i > 0 ? sizes.joinFadeIn : 0;
        const Index fadeOut = i + 1 < slices.size() ? sizes.joinFadeOut : 0;
        JoinSlice(StretchSlice(sound, slices[i], fadeOut, sizes), slices[i].outFirst, fadeIn, fadeOut, result);
    }
    return result;
}

std::vector<std::int16_t> StretchSamples(std::span<const std::int16_t> samples, std::int32_t rate, double pitch,
                                         double duration)
{
    if (samples.empty() || (pitch == 1 && duration == 1))
        return {samples.begin(), samples.end()};
    const Sizes sizes = SizesFor(rate);
    const Index outCount = ResultLength(std::ssize(samples), duration);
    const std::vector<float> stretched = StretchForPitch(ToFloats(samples), outCount, pitch, sizes);
    std::vector<float> result = Resample(stretched, pitch, outCount);
    FadeEnds(result, StartsQuietly(samples), sizes);
    return ToSamples(result);
}

} // namespace sprout::stretch
