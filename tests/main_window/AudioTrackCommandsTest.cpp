// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/AudioTrackCommands.h"

#include <sys/stat.h>

#include <filesystem>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "core/Settings.h"
#include "main_window/CommandsTest.h"
#include "support/Flags.h"
#include "ui/FormAnswers.h"
#include "ui/forms/FileDialogs.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

constexpr const char* kTooLong = "This file is too long.|Use less then 2 minutes audio.|";

WaveData WaveOf(std::int32_t frames, std::int32_t rate = 11025)
{
    WaveData wave;
    wave.Bits = 8;
    wave.Channels = 1;
    wave.Rate = rate;
    wave.Length = frames;
    wave.WavL = Channel(frames);
    return wave;
}

class AudioTrackCommandsTest : public CommandsTest {
protected:
    enum class Choice { Recording, File, Cancel };

    /// Clicks the button and answers its question; if a file is given it is chosen.
    void AddTrack(Choice choice, const std::optional<fs::path>& file = std::nullopt)
    {
        const char* const answer[] = {"StartRecordingBtn", "ChooseWavFileBtn", "CancelBtn"};
        const FileChooserStandIn dialog([&](const FileQuestion& question) {
            questions.push_back(question);
            return file;
        });
        FormAnswers answers(statusLbl, {answer[static_cast<int>(choice)]});
        audioTracks->TrackAddRecBtn();
        EXPECT_EQ(answers.seen.empty() ? "" : answers.seen.front(), "Choose Audio Type to add:|");
        told.assign(answers.seen.begin() + 1, answers.seen.end());
        caption = answers.caption;
    }

    void AddFile(const fs::path& file) { AddTrack(Choice::File, file); }

    void Drop(const QList<QUrl>& places)
    {
        FormAnswers answers(statusLbl, {});
        audioTracks->AddDropped(places);
        told = answers.seen;
    }
    static QUrl UrlOf(const fs::path& file) { return QUrl::fromLocalFile(QString::fromStdString(file.native())); }

    [[nodiscard]] fs::path In(const char* name) const { return services.folder.Path() / name; }

    /// A WAV file with only a head, which promises frames of one byte at 11,025 Hz.
    [[nodiscard]] fs::path Promise(const char* name, std::uint32_t bytes) const
    {
        SaveWaveFile(WaveOf(10), In(name));
        std::string file = ReadBytes(In(name));
        for (int i = 0; i < 4; ++i)
            file[40 + static_cast<std::size_t>(i)] = static_cast<char>(bytes >> (8 * i));
        WriteBytes(In(name), file);
        return In(name);
    }

    void ExpectUnchanged() const
    {
        EXPECT_EQ(song.TrackCount, 3);
        EXPECT_EQ(song.Tracks.size(), 4U);
        EXPECT_FALSE(song.SongChanged);
    }

    std::vector<FileQuestion> questions;
    std::vector<std::string> told;
    QString caption;
};

TEST_F(AudioTrackCommandsTest, ACancelledChoiceChangesNothing)
{
    ShowHint(Words::AsIs("Before"));
    AddTrack(Choice::Cancel);
    EXPECT_EQ(caption, QStringLiteral(" Add Audio Track"));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(questions, IsEmpty());
    EXPECT_EQ(statusLbl.text(), QString());
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, AsksForASoundFile)
{
    PutSetting("General", "WavFileSelPath", "/waves/");
    AddTrack(Choice::File);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0].Title.English(), "Please select a wav file to open");
    EXPECT_EQ(questions[0].DefaultExtension, "wav");
    EXPECT_THAT(questions[0].Filter.English(),
                testing::StartsWith("Wave File(*.wav)|*.wav|All files|*.*|Other sounds|*.wav;"));
    EXPECT_EQ(questions[0].FilterIndex, 3);
    EXPECT_EQ(questions[0].Folder, "");
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, MakesATrackOfAWavFile)
{
    SaveWaveFile(WaveOf(500), In("Voice.wav"));
    SetSongMixValid(song, true);
    PutSetting("General", "WavFileSelPath", "/waves/");
    AddFile(In("Voice.wav"));
    EXPECT_THAT(told, IsEmpty());
    ASSERT_EQ(song.TrackCount, 4);
    const Track& track = At(song.Tracks, 4);
    EXPECT_TRUE(track.IsAudio());
    EXPECT_EQ(track.TrackAudio, LoadWaveFile(In("Voice.wav"))) << "in its own format";
    EXPECT_EQ(std::count(track.Painted.begin(), track.Painted.end(), 1), 0);
    EXPECT_FALSE(track.TrackRenderValid);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), "/waves/");
}

TEST_F(AudioTrackCommandsTest, StopsThePlayerBeforeTheDialog)
{
    PlayWaveTrack(CountingWave(44100), 1, 1, Loop::No);
    AddTrack(Choice::Cancel);
    EXPECT_NE(play.PlayState, PlayState::Stopped) << "nothing was chosen";
    AddTrack(Choice::File);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(AudioTrackCommandsTest, TakesJustTwoMinutes)
{
    SaveWaveFile(WaveOf(120 * 11025), In("Just.wav"));
    AddFile(In("Just.wav"));
    EXPECT_EQ(song.TrackCount, 4);
    song.TrackCount = 3;
    song.Tracks.resize(4);
    SetSongChanged(song, false);
    SaveWaveFile(WaveOf(120 * 11025 + 11), In("Long.wav")); // 120.001 s
    AddFile(In("Long.wav"));
    EXPECT_THAT(told, ElementsAre(kTooLong));
    EXPECT_EQ(caption, QStringLiteral(" Load wav file failed."));
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, BelievesNoHeadThatLies)
{
    AddFile(Promise("TooMuch.wav", 121 * 11025));
    EXPECT_THAT(told, ElementsAre(kTooLong));
    // Streamed files are converted; if that fails, the head counts.
    AddFile(Promise("Nothing.wav", 0));
    EXPECT_THAT(told, ElementsAre("No wave Data found in file|"));
    AddFile(Promise("Streamed.wav", 0xFFFFFFFF));
    EXPECT_THAT(told, ElementsAre("No wave Data found in file|"));
    ExpectUnchanged();
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AudioTrackCommandsTest, MeasuresAFileAnewThatChangesBehindItsHead)
{
    SaveWaveFile(WaveOf(500), In("Short.wav"));
    SaveWaveFile(WaveOf(121 * 11025), In("Long.wav"));
    fs::create_hard_link(In("Short.wav"), In("Voice.wav"));
    const std::jthread other([this](const std::stop_token& stop) {
        for (bool isLong = true; !stop.stop_requested(); isLong = !isLong) {
            fs::create_hard_link(In(isLong ? "Long.wav" : "Short.wav"), In("Next.wav"));
            fs::rename(In("Next.wav"), In("Voice.wav"));
        }
    });
    for (int i = 0; i < 50; ++i) {
        AddFile(In("Voice.wav"));
        if (song.TrackCount == 4)
            EXPECT_EQ(At(song.Tracks, 4).TrackAudio.Length, 500);
        else
            EXPECT_THAT(told, ElementsAre(kTooLong));
        song.TrackCount = 3;
        song.Tracks.resize(4);
    }
}

TEST_F(AudioTrackCommandsTest, ConvertsOtherSounds)
{
    SaveWaveFile(CountingWave(300), In("converted"));
    services.soundReader.outcome = Conversion::Done;
    services.soundReader.wave = ReadBytes(In("converted"));
    WriteBytes(In("Voice.mp3"), "no wave at all");
    AddFile(In("Voice.mp3"));
    EXPECT_THAT(services.soundReader.calls,
                ElementsAre(FakeSoundReader::Call{In("Voice.mp3"), kLongestAudioSeconds, TooLong::Refuse}));
    ASSERT_EQ(song.TrackCount, 4);
    EXPECT_EQ(At(song.Tracks, 4).TrackAudio.Length, 300);
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
}

TEST_F(AudioTrackCommandsTest, RefusesOtherSoundsThatAreTooLongOrStopped)
{
    WriteBytes(In("Hour.mp3"), "no wave at all");
    services.soundReader.outcome = Conversion::TooLong;
    AddFile(In("Hour.mp3"));
    EXPECT_THAT(told, ElementsAre(kTooLong));
    services.screen.progressesBeforeStop = 0;
    AddFile(In("Hour.mp3"));
    EXPECT_THAT(told, IsEmpty());
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, LeavesWhatIsNoSoundToTheWordsOfTheReader)
{
    WriteBytes(In("Text.wav"), std::string(100, 't'));
    AddFile(In("Text.wav"));
    EXPECT_THAT(told, IsEmpty());
    ASSERT_EQ(services.messages.shown.size(), 1U) << "told once, not for the head and again for the whole";
    EXPECT_EQ(services.messages.shown[0].text, "The String 'Data' - is not found");
    AddFile(In("gone.wav"));
    EXPECT_EQ(services.messages.shown.size(), 1U);
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, MakesATrackOfARecording)
{
    windows.recordingWindow = [] { return CountingWave(700); };
    AddTrack(Choice::Recording);
    EXPECT_THAT(told, IsEmpty());
    ASSERT_EQ(song.TrackCount, 4);
    EXPECT_TRUE(At(song.Tracks, 4).IsAudio());
    EXPECT_EQ(At(song.Tracks, 4).TrackAudio.Length, 700);
    EXPECT_TRUE(song.SongChanged);
}

TEST_F(AudioTrackCommandsTest, ACancelledOrEmptyRecordingAddsNoTrack)
{
    AddTrack(Choice::Recording);
    EXPECT_THAT(told, IsEmpty());
    windows.recordingWindow = [] { return EmptyWave(); };
    AddTrack(Choice::Recording);
    EXPECT_THAT(told, ElementsAre("Nothing was recorded.|"));
    ExpectUnchanged();
}

TEST_F(AudioTrackCommandsTest, NothingSoundsIntoARecording)
{
    Hover(1, 30);
    ASSERT_TRUE(canvas->TrackTuneBtnVisible());
    PlayWaveTrack(CountingWave(44100), 1, 1, Loop::No);
    windows.recordingWindow = [this]() -> std::optional<WaveData> {
        EXPECT_FALSE(canvas->TrackTuneBtnVisible());
        EXPECT_EQ(play.PlayState, PlayState::Stopped);
        return std::nullopt;
    };
    AddTrack(Choice::Recording);
}

TEST_F(AudioTrackCommandsTest, EditsTheTrackUnderThePointer)
{
    MakeAudio(2, 5000);
    Hover(2, 30);
    ASSERT_TRUE(canvas->TrackAudioBtnVisible());
    ShowHint(Words::AsIs("Before"));
    PlayWaveTrack(CountingWave(44100), 1, 1, Loop::No);
    std::vector<std::int32_t> edited;
    windows.audioEditor = [&](std::int32_t track) {
        EXPECT_EQ(statusLbl.text(), QString());
        EXPECT_FALSE(canvas->TrackAudioBtnVisible());
        EXPECT_EQ(play.PlayState, PlayState::Stopped);
        edited.push_back(track);
        return true;
    };
    audioTracks->TrackAudioBtn();
    EXPECT_THAT(edited, ElementsAre(2));
}

TEST_F(AudioTrackCommandsTest, DrawsTheRowAnewWhereTheSoundWasChanged)
{
    MakeAudio(2, 5000);
    const QPoint place = CellPlace(2, 3);
    const auto shown = [&] { return Part("TrackPic").grab().toImage().pixelColor(place + QPoint(1, 0)); };
    const QColor unpainted = shown();
    for (const bool wasChanged : {false, true}) {
        windows.audioEditor = [&](std::int32_t) {
            Paint(2, 1, 10); // so the row looks different once it is drawn
            return wasChanged;
        };
        Hover(2, 30);
        audioTracks->TrackAudioBtn();
        EXPECT_EQ(shown() != unpainted, wasChanged);
    }
}

TEST_F(AudioTrackCommandsTest, EditsNothingWithoutATrack)
{
    windows.audioEditor = [](std::int32_t) -> bool { throw RunTimeError(Words::AsIs("opened")); };
    audioTracks->TrackAudioBtn();
    EXPECT_THAT(services.messages.shown, IsEmpty());
}

TEST_F(AudioTrackCommandsTest, TakesADroppedSoundLikeAChosenOne)
{
    SaveWaveFile(WaveOf(500), In("Voice.wav"));
    Drop({UrlOf(In("Voice.wav"))});
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(song.TrackCount, 4);
    Drop({UrlOf(Promise("TooMuch.wav", 121 * 11025))});
    EXPECT_THAT(told, ElementsAre(kTooLong));
    EXPECT_EQ(song.TrackCount, 4);
}

TEST_F(AudioTrackCommandsTest, RefusesWhatIsDroppedAndIsNoSoundFile)
{
    SaveWaveFile(WaveOf(500), In("Voice.wav"));
    fs::create_directory(In("folder"));
    ASSERT_EQ(::mkfifo(In("pipe").c_str(), 0600), 0);
    Drop({UrlOf(In("Voice.wav")), UrlOf(In("Voice.wav"))});
    EXPECT_THAT(told, ElementsAre("Please drop one sound at a time.|"));
    Drop({});
    EXPECT_THAT(told, ElementsAre("Please drop one sound at a time.|"));
    Drop({QUrl(QStringLiteral("https://tonquill.example/voice.wav"))});
    EXPECT_THAT(told, ElementsAre("This sound is not on this computer.|Save it here first and drop it then.|"));
    for (const char* name : {"folder", "pipe", "gone"}) {
        Drop({UrlOf(In(name))});
        EXPECT_THAT(told, ElementsAre("This is not a sound file.|" + std::string(name) + "|"));
    }
    ExpectUnchanged();
}

} // namespace
} // namespace sprout
