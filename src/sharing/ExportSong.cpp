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
#include "base/Guarded.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "sharing/WriteSong.h"
#include "sharing/rules/ExportName.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/FileDialogs.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// The texts and the writer for one kind of sound file.
struct ExportKind {
    LaterWords selectHint;
    LaterWords dialogTitle;
    std::string_view extension; ///< with its dot
    LaterWords filter;
    LaterWords savingHint;
    LaterWords writingStage;
    LaterWords saved;
    LaterWords failed;
    LaterWords error; ///< "%1" takes its reason
    SongWriter write;
};

constexpr ExportKind kWavKind{Words::Later("Select wav file name to save the song as audio (.wav) file"),
                              Words::Later("Please select a .wav file to save"),
                              kWaveExtension,
                              Words::Later("Wave files(*.wav)|*.wav|All files|*.*"),
                              Words::Later("Saving the song as audio (.wav) file"),
                              Words::Later("Writing the wav file"),
                              Words::Later("Good! Your song is saved as audio (.wav) file"),
                              Words::Later("Failed to save the song as audio (.wav) file."),
                              Words::Later("Error saving song to wav file\r\n%1"),
                              WriteWavFile};

constexpr ExportKind kWmaKind{Words::Later("Select wma file name to save the song as audio (.wma) file"),
                              Words::Later("Please select a WMA file name to save"),
                              kWmaExtension,
                              Words::Later("Windows Media Audio files(*.wma)|*.wma|All files|*.*"),
                              Words::Later("Saving the song as audio (.wma) file"),
                              Words::Later("Writing the wma file"),
                              Words::Later("Good! Your song is saved as audio (.wma) file"),
                              Words::Later("Failed to save the song as audio (.wma) file."),
                              Words::Later("Error saving song to wma\r\n%1"),
                              WriteWmaFile};

void HintExport(const Words& text)
{
    ShowHint(text);
}

bool MayOverwriteSound(const fs::path& target)
{
    std::error_code error;
    // What is not a plain file is refused later, without a question.
    return !fs::is_regular_file(target, error) ||
           AskYesNo(Words::Text("A file with this name already exists: %1", PathText(target.filename())),
                    Words::Text("Do you wish to overwrite?")) == 1;
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
    ShowMessage(Words::Text("File could not be deleted."), Words::AsIs(PathText(target)));
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
    if (!outcome.Line1.IsBlank())
        ShowMessage(outcome.Line1, outcome.Line2);
    if (outcome.End == ExportEnd::NotReplaced) {
        TellNotReplaced(target);
        return false;
    }
    if (outcome.End == ExportEnd::Written)
        ShowMessage(kind.saved, Words::AsIs(PathText(target.filename())));
    else
        ShowMessage(kind.failed);
    return true;
}

bool AskAndSave(const ExportKind& kind)
{
    HintExport(kind.selectHint);
    const std::optional<fs::path> target = AskForSoundFile(kind);
    HintExport({});
    if (!target)
        return false;
    KeepSoundFolder(*target);
    return SaveTo(kind, *target);
}

} // namespace

bool SaveSongAsSound(SoundFileKind soundFile)
{
    const ExportKind& kind = soundFile == SoundFileKind::Wav ? kWavKind : kWmaKind;
    bool mustHide = false;
    const auto tell = [&kind](const std::exception& error) {
        HintExport({});
        TheServices().messages->MessageBox({}, kind.error.With(ErrorWords(error)));
    };
    try {
        GuardedBy(tell, [&] { mustHide = AskAndSave(kind); });
    } catch (const WorkStopped&) {
        HintExport({});
    }
    return mustHide;
}

} // namespace sprout
