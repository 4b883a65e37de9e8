// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <span>
#include <vector>

namespace sprout {

/// `count` samples of a sine; `hz` assumes 44,100 samples a second.
inline std::vector<float> SineFloats(std::size_t count, double hz, double peak = 16000, double rate = 44100)
{
    std::vector<float> sound(count);
    for (std::size_t i = 0; i < count; ++i)
        sound[i] = static_cast<float>(peak * std::sin(2 * std::numbers::pi * hz * static_cast<double>(i) / rate));
    return sound;
}

/// White noise, the same in every run.
inline std::vector<float> NoiseFloats(std::size_t count, double peak = 8000)
{
    std::minstd_rand random(7);
    std::vector<float> sound(count);
    for (float& sample : sound)
        sample = static_cast<float>(peak * (static_cast<double>(random() % 20001) / 10000 - 1));
    return sound;
}

inline std::vector<std::int16_t> Rounded(std::span<const float> sound)
{
    std::vector<std::int16_t> samples(sound.size());
    for (std::size_t i = 0; i < sound.size(); ++i)
        samples[i] = static_cast<std::int16_t>(std::lround(sound[i]));
    return samples;
}

inline std::vector<std::int16_t> SineSamples(std::size_t count, double hz, double peak = 16000, double rate = 44100)
{
    return Rounded(SineFloats(count, hz, peak, rate));
}

/// A struck note: silence up to `at`, then a tone that decays within 100 ms.
inline std::vector<float> StruckFloats(std::size_t count, std::size_t at, double hz = 880)
{
    std::vector<float> sound(count);
    for (std::size_t i = at; i < count; ++i) {
        const double seconds = static_cast<double>(i - at) / 44100;
        sound[i] =
            static_cast<float>(20000 * std::exp(-seconds / 0.1) * std::sin(2 * std::numbers::pi * hz * seconds + 1));
    }
    return sound;
}

/// The level of one frequency in part of a sound: the amplitude of that sine.
template <typename Sample>
double LevelAt(std::span<const Sample> sound, double hz, double rate = 44100)
{
    double re = 0;
    double im = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double turn = 2 * std::numbers::pi * static_cast<double>(i);
        const double window = 1 - std::cos(turn / static_cast<double>(sound.size()));
        re += window * static_cast<double>(sound[i]) * std::cos(turn * hz / rate);
        im += window * static_cast<double>(sound[i]) * std::sin(turn * hz / rate);
    }
    return 2 * std::hypot(re, im) / static_cast<double>(sound.size());
}

} // namespace sprout
