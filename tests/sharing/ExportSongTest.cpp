// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/ExportSong.h"

#include <gmock/gmock.h>

#include <QLabel>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Settings.h"
#include "core/SongModel.h"
#include "support/FakeServices.h"
#include "support/Flags.h"
#include "support/UnchangeableFolder.h"
#include "ui/FormAnswers.h"
#include "ui/forms/FileDialogs.h"
#include "ui/widgets/Hints.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

constexpr const char* kWavSaved = "Good! Your song is saved as audio (.wav) file";
constexpr const char* kWavFailed = "Failed to save the song as audio (.wav) file.";
constexpr const char* kWmaFailed = "Failed to save the song as audio (.wma) file.";

/// The mixed song "Zumi", a folder to save it to, and answers for dialogs and messages.
class SaveSongAsSoundTest : public testing::Test {
protected:
    SaveSongAsSoundTest()
    {
        fs::create_directories(music);
        SetStatusLbl(&statusLbl);
        NewSong();
        Shared().Song.SongTitle = "Zumi";
        GiveMix(1000);
    }
    ~SaveSongAsSoundTest() override { SetStatusLbl(nullptr); }

    static void GiveMix(std::int32_t frames)
    {
        WaveData mix = EmptyWave();
        mix.Length = frames;
        mix.WavL = Channel(frames);
        mix.WavR = Channel(frames);
        for (std::int32_t frame = 1; frame <= frames; ++frame)
            mix.WavL.Change()[static_cast<std::size_t>(frame)] = static_cast<std::int16_t>(frame);
        Shared().Song.SongMix = mix;
        SetSongMixValid(Shared().Song, true);
    }

    /// A song with one sounding cell, not mixed yet.
    static void GiveOnePaintedStep()
    {
        NewSong();
        SongState& song = Shared().Song;
        song.TrackCount = 1;
        song.Tracks.assign(2, Track());
        ResetTrack(1);
        At(song.Tracks, 1).TrackTune.Steps[1].OnPos = 1;
        At(At(song.Tracks, 1).Painted, 1) = 1;
        Shared().TestTone = MakeTestTone();
        SetSongMixValid(song, false);
    }

    /// Saves; the dialogs are answered with these files in turn, and cancelled when there are no more. Messages and
    /// questions are answered with `buttons`, otherwise with OK. Returns whether the song window should hide.
    bool Save(SoundFileKind kind, std::vector<fs::path> chosen, std::vector<std::string> buttons = {})
    {
        questions.clear();
        const FileChooserStandIn dialog([&](const FileQuestion& question) -> std::optional<fs::path> {
            questions.push_back(question);
            hintOfDialog = statusLbl.text().toStdString();
            return questions.size() <= chosen.size() ? std::optional(chosen[questions.size() - 1]) : std::nullopt;
        });
        FormAnswers answers(statusLbl, std::move(buttons));
        const bool hides = SaveSongAsSound(kind);
        told = answers.seen;
        return hides;
    }
    bool SaveWav(const fs::path& file, std::vector<std::string> buttons = {})
    {
        return Save(SoundFileKind::Wav, {file}, std::move(buttons));
    }

    [[nodiscard]] std::vector<std::string> FilesOfMusic() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(music))
            names.push_back(entry.path().filename().native());
        std::sort(names.begin(), names.end());
        return names;
    }

    FakeServices services;
    fs::path music = services.folder.Path() / "music";
    QLabel statusLbl;
    std::vector<FileQuestion> questions;
    std::vector<std::string> told; ///< lines and hint of each message or question
    std::string hintOfDialog;
};

TEST_F(SaveSongAsSoundTest, AsksForAWavFile)
{
    PutSetting("General", "WavFileSelPath", "/waves/");
    EXPECT_FALSE(Save(SoundFileKind::Wav, {}));
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0].Title.English(), "Please select a .wav file to save");
    EXPECT_EQ(questions[0].Folder, "/waves/");
    EXPECT_EQ(questions[0].FileName, "Zumi.wav");
    EXPECT_EQ(questions[0].DefaultExtension, "wav");
    EXPECT_EQ(questions[0].Filter.English(), "Wave files(*.wav)|*.wav|All files|*.*");
    EXPECT_EQ(hintOfDialog, "Select wav file name to save the song as audio (.wav) file");
}

TEST_F(SaveSongAsSoundTest, AsksForAWmaFile)
{
    EXPECT_FALSE(Save(SoundFileKind::Wma, {}));
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0].Title.English(), "Please select a WMA file name to save");
    EXPECT_EQ(questions[0].Folder, "");
    EXPECT_EQ(questions[0].FileName, "Zumi.wma");
    EXPECT_EQ(questions[0].DefaultExtension, "wma");
    EXPECT_EQ(questions[0].Filter.English(), "Windows Media Audio files(*.wma)|*.wma|All files|*.*");
    EXPECT_EQ(hintOfDialog, "Select wma file name to save the song as audio (.wma) file");
}

TEST_F(SaveSongAsSoundTest, DoesNothingWhenTheDialogIsCancelled)
{
    EXPECT_FALSE(Save(SoundFileKind::Wav, {}));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
}

TEST_F(SaveSongAsSoundTest, WritesTheMixAsAWavFile)
{
    EXPECT_TRUE(SaveWav(music / "Mine.wav"));
    EXPECT_THAT(told, ElementsAre(std::string(kWavSaved) + "|Mine.wav|"));
    EXPECT_EQ(LoadWaveFile(music / "Mine.wav"), Shared().Song.SongMix);
    EXPECT_THAT(FilesOfMusic(), ElementsAre("Mine.wav"));
    EXPECT_THAT(services.screen.stages, ElementsAre("Mixing your song", "Writing the wav file", ""));
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(SaveSongAsSoundTest, WritesTheMixAsAWmaFile)
{
    EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine"}));
    EXPECT_THAT(told, ElementsAre("Good! Your song is saved as audio (.wma) file|Mine.wma|"));
    EXPECT_THAT(services.wma.writes, ElementsAre(4000U));
    EXPECT_THAT(FilesOfMusic(), ElementsAre("Mine.wma"));
    EXPECT_THAT(services.screen.stages, ElementsAre("Mixing your song", "Writing the wma file", ""));
}

TEST_F(SaveSongAsSoundTest, TheSongStaysUnsaved)
{
    SetSongChanged(Shared().Song, true);
    EXPECT_TRUE(SaveWav(music / "Mine.wav"));
    EXPECT_TRUE(Shared().Song.SongChanged);
    EXPECT_EQ(Shared().Song.SongTitle, "Zumi");
}

TEST_F(SaveSongAsSoundTest, AddsTheExtensionOnlyWhereItIsMissing)
{
    EXPECT_TRUE(SaveWav(music / "LOUD.WAV"));
    EXPECT_TRUE(SaveWav(music / "Song.wma"));
    EXPECT_THAT(told, ElementsAre(std::string(kWavSaved) + "|Song.wma.wav|"));
    EXPECT_THAT(FilesOfMusic(), ElementsAre("LOUD.WAV", "Song.wma.wav"));
}

TEST_F(SaveSongAsSoundTest, BothKindsRememberTheFolder)
{
    EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine.wma"}));
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), music.native() + "/");
    EXPECT_FALSE(Save(SoundFileKind::Wav, {}));
    EXPECT_EQ(questions[0].Folder, music / "");
}

TEST_F(SaveSongAsSoundTest, ABareNameLeavesTheFolderAsItWas)
{
    PutSetting("General", "WavFileSelPath", "/waves/");
    const fs::path before = fs::current_path();
    fs::current_path(music);
    EXPECT_TRUE(SaveWav("bare.wav"));
    fs::current_path(before);
    EXPECT_THAT(FilesOfMusic(), ElementsAre("bare.wav"));
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), "/waves/");
}

TEST_F(SaveSongAsSoundTest, AsksBeforeItOverwritesTheFinalName)
{
    WriteBytes(music / "Mine.wav", "old");
    EXPECT_TRUE(SaveWav(music / "Mine", {"YesBtn"}));
    EXPECT_THAT(told, ElementsAre("A file with this name already exists: Mine.wav|Do you wish to overwrite?|"
                                  "Select wav file name to save the song as audio (.wav) file",
                                  std::string(kWavSaved) + "|Mine.wav|"));
    EXPECT_EQ(LoadWaveFile(music / "Mine.wav").Length, 1000);
}

TEST_F(SaveSongAsSoundTest, NoOpensTheDialogAgainWithThatName)
{
    WriteBytes(music / "Mine.wav", "old");
    EXPECT_TRUE(Save(SoundFileKind::Wav, {music / "Mine", music / "Other"}, {"NoBtn"}));
    ASSERT_EQ(questions.size(), 2U);
    EXPECT_EQ(questions[1].Folder, music);
    EXPECT_EQ(questions[1].FileName, "Mine.wav");
    EXPECT_EQ(ReadBytes(music / "Mine.wav"), "old");
    EXPECT_THAT(FilesOfMusic(), ElementsAre("Mine.wav", "Other.wav"));
}

TEST_F(SaveSongAsSoundTest, AnotherLetterCaseIsAnotherFile)
{
    WriteBytes(music / "mine.wav", "old");
    EXPECT_TRUE(SaveWav(music / "Mine.wav"));
    EXPECT_THAT(told, ElementsAre(std::string(kWavSaved) + "|Mine.wav|"));
    EXPECT_EQ(ReadBytes(music / "mine.wav"), "old");
}

TEST_F(SaveSongAsSoundTest, RefusesAFolderBeforeTheMix)
{
    fs::create_directory(music / "Mine.wav");
    SetSongMixValid(Shared().Song, false);
    EXPECT_FALSE(SaveWav(music / "Mine.wav"));
    EXPECT_THAT(told, ElementsAre("File could not be deleted.|" + (music / "Mine.wav").native() + "|"));
    EXPECT_FALSE(Shared().Song.SongMixValid);
    EXPECT_THAT(services.screen.stages, IsEmpty());
}

TEST_F(SaveSongAsSoundTest, RefusesAFileInAFolderThatMayNotBeChanged)
{
    WriteBytes(music / "Mine.wav", "old");
    {
        const UnchangeableFolder locked(music);
        EXPECT_FALSE(SaveWav(music / "Mine.wav", {"YesBtn"}));
    }
    EXPECT_THAT(told, ElementsAre(testing::_, "File could not be deleted.|" + (music / "Mine.wav").native() + "|"));
    EXPECT_EQ(ReadBytes(music / "Mine.wav"), "old");
}

TEST_F(SaveSongAsSoundTest, FailsWhereNothingCanBeWritten)
{
    {
        const UnchangeableFolder locked(music);
        EXPECT_TRUE(SaveWav(music / "Mine.wav"));
    }
    EXPECT_THAT(told, ElementsAre(std::string(kWavFailed) + "|"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Wav file Write error");
    EXPECT_THAT(FilesOfMusic(), IsEmpty());
}

TEST_F(SaveSongAsSoundTest, ASilentSongGivesNoWavFile)
{
    WriteBytes(music / "Mine.wav", "old");
    GiveMix(0);
    EXPECT_TRUE(SaveWav(music / "Mine.wav", {"YesBtn"}));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "Writing wave error");
    EXPECT_EQ(services.messages.shown[0].text, "Silent or Zero size wave found");
    EXPECT_THAT(told, ElementsAre(testing::_, std::string(kWavFailed) + "|"));
    EXPECT_EQ(ReadBytes(music / "Mine.wav"), "old");
}

TEST_F(SaveSongAsSoundTest, ASilentSongGivesNoWmaFile)
{
    GiveMix(0);
    EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine.wma"}));
    EXPECT_THAT(told, ElementsAre(std::string(kWmaFailed) + "|"));
    EXPECT_THAT(FilesOfMusic(), IsEmpty());
}

TEST_F(SaveSongAsSoundTest, WithoutAFittingFormatOnlyTheFailureIsTold)
{
    services.wma.list = "Windows Media Audio 2\r\n128 kbit/s\n128000\n44100\n2\n16";
    EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine.wma"}));
    EXPECT_THAT(told, ElementsAre(std::string(kWmaFailed) + "|"));
}

TEST_F(SaveSongAsSoundTest, TellsWhatTheEncoderCouldNotDo)
{
    services.wma.openFails = true;
    EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine.wma"}));
    EXPECT_THAT(told, ElementsAre("Failed to open WMA Writer|", std::string(kWmaFailed) + "|"));
}

TEST_F(SaveSongAsSoundTest, StoppedWorkLeavesTheOldFileAndSaysNothing)
{
    WriteBytes(music / "Mine.wav", "old");
    services.screen.progressesBeforeStop = 0;
    EXPECT_FALSE(SaveWav(music / "Mine.wav", {"YesBtn"}));
    EXPECT_EQ(told.size(), 1U) << "the question alone";
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_EQ(ReadBytes(music / "Mine.wav"), "old");
    EXPECT_THAT(FilesOfMusic(), ElementsAre("Mine.wav"));
    EXPECT_EQ(services.screen.stages.back(), "");
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_TRUE(Shared().Song.SongMixValid) << "the mix was done";
}

TEST_F(SaveSongAsSoundTest, ASongThatCannotSoundGivesNoFile)
{
    for (const bool hasTempo : {false, true}) {
        SCOPED_TRACE(hasTempo ? "painted, and all steps are off" : "a tempo of 0");
        GiveOnePaintedStep();
        if (hasTempo)
            At(Shared().Song.Tracks, 1).TrackTune.Steps[1].OnPos = 0;
        else
            Shared().Song.Tempo = 0;
        EXPECT_TRUE(SaveWav(music / "Mine.wav"));
        EXPECT_THAT(told, ElementsAre(std::string(kWavFailed) + "|"));
        EXPECT_EQ(services.messages.shown.back().text, "Silent or Zero size wave found");
        EXPECT_TRUE(Save(SoundFileKind::Wma, {music / "Mine.wma"}));
        EXPECT_THAT(told, ElementsAre(std::string(kWmaFailed) + "|"));
        EXPECT_THAT(FilesOfMusic(), IsEmpty());
    }
}

TEST_F(SaveSongAsSoundTest, AMixThatIsStoppedIsNoMix)
{
    SongState& song = Shared().Song;
    GiveOnePaintedStep();
    services.screen.progressesBeforeStop = 0;
    EXPECT_FALSE(SaveWav(music / "Mine.wav"));
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_EQ(song.SongMix.Length, 0);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(FilesOfMusic(), IsEmpty());
    EXPECT_EQ(services.screen.processPics, 0);

    services.screen.progressesBeforeStop = -1;
    EXPECT_TRUE(SaveWav(music / "Mine.wav"));
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_EQ(LoadWaveFile(music / "Mine.wav"), song.SongMix);
}

TEST_F(SaveSongAsSoundTest, AnyOtherErrorIsToldInAPlainBox)
{
    const FileChooserStandIn dialog(
        [](const FileQuestion&) -> std::optional<fs::path> { throw RunTimeError(Words::AsIs("The dialog broke.")); });
    EXPECT_FALSE(SaveSongAsSound(SoundFileKind::Wav));
    EXPECT_FALSE(SaveSongAsSound(SoundFileKind::Wma));
    ASSERT_EQ(services.messages.shown.size(), 2U);
    EXPECT_EQ(services.messages.shown[0].text, "Error saving song to wav file\r\nThe dialog broke.");
    EXPECT_EQ(services.messages.shown[1].text, "Error saving song to wma\r\nThe dialog broke.");
    EXPECT_EQ(statusLbl.text(), QString());
}

} // namespace
} // namespace sprout
