// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/StartUp.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "app/start/UserFolders.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Numbers.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/Tell.h"
#include "service/Desktop.h"
#include "service/Machine.h"
#include "service/PrivateFolders.h"
#include "service/Services.h"
#include "service/SoundCapture.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

using Step = void (*)();

/// Runs a step. A failure in it does not end the start: the program is useful without it.
void GoOnAfter(Step step)
{
    GuardedQuietly("A step of the start", step);
}

void MakeFolderIfMissing(const fs::path& folder)
{
    std::error_code error;
    if (!fs::is_directory(folder, error))
        fs::create_directory(folder, error);
}

/// All facts are written in one step, because each write waits for the disk. The machine has no DirectX, so the query
/// for its version always fails.
void ProbeMachine()
{
    const MemoryStatus memory = TheServices().machine->GlobalMemoryStatus();
    Shared().SoundMemoryLimit = SoundMemoryLimit(memory.TotalBytes);
    PutSettings(kGeneralSection, {{"InstalledPath", PathText(Shared().ProgramFolder)},
                                  {"FreeHardDisk", std::to_string(FreeDiskBytes())},
                                  {"PhyMemorySz", std::to_string(memory.AvailableBytes)},
                                  {"PhyMemoryLoad", std::to_string(memory.LoadPercent)},
                                  {"TotalPhyMemory", std::to_string(memory.TotalBytes)},
                                  {"DirectXInstalled", "ErrorInDetecting"}});
}

void SetInstallFolders()
{
    SharedState& shared = Shared();
    shared.InstallRoot = AsFolder(shared.ProgramFolder / "Sprout");
    shared.InstallBeats = AsFolder(shared.InstallRoot / "Beats");
    shared.InstallTunes = AsFolder(shared.InstallRoot / "Tunes");
    shared.InstallStars = AsFolder(shared.InstallRoot / "Stars");
    shared.InstallSongs = AsFolder(shared.InstallRoot / "Songs");
}

void SetSoundFormat()
{
    SharedState& shared = Shared();
    shared.SampleRate = 44100;
    shared.BitsPerSample = 16;
    shared.Channels = 2;
}

/// One file represents everything that is installed with the program.
void TestSupportFiles()
{
    const fs::path file = Shared().ProgramFolder / "Sprout" / "Beats" / "G_Acoustic Guitar High.wav";
    if (!FileExists(file))
        Tell({}, Words::Text("Some support files are missing\r\n%1\r\nPlease reinstall", PathText(file)));
}

/// A copy that is carried around mends itself; an installed program leaves that to the installation.
void MakeInstallFolders()
{
    const SharedState& shared = Shared();
    if (shared.IsInstalled)
        return;
    for (const fs::path& folder :
         {shared.InstallRoot, shared.InstallBeats, shared.InstallTunes, shared.InstallStars, shared.InstallSongs})
        MakeFolderIfMissing(folder);
}

void KeepTestTone()
{
    Shared().TestTone = MakeTestTone();
}

void KeepWaveColours()
{
    Shared().WaveColours = ReadWaveColours();
}

void SetDemoImages()
{
    Shared().DemoImages = AsFolder(Shared().InstallRoot / "DemoImages");
}

void FindDocumentsFolder()
{
    fs::path documents = TheServices().desktop->DocumentsFolder();
    if (documents.empty())
        Tell({}, Words::Text("Reinstall the Application"));
    else if (!documents.has_filename())
        documents = documents.parent_path();
    Shared().DocumentsFolder = documents;
}

/// Last, because the start does not wait for it.
void DeleteLeftMails()
{
    TheServices().privateFolders->DeleteLeftFolders(Shared().TempFolder);
}

/// A child's recordings must not stay on a machine after the program has ended abnormally.
void DeleteLeftRecordings()
{
    TheServices().capture->DeleteLeftFiles(Shared().TempFolder);
}

} // namespace

std::int32_t SoundMemoryLimit(std::uint64_t totalBytes)
{
    constexpr double least = 10'000'000;
    constexpr double most = 67'108'864;
    const auto total = static_cast<double>(totalBytes);
    const double share = total < 33'000'000 ? 0.66 : total < 66'500'000 ? 0.5 : total < 157'000'000 ? 0.33 : 0.25;
    return RoundHalfEven(std::clamp(total * share, least, most));
}

void RunStartUp()
{
    // The new song is created before the user's folders are known, so its name is only free in the current folder.
    constexpr Step steps[] = {FindTempFolder,   ProbeMachine,       SetInstallFolders,   SetSoundFormat,
                              TestSupportFiles, MakeInstallFolders, KeepTestTone,        NewSong,
                              KeepWaveColours,  SetDemoImages,      FindDocumentsFolder, SetUserFolders,
                              FindClassFolder,  FillUserFolders,    DeleteLeftMails,     DeleteLeftRecordings};
    for (const Step step : steps)
        GoOnAfter(step);
}

void ReadOptionFlags()
{
    // One option is stored as its opposite.
    GoOnAfter([] { Shared().SongBeatsInside = !IsSetToOne("SongBeatsOutside"); });
    GoOnAfter([] { Shared().AllowEditOriginal = IsSetToOne("AllowEditOriginal"); });
}

} // namespace sprout
