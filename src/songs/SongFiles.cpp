// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongFiles.h"

#include <algorithm>
#include <cstddef>
#include <system_error>

#include "base/ByteCursor.h"
#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Services.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// True if a file, a folder or a link already exists, in any letter case.
bool IsTaken(const fs::path& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error)) || FileExists(path);
}

/// The path for a song with another name in the song's folder; in `UserSongs` for one of the class.
fs::path FreePlaceBeside(const SongFile& song, std::string_view newName)
{
    const fs::path folder = IsOfClass(song.Path) ? Shared().UserSongs : song.Path.parent_path() / "";
    fs::path place = NamedFile(folder, newName, kSongExtension);
    if (place.empty())
        throw RunTimeError(Words::Text("This cannot be the name of a song."));
    if (IsTaken(place))
        throw RunTimeError(Words::Text("There is another file with this name."));
    RequireOwnFile(place);
    return place;
}

std::vector<std::byte> BytesOfSong(const SongFile& song)
{
    FileSource source(song.Path);
    std::vector<std::byte> bytes(static_cast<std::size_t>(source.Size()));
    source.Read(0, bytes);
    return bytes;
}

} // namespace

std::vector<SongFile> ListSongs(const fs::path& folder)
{
    return FilesInFolder(folder, kSongExtension);
}

std::vector<SongFile> ListOwnAndClassSongs()
{
    return FilesInFolders(SongFolders(), kSongExtension);
}

const SongFile* FindSong(std::span<const SongFile> songs, std::string_view name)
{
    const auto found = std::find_if(songs.begin(), songs.end(),
                                    [name](const SongFile& song) { return EqualIgnoringCase(song.Name, name); });
    return found == songs.end() ? nullptr : &*found;
}

bool IsSuppliedSong(std::string_view name)
{
    return FileExists(NamedFile(Shared().InstallSongs, name, kSongExtension));
}

std::string FreeCopyName(std::span<const SongFile> songs, std::string_view name)
{
    for (int number = 1;; ++number) {
        std::string candidate = std::string(name) + std::to_string(number);
        if (!FindSong(songs, candidate))
            return candidate;
    }
}

fs::path PlaceOfSong(std::string_view title)
{
    const fs::path path = SongPath(title);
    const fs::path found = FindFile(path);
    return found.empty() ? path : found;
}

fs::path SongFileToOpen(std::string_view title)
{
    const fs::path found = FindNamedFile(SongFolders(), title, kSongExtension);
    return found.empty() ? PlaceOfSong(title) : found;
}

void CopySong(const SongFile& song, std::string_view newName)
{
    const fs::path place = FreePlaceBeside(song, newName);
    const std::vector<std::byte> bytes = BytesOfSong(song);
    const std::span<const std::byte> whole(bytes);
    TheServices().files->ReplaceFile(place, std::span(&whole, 1), Flush::Yes);
}

void RenameSong(const SongFile& song, std::string_view newName)
{
    RequireOwnFile(song.Path);
    fs::rename(song.Path, FreePlaceBeside(song, newName));
}

void DeleteSong(const SongFile& song)
{
    // Checks the exact name: ignoring case could find another song instead of one that is gone.
    std::error_code error;
    if (fs::exists(song.Path, error) && !DeleteFile(song.Path))
        throw RunTimeError(Words::Text("The file %1 could not be deleted.", PathText(song.Path)));
}

} // namespace sprout
