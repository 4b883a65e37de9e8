// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "beat_window/BeatWindowTest.h"
#include "ui/forms/FileDialogs.h"

namespace sprout {

/// Beats that can be changed: the index protects only "original".
class LibraryCommandsTest : public BeatWindowTest {
protected:
    LibraryCommandsTest()
    {
        WriteBytes(Shared().UserBeats / "TqBeats.ini",
                   "[General]\r\nProtectedNos=1\r\nProtected=1\r\n[Protected]\r\nFile1=original\r\n");
        MakeBeat("original", 10);
        SaveWaveFile(QuietWave(100), Chosen("Bell.wav"));
        WriteBytes(Chosen("Picture.bmp"), "12345");
        Shared().InstallStars = "/install/Stars/";
    }

    std::filesystem::path Chosen(const std::string& name) const { return services.folder.Path() / name; }

    /// All other sound formats are converted to this wave.
    void ConvertTo(const WaveData& wave)
    {
        SaveWaveFile(wave, Chosen("converted.wav"));
        services.soundReader.wave = ReadBytes(Chosen("converted.wav"));
        services.soundReader.outcome = Conversion::Done;
    }

    /// Clicks Add and answers its two dialogs.
    void Add(const std::optional<std::filesystem::path>& wave, const std::optional<std::filesystem::path>& picture)
    {
        questions.clear();
        FormAnswers answers(statusLbl, {});
        const FileChooserStandIn chooser([&](const FileQuestion& question) {
            questions.push_back(question);
            return questions.size() == 1 ? wave : picture;
        });
        statusLbl.clear();
        Click(*window, "AddBtn");
        told = answers.seen;
    }

    /// Clicks Rename and types a name.
    void Rename(const QString& name)
    {
        FormAnswers answers(statusLbl, {});
        answers.typed = name;
        Click(*window, "RenameBtn");
        told = answers.seen;
    }

    /// Clicks Delete and answers the question.
    void Delete(const char* button)
    {
        FormAnswers answers(statusLbl, {button});
        Click(*window, "DeleteBtn");
        told = answers.seen;
        caption = answers.caption;
    }

    std::vector<FileQuestion> questions;
    std::vector<std::string> told;
    QString caption;
};

} // namespace sprout
