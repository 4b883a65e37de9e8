// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/LibraryCommandsTest.h"

#include <sys/stat.h>

#include "beats/BeatFiles.h"
#include "core/Settings.h"
#include "sound/ChosenSound.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAddHint = "Choose a wav file and small (32x32) bmp picture file";

using AddBeatTest = LibraryCommandsTest;

TEST_F(AddBeatTest, MakesABeatOfASoundOfAnotherKind)
{
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.mp3"), "a song");
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_THAT(services.soundReader.calls,
                ElementsAre(FakeSoundReader::Call{Chosen("Bell.mp3"), kLongestBeatSeconds, TooLong::Cut}));
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav original.bmp original.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "Bell.wav"), services.soundReader.wave);
    EXPECT_EQ(TextOf("NmLbl"), "Bell");
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", ""), services.folder.Path().native() + "/");
}

TEST_F(AddBeatTest, GivesASoundOfAnotherKindAFreeName)
{
    MakeBeat("bell", 10);
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.ogg"), "a song");
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.ogg"), Chosen("Picture.bmp"));
    EXPECT_THAT(told, ElementsAre("\"bell\" already exists|New beat is added as New1Bell|"));
    EXPECT_EQ(FilesOfUserBeats(), "New1Bell.bmp New1Bell.wav bell.bmp bell.wav original.bmp original.wav ");
}

TEST_F(AddBeatTest, TellsOfTheTrimmingOfASoundOfAnotherKind)
{
    ConvertTo(QuietWave(5 * 11025));
    WriteBytes(Chosen("Long.mp3"), "a song of an hour");
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Long.mp3"), Chosen("Picture.bmp"));
    EXPECT_THAT(told,
                ElementsAre(std::string("The duration of this file is 5 seconds,|This will be trimmed to 3 seconds.|") +
                            kAddHint));
}

TEST_F(AddBeatTest, TellsOfASoundThatCannotBeRead)
{
    WriteBytes(Chosen("Bell.mp3"), "damaged");
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_EQ(services.soundReader.calls.size(), 1U);
    EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    ASSERT_EQ(services.messages.shown.size(), 1U) << "the reader of waves tells why";
    EXPECT_EQ(services.messages.shown[0].title, "Error Loading " + Chosen("Bell.mp3").native());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
}

TEST_F(AddBeatTest, EndsSilentlyWhenTheUserStopsTheReading)
{
    ConvertTo(QuietWave(200));
    services.screen.progressesBeforeStop = 0;
    WriteBytes(Chosen("Bell.mp3"), "a song");
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Bell.mp3"), Chosen("Picture.bmp"));
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(services.messages.shown, IsEmpty());
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
}

TEST_F(AddBeatTest, DeletesTheConvertedSoundWhenThePictureIsCancelled)
{
    ConvertTo(QuietWave(200));
    WriteBytes(Chosen("Bell.mp3"), "a song");
    Open();
    Add(Chosen("Bell.mp3"), std::nullopt);
    EXPECT_EQ(questions.size(), 2U);
    EXPECT_TRUE(fs::is_empty(Shared().TempFolder));
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(AddBeatTest, WaitsForNoPipeAndNoDevice)
{
    BeatLibraryCommands::AddHelpShown = true;
    ASSERT_EQ(::mkfifo(Chosen("pipe.mp3").c_str(), 0600), 0);
    Open();
    for (const fs::path& file : {Chosen("pipe.mp3"), fs::path("/dev/zero"), services.folder.Path()}) {
        Add(file, Chosen("Picture.bmp"));
        EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    }
    EXPECT_THAT(services.soundReader.calls, IsEmpty());
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
}

TEST_F(AddBeatTest, RefusesAFileWithoutSound)
{
    WriteBytes(Chosen("Noise.wav"), std::string(200, 'x'));
    BeatLibraryCommands::AddHelpShown = true;
    Open();
    Add(Chosen("Noise.wav"), Chosen("Picture.bmp"));
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_THAT(told, ElementsAre("Failed to load wav file.|"));
    EXPECT_EQ(services.messages.shown.size(), 1U) << "the reader of waves tells why";
    EXPECT_EQ(GetSetting("General", "WavFileSelPath", "none"), "none");
}

} // namespace
} // namespace sprout
