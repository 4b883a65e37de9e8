// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/Song.h"

namespace sprout {

/// Longest sound of a beat, in seconds.
inline constexpr std::int32_t kLongestBeatSeconds = 5;

/// The picture of a file; the default tune picture where there is no such file, or, after a message, where it cannot be
/// read.
[[nodiscard]] Picture LoadPictureFile(const std::filesystem::path& path);

/// The base name of a beat's file without the letter of its family: "Acoustic Bass Low" of "B_Acoustic Bass Low".
[[nodiscard]] std::string WithoutFamily(std::string fileName);

/// A beat's name as people read it: written as its file in `UserBeats` is, where there is one, and without the letter
/// of its family. "b_acoustic bass low" is "Acoustic Bass Low".
[[nodiscard]] std::string BeatNameForPeople(std::string_view name);

/// Fills a beat from its pair of files in `UserBeats`, cut to 5 seconds. Without a .wav the beat comes out empty; a
/// wave without samples leaves it as it was.
void LoadBeatFile(Beat& beat, std::string_view name);

/// `LoadBeatFile` for the many beats of one song or tune: each pair of files is read once, its messages are shown once,
/// and beats of one name share their samples.
class BeatReader {
public:
    void LoadBeatFile(Beat& beat, const std::string& name);

private:
    std::unordered_map<std::string, std::optional<Beat>> read; // nothing: the file holds no samples
};

/// Loads a beat again by its own name, which stays also where there is no .wav any more; it counts as loaded then.
void ReloadBeat(Beat& beat);

/// The place of a named beat in the song's list, added at its end if it is not there; 0 where there is no such beat.
void FindOrLoadBeat(SongState& song, std::string_view name, std::int32_t& index);

/// Gives every on-step of a tune its own copy of its beat from the song's list.
void ExpandTuneBeats(const SongState& song, Tune& tune);

/// Takes the beats of a tune's on-steps back into the song's list, each once.
void MergeTuneBeats(SongState& song, Tune& tune);

} // namespace sprout
