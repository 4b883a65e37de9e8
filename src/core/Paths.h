// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// The plain file that `path` names; if none has just this name, one of its folder whose name differs in case only.
/// Empty if there is none. Never throws.
[[nodiscard]] std::filesystem::path FindFile(const std::filesystem::path& path);

/// False for a blank path; else true when the path, whatever its letter case, finds a plain file.
[[nodiscard]] bool FileExists(const std::filesystem::path& path);

/// Deletes the plain file of just this name, or the link to one: a file whose name differs in letter case stays, and so
/// does what is no file. True when the path is blank, did not exist or no longer exists; false when it still does.
/// Never throws.
bool DeleteFile(const std::filesystem::path& path);

/// A free path for a temporary file in `TempFolder`. Stale files of the pattern met on the way are deleted, those that
/// a running program still holds are passed over. extension: without its dot.
[[nodiscard]] std::filesystem::path NewTempFileName(std::string_view extension);

/// Bytes that the user may still fill on the volume of `TempFolder`; 0 if the question fails.
[[nodiscard]] std::uint64_t FreeDiskBytes();

/// Hands a file or an address to the desktop. Errors are ignored.
void OpenWithShell(std::string_view target);

/// Copies a folder and its contents into `destination`, under its own name, with the files' times, if no plain file
/// lies there yet; what is there stays. It is there whole or not at all: see `FolderCopies`. Where it lasts its
/// progress is shown, and its user may stop it: throws `WorkStopped`. What failed is shown in one message and gives
/// false.
bool CopyFolder(const std::filesystem::path& source, const std::filesystem::path& destination);

/// Makes ready to replace or make a file: a folder of the user's that has gone is made again. Throws `RunTimeError`
/// with a plain sentence where the file may not be changed by its user, or where that folder cannot be made.
void PrepareToReplace(const std::filesystem::path& file);

/// Sets `ProgramFolder`, `SettingsFile` and `TempFolder`.
void FindTempFolder();

/// Sets the folders under `UserRoot`.
void SetUserRoot(const std::filesystem::path& root);

/// The last-write time of a file as "mm/dd/yyyy,hh:mm:ss" of the local time; empty where there is no such file.
[[nodiscard]] std::string FileStamp(const std::filesystem::path& path);

} // namespace sprout
