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

/// The picture in a file; the default tune picture if the file does not exist or, after a message, cannot be read.
[[nodiscard]] Picture LoadPictureFile(const std::filesystem::path& path);

/// The base name of a beat's file without its family letter: "Acoustic Bass Low" for "B_Acoustic Bass Low".
[[nodiscard]] std::string WithoutFamily(std::string fileName);

/// The wave of a beat: in `UserBeats` or, if there is none, in the class's folder. Empty if there is neither.
[[nodiscard]] std::filesystem::path FindBeatWave(std::string_view name);

/// A beat's name for display: spelled like its file, if there is one, and without its family letter. "b_acoustic bass
/// low" becomes "Acoustic Bass Low".
[[nodiscard]] std::string BeatNameForPeople(std::string_view name);

/// Fills a beat from its pair of files, cut to 5 seconds. Without a .wav the beat becomes empty; a wave without samples
/// leaves it unchanged.
void LoadBeatFile(Beat& beat, std::string_view name);

/// What `LoadBeatFile` makes of `before`.
[[nodiscard]] Beat BeatOfFile(Beat before, std::string_view name);

/// `LoadBeatFile` for the many beats of one song or tune: each pair of files is read once, its messages appear once,
/// and beats with the same name share their samples.
class BeatReader {
public:
    void LoadBeatFile(Beat& beat, const std::string& name);

private:
    std::unordered_map<std::string, std::optional<Beat>> read; // nothing: the file has no samples
};

/// Reloads a beat by its own name, which it keeps even if the .wav no longer exists; it then counts as loaded.
void ReloadBeat(Beat& beat);

/// The place of a named beat in the song's list, appended if it is not there; 0 if there is no such beat.
void FindOrLoadBeat(SongState& song, std::string_view name, std::int32_t& index);

/// Gives every on-step of a tune its own copy of its beat from the song's list.
void ExpandTuneBeats(const SongState& song, Tune& tune);

/// Moves the beats of a tune's on-steps back into the song's list, each once.
void MergeTuneBeats(SongState& song, Tune& tune);

} // namespace sprout
