// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/RandomTune.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Numbers.h"
#include "beats/BeatFiles.h"
#include "core/ClassFolder.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongSizes.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::int32_t kLongestOnRun = 4;
constexpr std::int32_t kLongestOffRun = 2;
constexpr std::int32_t kOffPercent = 33; ///< draws up to this one are off

/// A whole number from 0 to `count` - 1.
std::int32_t Draw(const RandomNumber& next, std::int32_t count)
{
    return static_cast<std::int32_t>(std::floor(static_cast<double>(next()) * count));
}

template <class Pool>
const auto& DrawFrom(const Pool& pool, const RandomNumber& next)
{
    return pool[static_cast<std::size_t>(Draw(next, static_cast<std::int32_t>(pool.size())))];
}

/// One number is drawn even if there is no picture.
Picture DrawPicture(const RandomNumber& next)
{
    const std::vector<std::string> names = NamesInFolder(Shared().UserStars, kPictureExtension);
    const auto count = static_cast<std::int32_t>(names.size());
    const std::int32_t drawn = RoundHalfEven(static_cast<double>(next()) * count);
    if (count == 0)
        return LoadPictureFile({});
    const std::string& name = names[static_cast<std::size_t>(std::clamp(drawn, 1, count) - 1)];
    return LoadPictureFile(NamedFile(Shared().UserStars, name, kPictureExtension));
}

std::int32_t DrawStepCount(const RandomNumber& next)
{
    const std::int32_t percent = Draw(next, 100) + 1;
    if (percent < 40)
        return 8;
    return percent < 90 ? 16 : 32;
}

std::vector<std::int32_t> DrawPitchPool(const RandomNumber& next)
{
    std::vector<std::int32_t> pool(static_cast<std::size_t>(Draw(next, 4) + 2));
    for (std::int32_t& pitch : pool)
        pitch = Draw(next, 13) - 6;
    return pool;
}

bool IsShort(const std::string& beatName)
{
    std::error_code error;
    const std::uintmax_t bytes = fs::file_size(FindBeatWave(beatName), error);
    return !error && bytes < kShortBeatBytes;
}

/// Draws until a short beat comes up; if none is short, the first draw counts, or the loop would never end.
const std::string& DrawShortBeat(const std::vector<std::string>& names, bool hasShort, const RandomNumber& next)
{
    const std::string* name = &DrawFrom(names, next);
    while (hasShort && !IsShort(*name))
        name = &DrawFrom(names, next);
    return *name;
}

std::vector<Beat> DrawBeatPool(const RandomNumber& next)
{
    std::vector<std::string> names;
    for (FolderFile& wave : FilesInFolders(BeatFolders(), kWaveExtension))
        names.push_back(std::move(wave.Name));
    const bool hasShort = std::any_of(names.begin(), names.end(), IsShort);
    std::vector<Beat> pool(static_cast<std::size_t>(Draw(next, 4) + 1));
    if (names.empty())
        return pool;
    BeatReader reader; // equal beats share their samples
    for (Beat& beat : pool)
        reader.LoadBeatFile(beat, DrawShortBeat(names, hasShort, next));
    return pool;
}

/// Lengths of the current runs of on-steps and off-steps.
struct Runs {
    std::int32_t OnRun = 0;
    std::int32_t OffRun = 0;

    /// Takes the next step.
    void Add(bool on)
    {
        OnRun = on ? OnRun + 1 : 0;
        OffRun = on ? 0 : OffRun + 1;
    }
};

bool DrawOn(const Runs& runs, const RandomNumber& next)
{
    if (runs.OffRun == kLongestOffRun)
        return true;
    if (runs.OnRun == kLongestOnRun)
        return false;
    return Draw(next, 100) > kOffPercent;
}

void DrawSteps(Tune& tune, const RandomNumber& next)
{
    const std::vector<std::int32_t> pitchPool = DrawPitchPool(next);
    const std::vector<Beat> beatPool = DrawBeatPool(next);
    Runs runs;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        TuneStep& step = At(tune.Steps, number);
        const bool isFirst = number == 1;
        const bool on = isFirst || DrawOn(runs, next);
        runs.Add(on);
        step.SetOn(on);
        step.StepBeat = isFirst ? beatPool.front() : DrawFrom(beatPool, next);
        step.PitchShift = DrawFrom(pitchPool, next);
    }
}

/// A step keeps sounding through the gap after it.
void SetDurations(Tune& tune)
{
    const auto isOn = [&tune](std::int32_t step) { return step > tune.StepCount || At(tune.Steps, step).IsOn(); };
    for (std::int32_t number = 1; number <= tune.StepCount; ++number)
        At(tune.Steps, number).Duration = isOn(number + 1) ? 70 : isOn(number + 2) ? 150 : 200;
}

} // namespace

RandomSequence RandomSequence::FromClock()
{
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    return RandomSequence(static_cast<std::uint32_t>(ticks ^ (ticks >> 32)));
}

float RandomSequence::operator()()
{
    // A float holds 24 bits, so no number is rounded up to 1.
    return static_cast<float>(generator() >> 8) / static_cast<float>(1U << 24);
}

void MakeRandomTune(Tune& tune, const RandomNumber& next)
{
    tune.CreatedBy = "Random";
    tune.Name = "New";
    tune.Picture = DrawPicture(next);
    AssignSteps(tune, DrawStepCount(next), TuneStep());
    DrawSteps(tune, next);
    SetDurations(tune);
    SongChanges::StepsReplaced(tune);
}

} // namespace sprout
