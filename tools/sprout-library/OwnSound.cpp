// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/OwnSound.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "sprout-library/Measure.h"

namespace sprout {

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

/// The state of a sound at one moment; every sound gets a new one.
struct Moment {
    double seconds = 0; ///< since the start
    double length = 0;
    double base = 0;  ///< frequency of the key
    double phase = 0; ///< of the main oscillator, in turns
    std::uint32_t noise = 0x2545F491;

    [[nodiscard]] double Place() const { return seconds / length; }
    [[nodiscard]] double Sine() const { return std::sin(kTwoPi * phase); }
    /// Advances the main oscillator at a frequency.
    void Turn(double frequency) { phase += frequency / kRate; }
    /// Noise from -1 to 1, the same in every run.
    double Noise()
    {
        noise ^= noise << 13;
        noise ^= noise >> 17;
        noise ^= noise << 5;
        return noise / 2147483648.0 - 1;
    }
};

double Fall(double seconds, double halfLife)
{
    return std::exp2(-seconds / halfLife);
}

/// A pluck of two voices that beat against each other at the octave.
double Chip(Moment& now)
{
    now.Turn(now.base);
    const double square = now.Sine() + std::sin(3 * kTwoPi * now.phase) / 3 + std::sin(5 * kTwoPi * now.phase) / 5;
    return square * Fall(now.seconds, 0.12);
}

double Zap(Moment& now)
{
    now.Turn(120 + 2600 * Fall(now.seconds, 0.045));
    return (now.Sine() + 0.3 * std::sin(2 * kTwoPi * now.phase)) * Fall(now.seconds, 0.1);
}

double Boing(Moment& now)
{
    const double wobble = 1 + 0.35 * std::sin(kTwoPi * 9 * now.seconds) * Fall(now.seconds, 0.15);
    now.Turn(190 * wobble);
    return (now.Sine() + 0.5 * std::sin(2 * kTwoPi * now.phase)) * Fall(now.seconds, 0.16);
}

double Bubble(Moment& now)
{
    now.Turn(340 + 900 * now.Place() * now.Place());
    return now.Sine() * Fall(now.seconds, 0.05);
}

double Slide(Moment& now)
{
    now.Turn(320 * std::exp2(1.6 * now.Place()));
    return now.Sine() * std::sin(std::numbers::pi * std::sqrt(now.Place()));
}

double Robot(Moment& now)
{
    now.Turn(now.base);
    const double buzz = std::sin(kTwoPi * now.phase + 3 * Fall(now.seconds, 0.2) * std::sin(kTwoPi * now.phase * 2));
    return buzz * Fall(now.seconds, 0.25) * std::min(1.0, now.seconds * 200);
}

double Drop(Moment& now)
{
    now.Turn(500 + 1500 * Fall(now.seconds, 0.02) * (now.seconds < 0.03 ? now.seconds / 0.03 : 1));
    return now.Sine() * Fall(now.seconds, 0.035);
}

double Puff(Moment& now)
{
    now.phase += (now.Noise() - now.phase) * (0.35 * Fall(now.seconds, 0.12) + 0.02);
    return now.phase * Fall(now.seconds, 0.09) * 2;
}

using Voice = double (*)(Moment&);
constexpr std::array<std::pair<std::string_view, Voice>, 8> kVoices = {{{"Chip", Chip},
                                                                        {"Zap", Zap},
                                                                        {"Boing", Boing},
                                                                        {"Bubble", Bubble},
                                                                        {"Slide", Slide},
                                                                        {"Robot", Robot},
                                                                        {"Drop", Drop},
                                                                        {"Puff", Puff}}};

} // namespace

std::vector<double> OwnSound(std::string_view name, int key, double seconds)
{
    for (const auto& [voiceName, voice] : kVoices) {
        if (voiceName != name)
            continue;
        std::vector<double> sound(static_cast<std::size_t>(seconds * kRate));
        Moment now;
        now.length = seconds;
        now.base = 440 * std::exp2((key - 69) / 12.0);
        for (std::size_t i = 0; i < sound.size(); ++i) {
            now.seconds = static_cast<double>(i) / kRate;
            sound[i] = voice(now);
        }
        return sound;
    }
    throw RunTimeError(Words::Text("There is no sound own:%1.", name));
}

} // namespace sprout
