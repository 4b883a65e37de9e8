// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "core/Song.h"
#include "service/ffmpeg/SoundFacts.h"
#include "sprout-song/Session.h"
#include "waves/WavOperations.h"

namespace sprout {

enum class FileKind { Song, Tune, Star, Wave, Wma };

[[nodiscard]] std::string_view KindName(FileKind kind);

/// The kind of a file by its extension or, if that is unknown, by its first bytes.
[[nodiscard]] std::optional<FileKind> KindOfFile(const std::filesystem::path& path);

// Each loads a file into the shared state and reports every failure; returns false if there is nothing to work on.

bool LoadSong(Session& session, const std::filesystem::path& path);
/// What is painted in a song's first tracks, at most `mostTracks` of them.
std::optional<SongState> LoadSongPaint(Session& session, const std::filesystem::path& path, std::int32_t mostTracks);
/// Into `TuneClipboard`.
bool LoadTune(Session& session, const std::filesystem::path& path);
/// The star in the file's own folder.
std::optional<Tune> LoadStar(Session& session, const std::filesystem::path& path);
std::optional<WaveData> LoadWave(Session& session, const std::filesystem::path& path, ReadSamples samples);

std::optional<SoundFacts> LoadSoundFacts(Session& session, const std::filesystem::path& path);

/// Writes a wave; returns false if a message was shown.
bool SaveWave(Session& session, const WaveData& wave, const std::filesystem::path& path);

} // namespace sprout
