// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatFiles.h"

#include <exception>
#include <utility>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongSizes.h"
#include "core/Tell.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// A beat's picture lies beside its wave.
Picture LoadBeatPicture(std::string_view name, const fs::path& waveFile)
{
    const fs::path folder = waveFile.empty() ? Shared().UserBeats : AsFolder(waveFile.parent_path());
    return LoadPictureFile(NamedFile(folder, name, kPictureExtension));
}

/// The beat in a wave file; nothing if the file has no samples.
std::optional<Beat> ReadBeat(std::string_view name, const fs::path& waveFile)
{
    Beat beat;
    beat.Sound = LoadWaveFile(waveFile);
    const std::int32_t mostFrames = beat.Sound.Rate * kLongestBeatSeconds;
    if (beat.Sound.Length > mostFrames)
        beat.Sound = CutWaveSlice(beat.Sound, 1, mostFrames);
    if (beat.Sound.Length < 1)
        return std::nullopt;
    beat.Name = name;
    beat.DateStamp = FileStamp(waveFile);
    beat.Picture = LoadBeatPicture(name, waveFile);
    beat.Loaded = true;
    return beat;
}

/// The new content for `LoadBeatFile`; nothing if the beat stays unchanged.
std::optional<Beat> ReadNamedBeat(std::string_view name)
{
    const fs::path waveFile = FindBeatWave(name);
    return waveFile.empty() ? Beat() : ReadBeat(name, waveFile);
}

/// Place in the song's list of the beat with that name and stamp; 0 if it is not there.
std::int32_t FindSongBeat(const SongState& song, std::string_view name, std::string_view stamp)
{
    const std::string key = NameKey(name);
    for (std::int32_t index = 1; index <= song.SongBeatCount; ++index) {
        const Beat& beat = At(song.SongBeats, index);
        if (beat.DateStamp == stamp && NameKey(beat.Name) == key)
            return index;
    }
    return 0;
}

Beat EmptyBeat()
{
    Beat beat;
    beat.Picture = Shared().DefaultTunePicture;
    return beat;
}

} // namespace

std::string WithoutFamily(std::string fileName)
{
    const bool isLetter =
        !fileName.empty() && ((fileName[0] >= 'A' && fileName[0] <= 'Z') || (fileName[0] >= 'a' && fileName[0] <= 'z'));
    if (isLetter && fileName.size() > 2 && fileName[1] == '_')
        fileName.erase(0, 2);
    return fileName;
}

fs::path FindBeatWave(std::string_view name)
{
    return FindNamedFile(BeatFolders(), name, kWaveExtension);
}

std::string BeatNameForPeople(std::string_view name)
{
    const fs::path file = FindBeatWave(name);
    return WithoutFamily(file.empty() ? std::string(name) : PathText(file.stem()));
}

Picture LoadPictureFile(const fs::path& path)
{
    const fs::path file = FindFile(path);
    if (file.empty())
        return Shared().DefaultTunePicture;
    Picture picture = Shared().DefaultTunePicture;
    GuardedTelling(Words::Text("Error Loading Picture"), [&] { picture = TheServices().pictures->LoadPicture(file); });
    return picture;
}

void LoadBeatFile(Beat& beat, std::string_view name)
{
    if (const std::optional<Beat> read = ReadNamedBeat(name))
        beat = *read;
}

Beat BeatOfFile(Beat before, std::string_view name)
{
    LoadBeatFile(before, name);
    return before;
}

void BeatReader::LoadBeatFile(Beat& beat, const std::string& name)
{
    auto found = read.find(name);
    if (found == read.end())
        found = read.emplace(name, ReadNamedBeat(name)).first;
    if (found->second)
        beat = *found->second;
}

void ReloadBeat(Beat& beat)
{
    const fs::path waveFile = FindBeatWave(beat.Name);
    if (!waveFile.empty()) {
        if (const std::optional<Beat> read = ReadBeat(beat.Name, waveFile))
            beat = *read;
        return;
    }
    beat.DateStamp.clear();
    beat.Sound = EmptyWave();
    beat.Picture = LoadBeatPicture(beat.Name, {});
    beat.Loaded = true;
}

void FindOrLoadBeat(SongState& song, std::string_view name, std::int32_t& index)
{
    index = 0;
    const fs::path waveFile = FindBeatWave(name);
    if (waveFile.empty())
        return;
    index = FindSongBeat(song, name, FileStamp(waveFile));
    if (index != 0)
        return;
    index = AppendSongBeat(song, Beat());
    LoadBeatFile(song.SongBeats.back(), name);
}

void ExpandTuneBeats(const SongState& song, Tune& tune)
{
    const Beat empty = EmptyBeat();
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        TuneStep& step = At(tune.Steps, i);
        const bool hasBeat = step.IsOn() && step.BeatIndex >= 1 && step.BeatIndex <= song.SongBeatCount;
        step.StepBeat = hasBeat ? At(song.SongBeats, step.BeatIndex) : empty;
    }
}

void MergeTuneBeats(SongState& song, Tune& tune)
{
    const Beat empty = EmptyBeat();
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        TuneStep& step = At(tune.Steps, i);
        if (!step.IsOn() || step.StepBeat.Name.empty())
            continue;
        const std::int32_t found = FindSongBeat(song, step.StepBeat.Name, step.StepBeat.DateStamp);
        step.BeatIndex = found != 0 ? found : AppendSongBeat(song, step.StepBeat);
        step.StepBeat = empty; // the song stores the sound once, not every step
    }
}

} // namespace sprout
