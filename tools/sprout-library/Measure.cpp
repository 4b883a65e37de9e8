// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Measure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace sprout {

namespace {

constexpr double kLoudnessOffset = -0.691; // of BS.1770: a 997 Hz sine at full scale reads -3.01

constexpr std::size_t kPitchFrames = 4096; // long enough to resolve cents, short enough to follow a vibrato
constexpr int kPartials = 4;
constexpr int kLowestC = 24;
constexpr int kHighestC = 108;

struct Biquad {
    double b0, b1, b2, a1, a2;
};

/// The first filter: a shelf that models the effect of the head.
Biquad HeadShelf()
{
    constexpr double frequency = 1681.974450955533, gainDb = 3.999843853973347, q = 0.7071752369554196;
    const double k = std::tan(std::numbers::pi * frequency / kRate);
    const double high = std::pow(10.0, gainDb / 20);
    const double band = std::pow(high, 0.4996667741545416);
    const double a0 = 1 + k / q + k * k;
    return {(high + band * k / q + k * k) / a0, 2 * (k * k - high) / a0, (high - band * k / q + k * k) / a0,
            2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

/// The second filter: removes what is too low to count.
Biquad LowCut()
{
    constexpr double frequency = 38.13547087602444, q = 0.5003270373238773;
    const double k = std::tan(std::numbers::pi * frequency / kRate);
    const double a0 = 1 + k / q + k * k;
    return {1, -2, 1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0};
}

void Filter(const Biquad& f, std::vector<double>& sound)
{
    double z1 = 0, z2 = 0;
    for (double& sample : sound) {
        const double out = f.b0 * sample + z1;
        z1 = f.b1 * sample - f.a1 * out + z2;
        z2 = f.b2 * sample - f.a2 * out;
        sample = out;
    }
}

/// Mean squares of windows of `length` frames, `step` apart; a shorter sound is one window, padded with silence.
std::vector<double> Powers(std::span<const double> sound, std::size_t length, std::size_t step)
{
    std::vector<double> sums(sound.size() + 1);
    for (std::size_t i = 0; i < sound.size(); ++i)
        sums[i + 1] = sums[i] + sound[i] * sound[i];
    std::vector<double> powers;
    if (sound.size() < length)
        return {sums.back() / static_cast<double>(length)};
    for (std::size_t i = 0; i + length <= sound.size(); i += step)
        powers.push_back((sums[i + length] - sums[i]) / static_cast<double>(length));
    return powers;
}

/// The sum of the K-weighted powers of both channels; a mono wave counts for both sides.
std::vector<double> StereoPowers(const WaveData& wave, std::size_t length, std::size_t step)
{
    std::vector<double> powers = Powers(KWeighted(Samples(wave.WavL)), length, step);
    const Channel& other = wave.Channels == 2 ? wave.WavR : wave.WavL;
    const std::vector<double> right = Powers(KWeighted(Samples(other)), length, step);
    std::transform(powers.begin(), powers.end(), right.begin(), powers.begin(), std::plus<>());
    return powers;
}

double PowerDb(double power)
{
    return power > 0 ? std::max(kSilenceDb, kLoudnessOffset + 10 * std::log10(power)) : kSilenceDb;
}

double MeanAbove(std::span<const double> powers, double gateDb)
{
    double sum = 0;
    int count = 0;
    for (const double power : powers) {
        if (PowerDb(power) > gateDb) {
            sum += power;
            ++count;
        }
    }
    return count > 0 ? sum / count : 0;
}

/// Normalised autocorrelation of the whole sound at a lag in whole frames.
double Correlation(std::span<const double> sound, std::size_t lag)
{
    double product = 0, power = 0;
    for (std::size_t i = 0; i + lag < sound.size(); ++i) {
        product += sound[i] * sound[i + lag];
        power += sound[i] * sound[i] + sound[i + lag] * sound[i + lag];
    }
    return power > 0 ? 2 * product / power : 0;
}

/// Power of the sound at a frequency (Goertzel).
double PowerAt(std::span<const double> sound, double frequency)
{
    const double turn = 2 * std::cos(2 * std::numbers::pi * frequency / kRate);
    double before = 0, last = 0;
    for (const double sample : sound) {
        const double next = sample + turn * last - before;
        before = last;
        last = next;
    }
    return last * last + before * before - turn * last * before;
}

/// The spectral peak of a windowed part near a frequency.
struct Top {
    double Cents = 0;
    double Power = 0; ///< 0 if there is no peak
};

Top TopOfSpectrum(std::span<const double> windowed, double frequency)
{
    constexpr double reachCents = 80, coarseCents = 16, fineCents = 4;
    const auto power = [&](double cents) { return PowerAt(windowed, frequency * std::exp2(cents / 1200)); };
    double most = 0, place = 0;
    for (double cents = -reachCents; cents <= reachCents; cents += coarseCents) {
        const double here = power(cents);
        if (here > most) {
            most = here;
            place = cents;
        }
    }
    if (most <= 0 || std::abs(place) >= reachCents)
        return {};
    // Near its peak, the logarithm of a windowed sine is a parabola.
    const double before = std::log(power(place - fineCents)), at = std::log(most);
    const double behind = std::log(power(place + fineCents));
    const double bow = before - 2 * at + behind;
    const double step = bow < 0 ? 0.5 * (before - behind) / bow : 0;
    return {place + fineCents * std::clamp(step, -coarseCents / fineCents, coarseCents / fineCents), most};
}

/// The correlation at a lag if it stands out against lags an eighth away; otherwise 0.
double TopNear(std::span<const double> sound, double lag)
{
    const auto at = [&](double ratio) {
        return Correlation(sound, static_cast<std::size_t>(std::lround(lag * ratio)));
    };
    const double top = std::max({at(1), at(0.985), at(1.015)});
    return top > at(0.85) && top > at(1.15) ? top : 0;
}

double PeriodOf(int key)
{
    return kRate / (440 * std::pow(2.0, (key - 69) / 12.0));
}

/// The part that holds most of the sound: its loud first half second, after the noise of the stroke.
std::span<const double> Body(std::span<const double> sound)
{
    const auto from = std::min<std::size_t>(sound.size() / 4, 2205);
    return sound.subspan(from, std::min<std::size_t>(sound.size() - from, 22050));
}

} // namespace

std::vector<double> Samples(const Channel& channel)
{
    std::vector<double> sound;
    sound.reserve(channel.Samples().size());
    for (const std::int16_t sample : channel.Samples())
        sound.push_back(sample / 32768.0);
    return sound;
}

double Decibels(double amplitude)
{
    return amplitude > 0 ? std::max(kSilenceDb, 20 * std::log10(amplitude)) : kSilenceDb;
}

double PeakDb(std::span<const double> sound)
{
    double peak = 0;
    for (const double sample : sound)
        peak = std::max(peak, std::abs(sample));
    return Decibels(peak);
}

double Offset(std::span<const double> sound)
{
    double sum = 0;
    for (const double sample : sound)
        sum += sample;
    return sound.empty() ? 0 : sum / static_cast<double>(sound.size());
}

std::vector<double> KWeighted(std::span<const double> sound)
{
    std::vector<double> weighted(sound.begin(), sound.end());
    Filter(HeadShelf(), weighted);
    Filter(LowCut(), weighted);
    return weighted;
}

double LoudestDb(std::span<const double> sound)
{
    const std::vector<double> powers = Powers(KWeighted(sound), 4410, 441);
    return PowerDb(*std::max_element(powers.begin(), powers.end()));
}

double LoudnessDb(const WaveData& wave)
{
    const std::vector<double> powers = StereoPowers(wave, 17640, 4410);
    return PowerDb(MeanAbove(powers, std::max(-70.0, PowerDb(MeanAbove(powers, -70)) - 10)));
}

Loud LoudestSecond(const WaveData& wave)
{
    const std::vector<double> powers = StereoPowers(wave, 44100, 4410);
    const auto loudest = std::max_element(powers.begin(), powers.end());
    return {PowerDb(*loudest), static_cast<double>(loudest - powers.begin()) / 10};
}

int SoundingC(std::span<const double> sound)
{
    // Takes the shortest period that repeats nearly as well as the best, because multiples of a period repeat too. Lags
    // far below a period correlate as well, but have no peak.
    const std::span<const double> body = Body(sound);
    double most = 0;
    int found = 0;
    for (int key = kLowestC; key <= kHighestC; key += 12) {
        const double strength = TopNear(body, PeriodOf(key));
        most = std::max(most, strength);
        if (strength > 0 && strength >= 0.8 * most)
            found = key;
    }
    return found;
}

double CentsOff(std::span<const double> sound, int key)
{
    const double frequency = kRate / PeriodOf(key);
    const std::span<const double> body = Body(sound);
    const std::size_t frame = std::min(kPitchFrames, body.size());
    double sum = 0, weight = 0;
    std::vector<double> part(frame);
    for (std::size_t start = 0; start + frame <= body.size(); start += frame / 2) {
        for (std::size_t i = 0; i < frame; ++i) {
            const double place = static_cast<double>(i) / static_cast<double>(frame);
            part[i] = body[start + i] * (0.5 - 0.5 * std::cos(2 * std::numbers::pi * place));
        }
        for (int partial = 1; partial <= kPartials; ++partial) {
            const Top top = TopOfSpectrum(part, partial * frequency);
            sum += top.Power * top.Cents;
            weight += top.Power;
        }
    }
    return weight > 0 ? sum / weight : 0;
}

} // namespace sprout
