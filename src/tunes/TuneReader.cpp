// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <optional>
#include <string>
#include <unordered_map>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "beats/BeatEntry.h"
#include "beats/BeatFiles.h"
#include "core/FileHead.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/rendered/Rendered.h"
#include "tunes/StepEntry.h"
#include "tunes/TuneVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr LaterWords kTuneFailed = Words::Later("Error Loading Tune File");

void ReadListPart(LongsReader& data, Tune& tune, const fs::path& path)
{
    static_cast<void>(data.GetText()); // a file renamed by hand is known by its new name
    tune.Name = BaseName(path);
    tune.CreatedBy = data.GetText();
    tune.Picture = data.GetPicture();
}

void ReadSteps(LongsReader& data, Tune& tune)
{
    MakeSteps(data, tune, kStepEntryElements);
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        ReadStepEntry(data, At(tune.Steps, i));
}

void ReadBeatNames(LongsReader& data, Tune& tune)
{
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        if (At(tune.Steps, i).IsOn())
            At(tune.Steps, i).StepBeat.Name = data.GetText();
}

void ReadBeatEntry(LongsReader& data, Beat& beat)
{
    if (data.Get() != 1)
        return LoadBeatFile(beat, beat.Name);
    ReadStoredBeat(data, beat);
}

void ReadBeats(LongsReader& data, Tune& tune)
{
    // First on-step for each name in the file; a beat that is not found loses its name on the way.
    std::unordered_map<std::string, std::int32_t> firstSteps;
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        TuneStep& step = At(tune.Steps, i);
        if (!step.IsOn()) {
            step.StepBeat.Picture = Shared().DefaultTunePicture;
            continue;
        }
        const auto [first, isNew] = firstSteps.emplace(step.StepBeat.Name, i);
        if (isNew)
            ReadBeatEntry(data, step.StepBeat);
        else
            step.StepBeat = At(tune.Steps, first->second).StepBeat;
    }
}

void ReadSound(LongsReader& data, Tune& tune, const fs::path& path)
{
    if (data.Get() == 1)
        Rendered::KeepTuneWave(tune, data.GetWave());
    tune.DateStamp = FileStamp(path);
    if (!tune.TuneWaveValid)
        ReadTuneCache(tune, path);
}

void ReadParts(LongsReader& data, Tune& tune, const fs::path& path, TuneLoad mode)
{
    ReadListPart(data, tune, path);
    if (mode == TuneLoad::List)
        return;
    ReadSteps(data, tune);
    ReadBeatNames(data, tune);
    if (mode == TuneLoad::StepNames)
        return;
    ReadBeats(data, tune);
    if (mode == TuneLoad::Beats)
        return;
    ReadSound(data, tune, path);
}

} // namespace

std::optional<ReadFailure> Load_Tune_V20(Tune& tune, ByteSource& source, const fs::path& path, TuneLoad mode)
{
    std::optional<ReadFailure> failure;
    const auto tell = [&failure](const std::exception& error) {
        failure = ReadFailure{kTuneFailed, ErrorWords(error)};
    };
    GuardedBy(tell, [&] {
        const std::optional<std::uint64_t> begin = FindHeadData(source);
        if (!begin) {
            failure = ReadFailure{kTuneFailed, Words::Text("Failed to find Data")};
            return;
        }
        LongsReader data(source, *begin);
        ReadParts(data, tune, path, mode);
    });
    return failure;
}

} // namespace sprout
