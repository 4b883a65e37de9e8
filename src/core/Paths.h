// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "base/Words.h"

namespace sprout {

/// The plain file at `path`; if there is none, a file in its folder whose name differs only in case. Empty if there is
/// none. Never throws.
[[nodiscard]] std::filesystem::path FindFile(const std::filesystem::path& path);

/// False for a blank path; otherwise true if the path, whatever its letter case, finds a plain file.
[[nodiscard]] bool FileExists(const std::filesystem::path& path);

/// Deletes the plain file with exactly this name, or the link to one; leaves a file whose name differs in letter case,
/// anything that is not a file, and what `IsOfInstallation` or `IsOfClass`. True if the path is blank, did not exist or
/// no longer exists; false if it still does. Never throws.
bool DeleteFile(const std::filesystem::path& path);

/// A free path for a temporary file in `TempFolder`. Stale files of the pattern found on the way are deleted; those
/// still held by a running program are skipped. extension: without its dot.
[[nodiscard]] std::filesystem::path NewTempFileName(std::string_view extension);

/// Bytes available to the user on the volume of `TempFolder`; 0 if the query fails.
[[nodiscard]] std::uint64_t FreeDiskBytes();

/// Hands a file or an address to the desktop. Errors are ignored.
void OpenWithShell(std::string_view target);

/// Copies a folder and its contents into `destination`, under its own name, with the files' times, unless a plain file
/// is already there; existing files stay. The copy appears completely or not at all: see `FolderCopies`. Longer copies
/// show their progress, and the user may stop them: throws `WorkStopped`. Returns why something was not copied; blank
/// if everything was.
[[nodiscard]] Words CopyFolder(const std::filesystem::path& source, const std::filesystem::path& destination);

/// Copies files of one folder into another in the same way. names: without folders.
[[nodiscard]] Words CopyFiles(const std::filesystem::path& source, const std::filesystem::path& target,
                              std::span<const std::filesystem::path> names);

/// Shows why a folder, or a part of it, was not copied.
void TellFailedCopy(const std::filesystem::path& source, const Words& failure);

/// True if a path lies in the folder of the files installed with the program, or beside an installed program. The
/// program never changes anything there, even if the user might.
[[nodiscard]] bool IsOfInstallation(const std::filesystem::path& file);

/// True if a path lies in `ClassRoot`, which the program never changes either. What is in `UserRoot` is the user's own
/// all the same: a teacher may share a folder of their own, and a school a folder with the homes in it.
[[nodiscard]] bool IsOfClass(const std::filesystem::path& file);

/// Throws `RunTimeError` with a plain sentence for a file that `IsOfInstallation` or `IsOfClass`.
void RequireOwnFile(const std::filesystem::path& file);

/// Prepares to replace or create a file: recreates a missing folder of the user's. Throws `RunTimeError` with a plain
/// sentence if the user may not change the file, if it `IsOfInstallation` or `IsOfClass`, or if the folder cannot be
/// created.
void PrepareToReplace(const std::filesystem::path& file);

/// Sets `ProgramFolder`, `IsInstalled`, the settings files and `TempFolder`.
///
/// The program is installed if a file named "installed" is beside it. Its settings, and those of a program in a folder
/// that its user may not change, are in the desktop's folder for settings; otherwise they are beside the program.
void FindTempFolder();

/// Sets the folders under `UserRoot`.
void SetUserRoot(const std::filesystem::path& root);

/// The path of a song in `UserSongs`, see `NamedFile`.
[[nodiscard]] std::filesystem::path SongPath(std::string_view title);

/// The last-write time of a file as "mm/dd/yyyy,hh:mm:ss" in local time; empty if the file does not exist.
[[nodiscard]] std::string FileStamp(const std::filesystem::path& path);

} // namespace sprout
