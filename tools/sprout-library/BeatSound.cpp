// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/BeatSound.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "sprout-library/Measure.h"
#include "sprout-library/OwnSound.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr double kHeardDb = -37;           // against the peak: softer samples before a sound are not part of it
constexpr std::ptrdiff_t kLeadFrames = 44; // kept before that, and faded in
// Levelling moves the onset a little; this keeps it well below the limit.
constexpr auto kMostFramesToOnset = static_cast<std::ptrdiff_t>(0.8 * kLatestOnsetSeconds * kRate);

/// Removes everything below 25 Hz.
void CutLowest(std::vector<double>& sound)
{
    const double pole = std::exp(-2 * std::numbers::pi * 25 / kRate);
    double before = 0, state = 0;
    for (double& sample : sound) {
        state = sample - before + pole * state;
        before = sample;
        sample = state;
    }
}

/// Removes the rest of the mean, weighted by a curve that is zero at both ends.
void CutOffset(std::vector<double>& sound)
{
    const double rest = Offset(sound);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double place = static_cast<double>(i) / static_cast<double>(sound.size());
        sound[i] -= rest * (1 - std::cos(2 * std::numbers::pi * place));
    }
}

/// The number of frames before the first one that is louder than `level`.
std::ptrdiff_t FramesBefore(std::span<const double> sound, double level)
{
    return std::find_if(sound.begin(), sound.end(), [level](double s) { return std::abs(s) > level; }) - sound.begin();
}

/// Cuts frames off the beginning and fades in `lead` of those that follow.
void CutBeginning(std::vector<double>& sound, std::ptrdiff_t frames, std::ptrdiff_t lead)
{
    sound.erase(sound.begin(), sound.begin() + frames);
    for (std::ptrdiff_t i = 0; i < lead; ++i)
        sound[static_cast<std::size_t>(i)] *= static_cast<double>(i) / static_cast<double>(lead);
}

/// Cuts what precedes the sound and what is too soft at its end.
void Trim(std::vector<double>& sound)
{
    const double level = std::pow(10.0, (PeakDb(sound) + kHeardDb) / 20);
    const std::ptrdiff_t before = FramesBefore(sound, level);
    const std::ptrdiff_t lead = std::min(before, kLeadFrames);
    CutBeginning(sound, before - lead, lead);
    const double faint = level / 12;
    const auto last = std::find_if(sound.rbegin(), sound.rend(), [faint](double s) { return std::abs(s) > faint; });
    sound.erase(last.base(), sound.end());
}

/// Cuts a slow beginning so far that the onset is early enough.
void BringOnsetNear(std::vector<double>& sound)
{
    const double level = std::pow(10.0, PeakDb(sound) / 20) * kOnsetShare;
    const std::ptrdiff_t tooMany = FramesBefore(sound, level) - kMostFramesToOnset;
    if (tooMany > 0)
        CutBeginning(sound, tooMany, kLeadFrames);
}

void FadeOut(std::vector<double>& sound)
{
    // The last two fifths, but at least 30 ms.
    const std::size_t frames = std::min(sound.size(), std::max<std::size_t>(sound.size() * 2 / 5, 1323));
    for (std::size_t i = 0; i < frames; ++i) {
        const double place = static_cast<double>(i + 1) / static_cast<double>(frames);
        const double gain = std::pow(std::cos(place * std::numbers::pi / 2), 2);
        sound[sound.size() - frames + i] *= gain;
    }
}

/// Brings the sound to a loudness, as far as the highest allowed peak permits, and compresses single peaks in the way.
void Level(std::vector<double>& sound, double loudnessDb)
{
    const double wantedDb = loudnessDb - LoudestDb(sound);
    const double peakDb = PeakDb(sound);
    const double gainDb = std::max(wantedDb, kLowestBeatPeakDb + 0.5 - peakDb);
    const double ceiling = std::pow(10.0, (kHighestBeatPeakDb - 0.5) / 20);
    const double knee = ceiling * 0.5;
    const double gain = std::pow(10.0, gainDb / 20);
    for (double& sample : sound) {
        const double size = std::abs(sample * gain);
        const double held = size <= knee ? size : knee + (ceiling - knee) * std::tanh((size - knee) / (ceiling - knee));
        sample = std::copysign(held, sample);
    }
}

WaveData MonoWave(std::span<const double> sound)
{
    std::vector<std::int16_t> samples;
    samples.reserve(sound.size());
    for (const double sample : sound)
        samples.push_back(static_cast<std::int16_t>(RoundHalfEven(sample * 32767)));
    WaveData wave = EmptyWave();
    wave.Channels = 1;
    wave.WavL = Channel::FromSamples(samples);
    wave.Length = wave.WavL.UpperBound();
    return wave;
}

} // namespace

std::vector<double> BeatSounds::Raw(const BeatRecipe& recipe, double cents)
{
    const std::vector<std::string> parts = Split(recipe.Sound, ':');
    if (parts.size() == 2 && parts[0] == "own")
        return OwnSound(parts[1], recipe.Key, recipe.Seconds);
    if (!font)
        font = std::make_unique<SoundFont>(file);
    if (parts.size() != 2)
        throw RunTimeError(Words::Text("%1: \"%2\" is no sound such as 0:24 or own:Zap.", recipe.Name, recipe.Sound));
    FontNote note;
    note.Bank = std::stoi(parts[0]);
    note.Program = std::stoi(parts[1]);
    note.Key = recipe.Key;
    note.Velocity = recipe.Velocity;
    note.HeldSeconds = recipe.HeldSeconds;
    // Slow strokes lose up to this much at their beginning.
    note.Seconds = recipe.Seconds + 0.2;
    note.Cents = cents;
    return font->Play(note);
}

WaveData BeatSounds::Make(const BeatRecipe& recipe, const BeatFamily& family)
{
    double cents = 0;
    std::vector<double> sound = Raw(recipe, cents);
    // Played notes are a little off, and the second measurement is closer than the first.
    for (int turn = 0; recipe.Pitched && turn < 2; ++turn) {
        Trim(sound);
        cents -= CentsOff(sound, recipe.Key);
        sound = Raw(recipe, cents);
    }
    Trim(sound);
    sound.resize(std::min(sound.size(), static_cast<std::size_t>(recipe.Seconds * kRate)));
    CutLowest(sound);
    BringOnsetNear(sound);
    FadeOut(sound);
    Level(sound, family.LoudnessDb);
    CutOffset(sound);
    return MonoWave(sound);
}

} // namespace sprout
