// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Paths.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <exception>
#include <span>
#include <system_error>
#include <vector>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Guarded.h"
#include "base/Text.h"
#include "core/Busy.h"
#include "core/Shared.h"
#include "service/Desktop.h"
#include "service/Files.h"
#include "service/FolderCopies.h"
#include "service/Machine.h"
#include "service/Messages.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// A file beside the program that `cmake --install` puts there. A link or a folder might also be there in a copy that
/// somebody made to carry around; this file says nothing else, and an administrator can read it.
constexpr std::string_view kInstalledMark = "installed";

/// False for a blank path or one with a zero byte: the system would read up to there and find another file.
bool NamesAnything(const fs::path& path)
{
    return !Trim(path.native()).empty() && path.native().find('\0') == fs::path::string_type::npos;
}

bool IsPlainFile(const fs::path& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool IsFolder(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

/// Some of the files that a copy left out, one per line.
Words LeftOutWords(std::span<const LeftOutFile> files)
{
    constexpr std::size_t most = 5;
    std::vector<Words> lines;
    for (const LeftOutFile& file : files.first(std::min(files.size(), most)))
        lines.push_back(Words::Text("%1: %2", PathText(file.Path.filename()), file.Reason));
    if (files.size() > most)
        lines.push_back(Words::Text("and %1 more", files.size() - most));
    return Words::Joined(std::move(lines), "\r\n");
}

/// Makes a copy for the folder `target` by `copy`, which reports its progress. Returns why something was not copied;
/// blank if everything was.
template <class Copy>
Words CopyShowing(const fs::path& target, Copy copy)
{
    const WorkingSign sign;
    const StoppableWork work(Words::Text("Getting your %1 ready", LowerCase(PathText(target.filename()))));
    Words failure;
    GuardedBy([&failure](const std::exception& error) { failure = ErrorWords(error); },
              [&] {
                  const auto show = [](std::size_t done, std::size_t total) {
                      TheServices().screen->ShowProgress(done, total);
                  };
                  failure = LeftOutWords(copy(show));
              });
    return failure;
}

/// Only recreates folders of the user's own tree: a mistyped folder is not a missing one.
void MakeUserFolderAgain(const fs::path& folder)
{
    const SharedState& shared = Shared();
    std::error_code error;
    for (const fs::path& own : {shared.UserBeats, shared.UserTunes, shared.UserStars, shared.UserSongs})
        if (!own.empty() && AsFolder(folder) == own)
            fs::create_directories(folder, error);
    if (error)
        throw RunTimeError(
            Words::Text("The folder %1 could not be made again: %2.", PathText(folder), error.message()));
}

/// Only by their texts: a folder that is linked into another one is not in it.
bool LiesIn(const fs::path& file, const fs::path& folder)
{
    if (folder.empty())
        return false;
    const fs::path path = file.lexically_normal();
    const fs::path outer = AsFolder(folder).lexically_normal();
    return path.native().starts_with(outer.native());
}

/// The program's settings file in a folder where programs keep settings; empty without a folder.
fs::path SettingsFileIn(const fs::path& configFolder)
{
    return configFolder.empty() ? fs::path() : configFolder / "sprout-painter" / "sprout-painter.ini";
}

/// The user's own settings are beside the program if they can be: a copy that is carried around takes them along.
void FindSettingsFiles(const fs::path& program)
{
    SharedState& shared = Shared();
    shared.ProgramSettingsFile = shared.ProgramFolder / (program.stem().native() + ".ini");
    shared.MachineSettingsFile = SettingsFileIn(TheServices().machine->ConfigFolder());
    const bool isOwnCopy = !shared.IsInstalled && TheServices().files->MayChangeFolder(shared.ProgramFolder);
    shared.SettingsFile =
        isOwnCopy ? shared.ProgramSettingsFile : SettingsFileIn(TheServices().desktop->ConfigFolder());
}

/// `TempPath`, or what replaces it if it is no folder.
fs::path UsableTempFolder()
{
    fs::path temp = TheServices().machine->TempPath();
    if (!temp.has_filename())
        temp = temp.parent_path();
    if (!Trim(temp.native()).empty() && IsFolder(temp))
        return temp;
    return Shared().IsInstalled ? TheServices().machine->CommonTempPath() : Shared().ProgramFolder;
}

} // namespace

fs::path FindFile(const fs::path& path)
{
    if (!NamesAnything(path))
        return {};
    if (IsPlainFile(path))
        return path;
    const std::string wanted = LowerCase(path.filename().native());
    for (const fs::directory_entry& entry : EntriesOfFolder(path.has_parent_path() ? path.parent_path() : "."))
        if (LowerCase(entry.path().filename().native()) == wanted && IsPlainFile(entry.path()))
            return entry.path();
    return {};
}

bool FileExists(const fs::path& path)
{
    return !FindFile(path).empty();
}

bool DeleteFile(const fs::path& path)
{
    if (!NamesAnything(path))
        return true;
    std::error_code error;
    if (IsPlainFile(path) && !IsOfInstallation(path) && !IsOfClass(path))
        fs::remove(path, error);
    return !fs::exists(fs::symlink_status(path, error));
}

fs::path NewTempFileName(std::string_view extension)
{
    for (int n = 1;; ++n) {
        fs::path candidate = Shared().TempFolder / ("TqkTmp" + std::to_string(n) + "." + std::string(extension));
        std::error_code error;
        if (!fs::exists(fs::symlink_status(candidate, error))) // also false if the check itself fails
            return candidate;
        TheServices().files->DeleteStaleFile(candidate);
    }
}

std::uint64_t FreeDiskBytes()
{
    return TheServices().machine->FreeBytes(Shared().TempFolder);
}

void OpenWithShell(std::string_view target)
{
    TheServices().desktop->OpenWithShell(target);
}

Words CopyFolder(const fs::path& source, const fs::path& destination)
{
    const fs::path folder = source.has_filename() ? source : source.parent_path();
    const fs::path target = destination / folder.filename();
    return CopyShowing(target, [&](const FolderCopies::Progress& show) {
        return TheServices().folderCopies->FillFolder(folder, target, show);
    });
}

Words CopyFiles(const fs::path& source, const fs::path& target, std::span<const fs::path> names)
{
    return CopyShowing(target, [&](const FolderCopies::Progress& show) {
        return TheServices().folderCopies->AddFiles(source, target, names, show);
    });
}

void TellFailedCopy(const fs::path& source, const Words& failure)
{
    TheServices().messages->MessageBox(
        Words::Text("Error message"),
        Words::Text("Following error occurd while copying folder %1\r\n%2", PathText(source), failure),
        MessageIcon::Exclamation);
}

bool IsOfInstallation(const fs::path& file)
{
    const SharedState& shared = Shared();
    return LiesIn(file, shared.InstallRoot) || (shared.IsInstalled && LiesIn(file, shared.ProgramFolder));
}

bool IsOfClass(const fs::path& file)
{
    return LiesIn(file, Shared().ClassRoot) && !LiesIn(file, Shared().UserRoot);
}

void RequireOwnFile(const fs::path& file)
{
    if (IsOfInstallation(file) || IsOfClass(file))
        throw RunTimeError(Words::Text("The file %1 may not be changed.", PathText(file)));
}

void PrepareToReplace(const fs::path& file)
{
    RequireOwnFile(file);
    MakeUserFolderAgain(file.parent_path());
    if (!TheServices().files->MayBeReplaced(file))
        throw RunTimeError(Words::Text("The file %1 may not be changed.", PathText(file)));
}

void FindTempFolder()
{
    SharedState& shared = Shared();
    const fs::path program = TheServices().machine->ExecutablePath();
    shared.ProgramFolder = program.parent_path();
    shared.IsInstalled = IsPlainFile(shared.ProgramFolder / kInstalledMark);
    FindSettingsFiles(program);
    shared.TempFolder = UsableTempFolder();
}

void SetUserRoot(const fs::path& root)
{
    SharedState& shared = Shared();
    shared.UserRoot = root;
    shared.UserBeats = AsFolder(root / "Beats");
    shared.UserTunes = AsFolder(root / "Tunes");
    shared.UserStars = AsFolder(root / "Stars");
    shared.UserSongs = AsFolder(root / "Songs");
}

fs::path SongPath(std::string_view title)
{
    return NamedFile(Shared().UserSongs, title, kSongExtension);
}

std::string FileStamp(const fs::path& path)
{
    std::error_code error;
    const auto written = fs::last_write_time(path, error);
    if (error)
        return {};
    const auto seconds = std::chrono::floor<std::chrono::seconds>(std::chrono::file_clock::to_sys(written));
    const std::time_t time = std::chrono::system_clock::to_time_t(seconds);
    const std::tm* local = std::localtime(&time);
    char text[32] = {};
    if (!local || std::strftime(text, sizeof text, "%m/%d/%Y,%H:%M:%S", local) == 0)
        return {};
    return text;
}

} // namespace sprout
