// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/Loading.h"

#include <array>
#include <exception>
#include <fstream>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "songs/OpenSaveClass.h"
#include "songs/SongPaint.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

struct KindMark {
    FileKind kind;
    std::string_view name;
    std::string_view extension;
    std::string_view firstBytes;
};

constexpr std::array kKinds = {
    KindMark{FileKind::Song, "song", ".TqSng", "TqSng"}, KindMark{FileKind::Tune, "tune", ".TqTun", "TqTun"},
    KindMark{FileKind::Star, "star", ".TqSta", "TqSta"}, KindMark{FileKind::Wave, "wave", ".wav", "RIFF"},
    KindMark{FileKind::Wma, "wma", ".wma", "\x30\x26\xB2\x75\x8E"}};

/// Reports missing files: the engine treats them as empty, but the user who named one wants to know.
bool IsThere(Session& session, const fs::path& path, const Words& title)
{
    std::error_code error;
    if (fs::is_directory(path, error))
        session.Fail(title, Words::Text("%1 is a folder.", PathText(path)));
    else if (!FileExists(path))
        session.Fail(title, Words::Text("The file %1 was not found.", PathText(path)));
    else
        return true;
    return false;
}

} // namespace

std::string_view KindName(FileKind kind)
{
    for (const KindMark& mark : kKinds)
        if (mark.kind == kind)
            return mark.name;
    return {};
}

std::optional<FileKind> KindOfFile(const fs::path& path)
{
    for (const KindMark& mark : kKinds)
        if (EqualIgnoringCase(path.extension().native(), mark.extension))
            return mark.kind;
    std::array<char, 5> first{};
    std::ifstream(path, std::ios::binary).read(first.data(), first.size());
    for (const KindMark& mark : kKinds)
        if (std::string_view(first.data(), first.size()).starts_with(mark.firstBytes))
            return mark.kind;
    return std::nullopt;
}

bool LoadSong(Session& session, const fs::path& path)
{
    if (!IsThere(session, path, Words::Text("Error Opening File")))
        return false;
    OpenSaveClass().Load_Song(path);
    return Shared().Song.TrackCount != 0;
}

std::optional<SongState> LoadSongPaint(Session& session, const fs::path& path, std::int32_t mostTracks)
{
    const Words title = Words::Text("Error Opening File");
    if (!IsThere(session, path, title))
        return std::nullopt;
    try {
        SongState song = ReadSongPaint(path, mostTracks);
        if (song.TrackCount > 0)
            return song;
        session.Fail(title, Words::Text("%1 holds no song that can be read.", PathText(path)));
    } catch (const std::exception& error) {
        session.Fail(title, ErrorWords(error));
    }
    return std::nullopt;
}

bool LoadTune(Session& session, const fs::path& path)
{
    if (!IsThere(session, path, Words::Text("Error Opening File")))
        return false;
    const std::size_t before = session.messages.Shown().size();
    TunOpnSavClass().Load_Tune(path);
    if (session.NoMessageSince(before) && Shared().TuneClipboard.StepCount == 0)
        session.Fail(Words::Text("Error Loading Tune File"), Words::Text("The file holds no tune that can be read."));
    return session.NoMessageSince(before);
}

std::optional<Tune> LoadStar(Session& session, const fs::path& path)
{
    if (!IsThere(session, path, Words::Text("Error Opening File")))
        return std::nullopt;
    const std::size_t before = session.messages.Shown().size();
    const fs::path stars = std::exchange(Shared().UserStars, AsFolder(fs::absolute(path).parent_path()));
    Tune star;
    star.Name = BaseName(path);
    try {
        LoadStarFile(star);
    } catch (const std::exception& error) {
        session.Fail(Words::Text("Error Opening File"), ErrorWords(error));
    }
    Shared().UserStars = stars;
    return session.NoMessageSince(before) ? std::optional(std::move(star)) : std::nullopt;
}

std::optional<WaveData> LoadWave(Session& session, const fs::path& path, ReadSamples samples)
{
    if (!IsThere(session, path, Words::Text("Wave file load error")))
        return std::nullopt;
    const std::size_t before = session.messages.Shown().size();
    WaveData wave = LoadWaveFile(path, samples);
    return session.NoMessageSince(before) ? std::optional(std::move(wave)) : std::nullopt;
}

std::optional<SoundFacts> LoadSoundFacts(Session& session, const fs::path& path)
{
    const Words title = Words::Text("Error Loading Sound File");
    if (!IsThere(session, path, title))
        return std::nullopt;
    try {
        return ReadSoundFacts(path);
    } catch (const RunTimeError& error) {
        session.Fail(title, ErrorWords(error));
        return std::nullopt;
    }
}

bool SaveWave(Session& session, const WaveData& wave, const fs::path& path)
{
    const std::size_t before = session.messages.Shown().size();
    SaveWaveFile(wave, path);
    return session.NoMessageSince(before);
}

} // namespace sprout
