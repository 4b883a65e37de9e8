// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <string>
#include <vector>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "beats/BeatFiles.h"
#include "core/ClassFolder.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongModel.h"
#include "core/SongSizes.h"
#include "tunes/TuneVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kStepCycle = "StepCycle";
constexpr std::string_view kUnknownAuthor = "???";
constexpr std::int32_t kMostSteps = 256;
constexpr std::int32_t kMostPitchShift = 64;
constexpr std::int32_t kMostVolume = 1000;

/// The list for a key, one text per step; `fallback` for every step if the key is missing.
std::vector<std::string> StepTexts(const IniFile& ini, std::string_view key, char separator, std::string_view fallback,
                                   std::int32_t stepCount)
{
    const auto count = static_cast<std::size_t>(stepCount);
    if (!ini.Has(kStepCycle, key))
        return {count, std::string(fallback)};
    std::vector<std::string> texts = Split(ini.Value(kStepCycle, key, ""), separator);
    texts.resize(count);
    return texts;
}

std::vector<std::int32_t> StepNumbers(const IniFile& ini, std::string_view key, std::string_view fallback,
                                      std::int32_t stepCount)
{
    std::vector<std::int32_t> numbers;
    for (const std::string& text : StepTexts(ini, key, ',', fallback, stepCount))
        numbers.push_back(RoundHalfEven(NumberPrefix(text)));
    return numbers;
}

std::int32_t ReadStepCount(const IniFile& ini)
{
    const std::int32_t count = RoundHalfEven(NumberPrefix(ini.Value(kStepCycle, "NumberOfSteps", "0")));
    if (count < 1)
        return kBlankTuneSteps;
    return count > kMostSteps ? kMostSteps : count;
}

/// Steps without sound, length or loudness.
void MakeBareSteps(Tune& tune, std::int32_t count)
{
    TuneStep bare;
    bare.Volume = 0;
    bare.Duration = 0;
    AssignSteps(tune, count, bare);
}

/// Reads what tunes and stars of the old form have in common.
void ReadStepCycle(const IniFile& ini, Tune& tune)
{
    MakeBareSteps(tune, ReadStepCount(ini));
    const std::vector<std::int32_t> on = StepNumbers(ini, "OnPos", "0", tune.StepCount);
    const std::vector<std::int32_t> pitch = StepNumbers(ini, "PitchShift", "0", tune.StepCount);
    const std::vector<std::int32_t> duration = StepNumbers(ini, "Duration", "100", tune.StepCount);
    const std::vector<std::int32_t> volume = StepNumbers(ini, "Volume", "100", tune.StepCount);
    for (std::size_t i = 0; i < on.size(); ++i) {
        TuneStep& step = tune.Steps[i + 1];
        step.SetOn(on[i] != 0);
        if (pitch[i] >= -kMostPitchShift && pitch[i] <= kMostPitchShift)
            step.PitchShift = pitch[i];
        step.Duration = duration[i]; // no limit: old tunes may have any length
        if (volume[i] >= 0 && volume[i] <= kMostVolume)
            step.Volume = volume[i];
    }
}

void ReadInstruments(const IniFile& ini, Tune& tune)
{
    const std::vector<std::string> names = StepTexts(ini, "Instruments", '|', "0", tune.StepCount);
    BeatReader beats;
    for (std::size_t i = 0; i < names.size(); ++i)
        beats.LoadBeatFile(tune.Steps[i + 1].StepBeat, names[i]);
}

void MakeSilentStar(Tune& tune)
{
    constexpr std::int32_t unchangedLoudness = 100;
    tune.Picture = Shared().DefaultTunePicture;
    tune.DateStamp.clear();
    tune.CreatedBy.clear();
    MakeBareSteps(tune, kBlankTuneSteps);
    for (TuneStep& step : tune.Steps)
        step.Volume = unchangedLoudness;
}

} // namespace

void Load_Tune_V00(Tune& tune, const fs::path& path, TuneLoad mode)
{
    const std::string fileName = PathText(path.filename());
    tune.Name = fileName.substr(0, fileName.size() - std::min(fileName.size(), kTuneExtension.size()));
    const IniFile ini = IniFile::Read(path);
    tune.CreatedBy = ini.Value(kGeneralSection, "CreatedBy", kUnknownAuthor);
    tune.Picture = LoadPictureFile(FindNamedFile(TuneFolders(), tune.Name, kPictureExtension));
    if (mode != TuneLoad::All)
        return;
    tune.DateStamp = FileStamp(path);
    ReadStepCycle(ini, tune);
    ReadInstruments(ini, tune);
}

void LoadStarFile(Tune& tune)
{
    SongChanges::TuneEmptied(tune);
    const fs::path file = FindFile(NamedFile(Shared().UserStars, tune.Name, kStarExtension));
    if (file.empty())
        return MakeSilentStar(tune);
    const IniFile ini = IniFile::Read(file);
    tune.Picture = LoadPictureFile(NamedFile(Shared().UserStars, tune.Name, kPictureExtension));
    tune.DateStamp = FileStamp(file);
    tune.CreatedBy = ini.Value(kGeneralSection, "CreatedBy", kUnknownAuthor);
    ReadStepCycle(ini, tune);
}

} // namespace sprout
