// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatTable.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "beats/BeatFiles.h"
#include "beats/BeatFolder.h"
#include "beats/BeatIndex.h"
#include "beats/SmallPicture.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

/// In the order of the index; beats with the same place stay alphabetical.
void SortBeatPairs(std::vector<BeatPair>& pairs, const BeatIndex& index)
{
    std::vector<std::pair<std::int32_t, std::size_t>> places;
    places.reserve(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i)
        places.emplace_back(index.Place(pairs[i].Name), i);
    std::sort(places.begin(), places.end());
    std::vector<BeatPair> sorted;
    sorted.reserve(pairs.size());
    for (const auto& [place, from] : places)
        sorted.push_back(std::move(pairs[from]));
    pairs = std::move(sorted);
}

std::int32_t FindBeatPair(const std::vector<BeatPair>& pairs, std::string_view name)
{
    const std::string key = NameKey(name);
    for (std::size_t i = 0; i < pairs.size(); ++i)
        if (NameKey(pairs[i].Name) == key)
            return static_cast<std::int32_t>(i) + 1;
    return 0;
}

/// Keeps a selection that is in the list; otherwise selects the named beat or the first one.
std::int32_t NewBeatSelection(const BeatTable& table, const std::vector<BeatPair>& pairs, std::string_view wanted)
{
    const auto count = static_cast<std::int32_t>(pairs.size());
    if (table.SelectedBeat >= 1 && table.SelectedBeat <= count)
        return table.SelectedBeat;
    const std::int32_t found = FindBeatPair(pairs, table.SelectedBeat == kRefindBeat ? table.RefindBeatName : wanted);
    return found != 0 ? found : std::min(count, 1);
}

BeatIndex ReadBeatIndex(const BeatFolder& folder)
{
    BeatIndex index = BeatIndex::Read();
    if (index.WriteProtectedList(folder.WaveNames))
        index.Write();
    return index;
}

} // namespace

bool HasSelection(const BeatTable& table)
{
    return table.SelectedBeat >= 1 && table.SelectedBeat <= table.BeatListCount;
}

const Beat& SelectedEntry(const BeatTable& table)
{
    return At(table.BeatList, table.SelectedBeat);
}

bool IsSelectedProtected(const BeatTable& table)
{
    return table.BeatProtected[static_cast<std::size_t>(table.SelectedBeat)];
}

void LoadBeatFiles(BeatTable& table, std::string_view wanted)
{
    BeatFolder folder = ListOwnAndClassBeats();
    const BeatIndex index = ReadBeatIndex(folder);
    SortBeatPairs(folder.Pairs, index);
    table.SelectedBeat = NewBeatSelection(table, folder.Pairs, wanted);
    table.BeatListCount = static_cast<std::int32_t>(folder.Pairs.size());
    table.BeatList.assign(1, Beat());
    table.NamesForPeople.clear();
    table.BeatProtected.assign(1, false);
    const auto originals = index.ReadProtectedList();
    for (BeatPair& pair : folder.Pairs) {
        table.BeatProtected.push_back(originals.contains(NameKey(pair.Name)) || IsOfClass(pair.Wave));
        table.NamesForPeople[pair.Name] = WithoutFamily(PathText(pair.Wave.stem()));
        Beat& beat = table.BeatList.emplace_back();
        beat.Name = std::move(pair.Name);
        beat.Picture = SmallPicture(LoadPictureFile(pair.Picture));
    }
}

void LoadBeatSound(BeatTable& table, std::int32_t index)
{
    Beat& beat = At(table.BeatList, index);
    WaveData sound = LoadWaveFile(FindBeatWave(beat.Name));
    const std::int32_t mostFrames = sound.Rate * kLongestShownSeconds;
    beat.Sound = sound.Length > mostFrames ? CutWaveSlice(sound, 1, mostFrames) : std::move(sound);
    beat.Loaded = true;
}

void LoadSelectedSound(BeatTable& table)
{
    if (!SelectedEntry(table).Loaded)
        LoadBeatSound(table, table.SelectedBeat);
}

void SaveBeatOrder(const BeatTable& table)
{
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= table.BeatListCount; ++i)
        names.push_back(At(table.BeatList, i).Name);
    BeatIndex index = BeatIndex::Read();
    index.SetOrder(names);
    index.Write();
}

void MoveBeatTo(BeatTable& table, std::int32_t target)
{
    const auto from = static_cast<std::size_t>(table.SelectedBeat);
    const auto to = static_cast<std::size_t>(target);
    std::swap(table.BeatList[from], table.BeatList[to]);
    std::vector<bool>::swap(table.BeatProtected[from], table.BeatProtected[to]);
    table.SelectedBeat = target;
}

Words DurationText(const WaveData& sound)
{
    const double seconds = BeatSeconds(sound);
    const auto tenths = static_cast<std::int64_t>(std::floor(seconds * 10 + 0.5));
    return seconds > kLongestShownSeconds ? Words::Text("%1.%2 Sec(Only 3 seconds allowed)", tenths / 10, tenths % 10)
                                          : Words::Text("%1.%2 Sec", tenths / 10, tenths % 10);
}

double BeatSeconds(const WaveData& sound)
{
    return sound.Rate > 0 ? static_cast<double>(sound.Length) / sound.Rate : 0;
}

} // namespace sprout
