// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/ExportSong.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "sharing/WriteSong.h"
#include "sharing/rules/ExportName.h"
#include "ui/Dialogs.h"
#include "ui/FileDialogs.h"
#include "ui/Hints.h"
#include "ui/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// The texts and the writer for one kind of sound file.
struct ExportKind {
    std::string_view selectHint;
    const char* dialogTitle;
    std::string_view extension; ///< with its dot
    const char* filter;
    std::string_view savingHint;
    std::string_view writingStage;
    std::string_view saved;
    std::string_view failed;
    std::string_view error;
    SongWriter write;
};

constexpr ExportKind kWavKind{"Select wav file name to save the song as audio (.wav) file",
                              "Please select a .wav file to save",
                              kWaveExtension,
                              "Wave files(*.wav)|*.wav|All files|*.*",
                              "Saving the song as audio (.wav) file",
                              "Writing the wav file",
                              "Good! Your song is saved as audio (.wav) file",
                              "Failed to save the song as audio (.wav) file.",
                              "Error saving song to wav file",
                              WriteWavFile};

constexpr ExportKind kWmaKind{"Select wma file name to save the song as audio (.wma) file",
                              "Please select a WMA file name to save",
                              kWmaExtension,
                              "Windows Media Audio files(*.wma)|*.wma|All files|*.*",
                              "Saving the song as audio (.wma) file",
                              "Writing the wma file",
                              "Good! Your song is saved as audio (.wma) file",
                              "Failed to save the song as audio (.wma) file.",
                              "Error saving song to wma",
                              WriteWmaFile};

void HintExport(std::string_view text)
{
    ShowHint(QtText(text));
}

bool MayOverwriteSound(const fs::path& target)
{
    std::error_code error;
    // What is not a plain file is refused later, without a question.
    return !fs::is_regular_file(target, error) ||
           AskYesNo("A file with this name already exists: " + PathText(target.filename()),
                    "Do you wish to overwrite?") == 1;
}

/// The file to save to, with the right extension and permission to overwrite it; nothing if the user cancelled.
std::optional<fs::path> AskForSoundFile(const ExportKind& kind)
{
    FileQuestion question{kind.dialogTitle, GetSetting(kGeneralSection, kSoundFolderSetting, ""),
                          OfferedName(Shared().Song.SongTitle, kind.extension), std::string(kind.extension.substr(1)),
                          kind.filter};
    for (;;) {
        const std::optional<fs::path> answer = ChooseFileToSave(question);
        if (!answer)
            return std::nullopt;
        fs::path target = WithExtension(*answer, kind.extension);
        if (MayOverwriteSound(target))
            return target;
        question.Folder = target.parent_path();
        question.FileName = PathText(target.filename());
    }
}

void KeepSoundFolder(const fs::path& target)
{
    if (const std::string folder = ChosenFolder(target); !folder.empty())
        PutSetting(kGeneralSection, kSoundFolderSetting, folder);
}

void TellNotReplaced(const fs::path& target)
{
    ShowMessage("File could not be deleted.", PathText(target));
}

/// Returns whether the song window must hide.
bool SaveTo(const ExportKind& kind, const fs::path& target)
{
    if (!TheServices().files->MayBeReplaced(target)) {
        TellNotReplaced(target);
        return false;
    }
    HintExport(kind.savingHint);
    const ExportOutcome outcome = MixAndWrite(kind.write, target, kind.writingStage);
    if (!outcome.Line1.empty())
        ShowMessage(outcome.Line1, outcome.Line2);
    if (outcome.End == ExportEnd::NotReplaced) {
        TellNotReplaced(target);
        return false;
    }
    if (outcome.End == ExportEnd::Written)
        ShowMessage(kind.saved, PathText(target.filename()));
    else
        ShowMessage(kind.failed);
    return true;
}

} // namespace

bool SaveSongAsSound(SoundFileKind soundFile)
{
    const ExportKind& kind = soundFile == SoundFileKind::Wav ? kWavKind : kWmaKind;
    try {
        HintExport(kind.selectHint);
        const std::optional<fs::path> target = AskForSoundFile(kind);
        HintExport("");
        if (!target)
            return false;
        KeepSoundFolder(*target);
        return SaveTo(kind, *target);
    } catch (const WorkStopped&) {
        HintExport("");
    } catch (const std::exception& error) {
        HintExport("");
        TheServices().messages->MessageBox("", std::string(kind.error) + "\r\n" + ErrorText(error));
    }
    return false;
}

} // namespace sprout
