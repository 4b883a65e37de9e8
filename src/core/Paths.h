// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// The path of a folder with a separator at its end, as the folder settings are kept.
[[nodiscard]] std::filesystem::path AsFolder(const std::filesystem::path& folder);

/// `folder` + `name` + `extension`; empty, which names no file, where `name` is blank or holds a separator or a zero
/// byte: names come from files of strangers and must not lead out of the folder.
[[nodiscard]] std::filesystem::path NamedFile(const std::filesystem::path& folder, std::string_view name,
                                              std::string_view extension);

/// The plain file that `path` names; if none has just this name, one of its folder whose name differs in case only.
/// Empty if there is none. Never throws.
[[nodiscard]] std::filesystem::path FindFile(const std::filesystem::path& path);

/// What a link at `path` leads to, so that the link stays a link; any other path as it is.
[[nodiscard]] std::filesystem::path ThroughLinks(const std::filesystem::path& path);

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

/// `name` with "_" for each character that file names cannot hold.
[[nodiscard]] std::string SafeFileName(std::string_view name);

/// The folder of a chosen file with a separator at its end, as the settings keep it; empty where it has none.
[[nodiscard]] std::string ChosenFolder(const std::filesystem::path& file);

/// Hands a file or an address to the desktop. Errors are ignored.
void OpenWithShell(std::string_view target);

/// Copies a folder and its contents into `destination`, under its own name, with the files' times, if no plain file
/// lies there yet; what is there stays. It is there whole or not at all: see `FolderCopies`. Where it lasts its
/// progress is shown, and its user may stop it: throws `WorkStopped`. What failed is shown in one message and gives
/// false.
bool CopyFolder(const std::filesystem::path& source, const std::filesystem::path& destination);

/// True when `folder` holds at least one plain file that is not hidden; sub-folders do not count.
[[nodiscard]] bool HoldsFile(const std::filesystem::path& folder);

/// Makes ready to replace or make a file: a folder of the user's that has gone is made again. Throws `RunTimeError`
/// with a plain sentence where the file may not be changed by its user, or where that folder cannot be made.
void PrepareToReplace(const std::filesystem::path& file);

/// Sets `ProgramFolder`, `SettingsFile` and `TempFolder`.
void FindTempFolder();

/// Sets the folders under `UserRoot`.
void SetUserRoot(const std::filesystem::path& root);

/// The last-write time of a file as "mm/dd/yyyy,hh:mm:ss" of the local time; empty where there is no such file.
[[nodiscard]] std::string FileStamp(const std::filesystem::path& path);

/// The base name of a path in UTF-8: behind the last separator, before the last dot.
[[nodiscard]] std::string BaseName(const std::filesystem::path& path);

/// The UTF-8 text of a path.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);

} // namespace sprout
