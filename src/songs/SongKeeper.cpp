// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongKeeper.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Longs.h"
#include "base/Text.h"
#include "core/FileHead.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Services.h"
#include "songs/SongVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kNoteExtension = ".Kept";
constexpr std::size_t kMostTitleBytes = 200; // of the 255 allowed in a file name

std::size_t NumberOf(const LongsWriter& data)
{
    std::size_t number = 0;
    for (const std::span<const std::byte> piece : data.Pieces()) {
        const std::string_view bytes(reinterpret_cast<const char*>(piece.data()), piece.size());
        number = number * 31 + std::hash<std::string_view>()(bytes);
    }
    return number;
}

/// "Rain kept", "Rain kept 2", ...: a title that cannot be a file name is replaced.
std::string KeptName(std::string_view title, int number)
{
    std::string name = SafeFileName(CharactersInBytes(Trim(title), kMostTitleBytes));
    if (SongPath(name).empty())
        name = "Untitled";
    return name + " kept" + (number == 1 ? std::string() : " " + std::to_string(number));
}

/// Writes a file under the first free name and returns that name.
std::string WriteUnderFreeName(std::string_view title, const LongsWriter& data)
{
    for (int number = 1;; ++number) {
        std::string name = KeptName(title, number);
        const fs::path place = SongPath(name);
        if (!FileExists(place) && WriteNewDataFile(place, FileHead("TqSng", " Sprout Song File"), data))
            return name;
    }
}

/// A hidden file with the song's name, so two programs that end at once write two notes.
void NoteForNextStart(const std::string& name)
{
    TheServices().files->ReplaceFile(NamedFile(Shared().UserSongs, "." + name, kNoteExtension), {}, Flush::Yes);
}

} // namespace

std::string SongKeeper::KeepUnsavedSong()
{
    if (!Shared().Song.SongChanged || Shared().Song.TrackCount < 1)
        return {};
    // A copy: work that waits for its next event may rely on the song's current beats.
    SongState song = Shared().Song;
    Compact_Song_Beats(song);
    const LongsWriter data = Write_Song_Data(song);
    const std::size_t number = NumberOf(data);
    if (kept == number)
        return {};
    std::string name = WriteUnderFreeName(song.SongTitle, data);
    kept = number;
    NoteForNextStart(name);
    return name;
}

std::vector<std::string> TakeKeptSongs()
{
    std::vector<std::string> names;
    for (const FolderFile& note : FilesInFolder(Shared().UserSongs, kNoteExtension, DotFiles::Yes)) {
        if (note.Name.front() != '.')
            continue;
        std::string name = note.Name.substr(1);
        if (FileExists(SongPath(name)))
            names.push_back(std::move(name));
        DeleteFile(note.Path);
    }
    return names;
}

} // namespace sprout
