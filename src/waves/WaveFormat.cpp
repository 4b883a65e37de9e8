// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WaveFormat.h"

#include <cstddef>
#include <limits>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "core/Shared.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr double kLowest16 = std::numeric_limits<std::int16_t>::min();
constexpr double kHighest16 = std::numeric_limits<std::int16_t>::max();

/// The range that samples are clipped to.
struct ClipRange {
    double low;
    double high;
};

ClipRange RangeOfBits(std::int32_t bits)
{
    return bits == 8 ? ClipRange{-128, 127} : ClipRange{kLowest16, kHighest16};
}

double Clip(double value, ClipRange range)
{
    return value > range.high ? range.high : value < range.low ? range.low : value;
}

/// `RoundHalfEven` of a value within 16 bits. Adding 1.5 x 2^52 leaves no fraction bits, so the sum itself is rounded;
/// unlike with a library call, the loops around it become vector code on every machine.
std::int16_t RoundSample(double value)
{
    constexpr double noFraction = 6755399441055744.0;
    return static_cast<std::int16_t>(static_cast<std::int32_t>((value + noFraction) - noFraction));
}

/// Limits are whole numbers, so clipping before rounding gives the same as clipping after it.
std::int16_t RoundAndClip(double value, ClipRange range)
{
    return RoundSample(Clip(value, range));
}

/// A channel of `length` frames; make(i) creates frame i, counted from 0.
template <class Make>
Channel MakeChannel(std::size_t length, Make make)
{
    if (length == 0)
        return {};
    Channel channel = Channel::Unfilled(static_cast<std::int32_t>(length));
    std::int16_t* const samples = channel.Change().data() + 1;
    for (std::size_t i = 0; i < length; ++i)
        samples[i] = make(i);
    return channel;
}

/// Replaces each channel of a wave with convert(frames). Channels that share a block still share one.
template <class Convert>
void ConvertBoth(WaveData& wave, Convert convert)
{
    Channel left = convert(FramesOf(wave.WavL, wave.Length));
    if (wave.Channels == 2)
        wave.WavR = wave.WavR.SharesBlockWith(wave.WavL) ? left : convert(FramesOf(wave.WavR, wave.Length));
    else
        wave.WavR = Channel();
    wave.WavL = std::move(left);
}

Channel WidenSamples(std::span<const std::int16_t> samples)
{
    int widest = 0;
    for (const std::int16_t sample : samples)
        widest |= (sample + 128) & ~255; // stays 0 if all are within -128..127
    if (widest != 0)
        throw RunTimeError(Words::Text("A sample does not fit into 8 bits."));
    return MakeChannel(samples.size(),
                       [samples](std::size_t i) { return static_cast<std::int16_t>(samples[i] * 256); });
}

Channel NarrowSamples(std::span<const std::int16_t> samples)
{
    return MakeChannel(samples.size(), [samples](std::size_t i) { return RoundSample(samples[i] / 256.0); });
}

void ConvertBits(WaveData& wave, std::int32_t targetBits)
{
    if (wave.Bits == 8 && targetBits == 16)
        ConvertBoth(wave, WidenSamples);
    else if (wave.Bits == 16 && targetBits == 8)
        ConvertBoth(wave, NarrowSamples);
    else
        return;
    wave.Bits = targetBits;
}

Channel HalveSamples(std::span<const std::int16_t> samples)
{
    return MakeChannel(samples.size() / 2, [samples](std::size_t i) { return samples[2 * i + 1]; });
}

void Halve(WaveData& wave)
{
    ConvertBoth(wave, HalveSamples);
    wave.Length /= 2;
    wave.Rate = RoundHalfEven(wave.Rate / 2.0);
}

/// The sample halfway between `from` and `to` on a cubic Bezier curve whose control points lie a fifth of the
/// differences `rise` and `fall` (across each end's neighbours) away from the ends: the Bernstein weights at 0.5.
double CurveMiddle(double from, double to, double rise, double fall)
{
    const double control1 = from + rise / 5;
    const double control2 = to - fall / 5;
    return 0.125 * from + 0.375 * control1 + 0.375 * control2 + 0.125 * to;
}

/// The old samples become the even frames, the middles of the curve the odd ones. Element 0 repeats the first sample,
/// and the first middle lies between those two.
Channel DoubleSamples(std::span<const std::int16_t> samples, ClipRange range)
{
    const std::size_t count = samples.size();
    Channel channel = Channel::Unfilled(static_cast<std::int32_t>(2 * count));
    std::int16_t* const made = channel.Change().data();
    made[0] = samples.front();
    for (std::size_t i = 0; i < count; ++i)
        made[2 * i + 2] = samples[i];
    // Old sample i, counted from 1, with the first one again as number 0.
    const auto old = [samples](std::size_t i) { return static_cast<double>(samples[i == 0 ? 0 : i - 1]); };
    const auto middle = [&](std::size_t i, double before, double behind) {
        const double rise = old(i + 1) - before;
        const double fall = behind - old(i);
        made[2 * i + 1] = RoundAndClip(CurveMiddle(old(i), old(i + 1), rise, fall), range);
    };
    middle(0, old(0), count == 1 ? old(1) : old(2));
    for (std::size_t i = 1; i + 1 < count; ++i)
        middle(i, old(i - 1), old(i + 2));
    if (count > 1)
        middle(count - 1, old(count - 2), old(count));
    return channel;
}

void Double(WaveData& wave, ClipRange range)
{
    if (wave.Length > kLongestWaveFrames / 2)
        throw RunTimeError(Words::Text("The sound is too long."));
    ConvertBoth(wave, [range](std::span<const std::int16_t> samples) { return DoubleSamples(samples, range); });
    wave.Length *= 2;
    wave.Rate *= 2;
}

void ConvertRate(WaveData& wave, std::int32_t targetRate, ClipRange range)
{
    const std::int64_t rate = wave.Rate;
    const std::int64_t target = targetRate;
    const int doublings = rate * 2 == target ? 1 : rate * 4 == target ? 2 : 0;
    const int halvings = rate == target * 2 ? 1 : rate == target * 4 ? 2 : 0;
    for (int i = 0; i < doublings; ++i)
        Double(wave, range);
    for (int i = 0; i < halvings; ++i)
        Halve(wave);
}

/// 0.75 times the sum of the channels, which must fit into 16 bits.
Channel FoldChannels(const WaveData& wave)
{
    const auto left = FramesOf(wave.WavL, wave.Length);
    const auto right = FramesOf(wave.WavR, wave.Length);
    const ClipRange range = RangeOfBits(wave.Bits);
    return MakeChannel(left.size(), [&](std::size_t i) {
        const double sum = left[i] + right[i];
        if (sum < kLowest16 || sum > kHighest16)
            throw RunTimeError(Words::Text("A sum of two samples does not fit into 16 bits."));
        return RoundAndClip(sum * 0.75, range);
    });
}

/// `own` x ownShare + `other` x otherShare, frame by frame.
Channel BlendChannels(std::span<const std::int16_t> own, double ownShare, std::span<const std::int16_t> other,
                      double otherShare, ClipRange range)
{
    return MakeChannel(own.size(),
                       [=](std::size_t i) { return RoundAndClip(own[i] * ownShare + other[i] * otherShare, range); });
}

ClipRange RangeOfPercent(std::int32_t bits, std::int32_t clipPercent)
{
    if (bits == 8)
        return RangeOfBits(8);
    float clip = static_cast<float>(clipPercent / 100.0);
    if (clip == 0)
        clip = 1;
    return {static_cast<double>(RoundHalfEven(clip * kLowest16)),
            static_cast<double>(RoundHalfEven(clip * kHighest16))};
}

void CheckFitsInto16Bits(std::span<const std::int16_t> samples, double share, ClipRange range)
{
    for (const std::int16_t sample : samples) {
        const double value = Clip(sample * share, range);
        if (RoundHalfEven(value) < kLowest16 || RoundHalfEven(value) > kHighest16)
            throw RunTimeError(Words::Text("A sample does not fit into 16 bits."));
    }
}

} // namespace

std::span<const std::int16_t> FramesOf(const Channel& channel, std::int32_t length)
{
    if (length > channel.UpperBound())
        throw RunTimeError(Words::Text("The sound is shorter than it says."));
    return channel.Samples().first(length > 0 ? static_cast<std::size_t>(length) : 0);
}

WaveData ConvertWaveChannels(const WaveData& wave, std::int32_t targetChannels)
{
    const std::int32_t target = targetChannels == 0 ? Shared().Channels : targetChannels;
    WaveData converted = wave;
    if (wave.Channels == 1 && target == 2) {
        converted.Channels = 2;
        converted.WavR = converted.WavL;
    } else if (wave.Channels == 2 && target == 1) {
        converted.Channels = 1;
        converted.WavL = FoldChannels(wave);
        converted.WavR = Channel();
    }
    return converted;
}

WaveData ConvertWaveFormat(const WaveData& wave, std::int32_t targetRate, std::int32_t targetBits)
{
    const std::int32_t rate = targetRate == 0 ? Shared().SampleRate : targetRate;
    const std::int32_t bits = targetBits == 0 ? Shared().BitsPerSample : targetBits;
    if (wave.Length <= 0)
        return EmptyWave();
    WaveData converted = wave;
    if (wave.Bits == bits && wave.Rate == rate)
        return converted;
    ConvertBits(converted, bits);
    ConvertRate(converted, rate, RangeOfBits(bits));
    return converted;
}

WaveData ApplyWavePan(const WaveData& wave, std::int32_t panPercent)
{
    WaveData panned = ConvertWaveChannels(wave, 2);
    const float pan = static_cast<float>(panPercent / 100.0);
    if (pan == 0)
        return panned;
    const Channel leftChannel = panned.WavL;
    const Channel rightChannel = panned.WavR;
    const auto left = FramesOf(leftChannel, panned.Length);
    const auto right = FramesOf(rightChannel, panned.Length);
    const ClipRange range = RangeOfBits(panned.Bits);
    const double moved = pan > 0 ? pan : -pan;
    if (pan > 0) {
        panned.WavL = BlendChannels(left, 1 - moved, right, 0, range);
        panned.WavR = BlendChannels(right, 1, left, moved, range);
    } else {
        panned.WavL = BlendChannels(left, 1, right, moved, range);
        panned.WavR = BlendChannels(right, 1 - moved, left, 0, range);
    }
    return panned;
}

WaveData ScaleWaveVolume(const WaveData& wave, std::int32_t volumePercent, std::int32_t clipPercent)
{
    const double share = static_cast<float>(volumePercent / 100.0);
    const ClipRange range = RangeOfPercent(wave.Bits, clipPercent);
    const bool canLeave16Bits = range.high > kHighest16 || range.low < kLowest16;
    WaveData scaled = wave;
    ConvertBoth(scaled, [=](std::span<const std::int16_t> samples) {
        if (canLeave16Bits)
            CheckFitsInto16Bits(samples, share, range);
        return MakeChannel(samples.size(), [=](std::size_t i) { return RoundAndClip(samples[i] * share, range); });
    });
    return scaled;
}

} // namespace sprout
