// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatCommands.h"
#include "base/FilePaths.h"

#include <gmock/gmock.h>

#include "base/Errors.h"
#include "beat_window/BeatFolderMaker.h"
#include "core/Paths.h"
#include "support/FakeServices.h"
#include "support/SmallDisk.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class BeatCommandsTest : public testing::Test {
protected:
    fs::path Chosen(const std::string& name) const { return services.folder.Path() / name; }
    static Picture AnyPicture() { return Shared().BlankPic; }

    FakeServices services;
};

using NameNewBeatTest = BeatCommandsTest;
using AddBeatFilesTest = BeatCommandsTest;
using RenameBeatFilesTest = BeatCommandsTest;
using ReadChosenPictureTest = BeatCommandsTest;

TEST_F(NameNewBeatTest, TakesTheNameOfTheFileInLowerCase)
{
    const NewBeatName name = NameNewBeat(Chosen("Bell.WAV"));
    EXPECT_EQ(name.File, "Bell.WAV");
    EXPECT_EQ(name.FirstName, "bell");
    EXPECT_EQ(name.Name, "bell");
}

TEST_F(NameNewBeatTest, CountsOnWhereTheNameIsTakenInAnyLetterCase)
{
    WriteBytes(Shared().UserBeats / "bELL.wav", "x");
    NewBeatName name = NameNewBeat(Chosen("Bell.wav"));
    EXPECT_EQ(name.File, "New1Bell.wav");
    EXPECT_EQ(name.FirstName, "bell");
    EXPECT_EQ(name.Name, "new1bell");
    WriteBytes(Shared().UserBeats / "new1bell.wav", "x");
    name = NameNewBeat(Chosen("Bell.wav"));
    EXPECT_EQ(name.File, "New2Bell.wav");
}

TEST_F(NameNewBeatTest, KeepsOtherAlphabetsAndDotsInsideTheName)
{
    EXPECT_EQ(NameNewBeat(Chosen("Тук.тук.wav")).Name, "тук.тук");
}

TEST_F(NameNewBeatTest, GivesEveryFileTheEndingOfAWave)
{
    EXPECT_EQ(NameNewBeat(Chosen("Bell.sound")).File, "Bell.wav");
    EXPECT_EQ(NameNewBeat(Chosen("B")).File, "B.wav");
    EXPECT_EQ(NameNewBeat(Chosen("B")).Name, "b");
    EXPECT_EQ(NameNewBeat(Chosen(".wav")).File, ".wav.wav");
}

TEST_F(AddBeatFilesTest, CopiesTheWaveAsItIsWithItsTimeAndWritesThePicture)
{
    WriteBytes(Chosen("Bell.wav"), "some wave");
    SetWrittenIn2020(Chosen("Bell.wav"), 42);
    AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "New1Bell.wav");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "New1Bell.wav"), "some wave");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "New1Bell.bmp"), "p");
    EXPECT_EQ(FilesOfUserBeats(), "New1Bell.bmp New1Bell.wav ");
    EXPECT_EQ(FileStamp(Shared().UserBeats / "New1Bell.wav"), FileStamp(Chosen("Bell.wav")));
    EXPECT_FALSE(HoldsFile(Shared().TempFolder));
}

TEST_F(AddBeatFilesTest, ReplacesAPictureThatLiesAroundInAnyLetterCase)
{
    WriteBytes(Shared().UserBeats / "BELL.BMP", "old");
    WriteBytes(Chosen("Bell.wav"), "wave");
    AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "Bell.wav");
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav ");
}

TEST_F(AddBeatFilesTest, LeavesNothingBehindOnAFullDisk)
{
    WriteBytes(Chosen("Bell.wav"), std::string(9000, 'w'));
    const SmallDisk disk(4000);
    EXPECT_THROW(AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "Bell.wav"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "");
}

class NoPictureFiles : public FakePictureFiles {
public:
    [[nodiscard]] std::vector<std::byte> EncodeBmp(const Picture&) const override
    {
        throw RunTimeError(Words::Text("The picture could not be written."));
    }
};

TEST_F(AddBeatFilesTest, TakesTheWaveAwayAgainWhereThePictureCannotBeWritten)
{
    NoPictureFiles pictures;
    TheServices().pictures = &pictures;
    WriteBytes(Chosen("Bell.wav"), "wave");
    EXPECT_THROW(AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "Bell.wav"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "");
}

TEST_F(AddBeatFilesTest, MakesNoTemporaryFile)
{
    fs::remove(Shared().TempFolder);
    WriteBytes(Chosen("Bell.wav"), "wave");
    AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "Bell.wav");
    EXPECT_EQ(FilesOfUserBeats(), "Bell.bmp Bell.wav ");
}

TEST_F(AddBeatFilesTest, ThrowsForAWaveThatIsGone)
{
    EXPECT_THROW(AddBeatFiles(Chosen("gone.wav"), AnyPicture(), "gone.wav"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "");
}

TEST_F(ReadChosenPictureTest, GivesTheDefaultPictureForAMissingFileAndThrowsForADamagedOne)
{
    EXPECT_TRUE(SamePicture(ReadChosenPicture(Chosen("no.bmp")), Shared().DefaultTunePicture));
    WriteBytes(Chosen("bad.bmp"), "bad");
    EXPECT_THROW((void)ReadChosenPicture(Chosen("bad.bmp")), RunTimeError);
    WriteBytes(Chosen("good.bmp"), "12345");
    EXPECT_EQ(ReadChosenPicture(Chosen("GOOD.bmp")).Pixel(0, 0), 5U);
}

TEST_F(RenameBeatFilesTest, RenamesBothFilesWhateverTheirLetterCase)
{
    WriteBytes(Shared().UserBeats / "Drum.WAV", "wave");
    WriteBytes(Shared().UserBeats / "drum.Bmp", "picture");
    RenameBeatFiles("drum", "Тамтам");
    EXPECT_EQ(FilesOfUserBeats(), "Тамтам.bmp Тамтам.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "Тамтам.wav"), "wave");
}

TEST_F(RenameBeatFilesTest, ChangesTheLetterCaseAlone)
{
    MakeBeat("drum");
    RenameBeatFiles("drum", "Drum");
    EXPECT_EQ(FilesOfUserBeats(), "Drum.bmp Drum.wav ");
}

TEST_F(RenameBeatFilesTest, NeverOverwritesAFile)
{
    MakeBeat("drum", 10);
    MakeBeat("BELL", 20);
    const std::string bell = ReadBytes(Shared().UserBeats / "BELL.wav");
    EXPECT_THROW(RenameBeatFiles("drum", "bell"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "BELL.bmp BELL.wav drum.bmp drum.wav ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "BELL.wav"), bell);
}

TEST_F(RenameBeatFilesTest, BreaksThePairWhereOnlyThePictureIsTaken)
{
    MakeBeat("drum", 10);
    WriteBytes(Shared().UserBeats / "bell.bmp", "another");
    EXPECT_THROW(RenameBeatFiles("drum", "bell"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "bell.bmp bell.wav drum.bmp ");
    EXPECT_EQ(ReadBytes(Shared().UserBeats / "bell.bmp"), "another");
}

TEST_F(RenameBeatFilesTest, ThrowsForNamesThatNoFileCanHave)
{
    MakeBeat("drum", 10);
    for (const std::string& name : {std::string("  "), std::string("a/b"), std::string(300, 'x')})
        EXPECT_ANY_THROW(RenameBeatFiles("drum", name)) << name;
    EXPECT_THROW(RenameBeatFiles("gone", "new"), RunTimeError);
    EXPECT_EQ(FilesOfUserBeats(), "drum.bmp drum.wav ");
}

TEST_F(BeatCommandsTest, DeletesBothFilesWhateverTheirLetterCase)
{
    WriteBytes(Shared().UserBeats / "Drum.WAV", "wave");
    WriteBytes(Shared().UserBeats / "drum.bmp", "picture");
    MakeBeat("stays", 10);
    DeleteBeatFiles("drum");
    DeleteBeatFiles("gone");
    EXPECT_EQ(FilesOfUserBeats(), "stays.bmp stays.wav ");
}

TEST_F(BeatCommandsTest, ChangeNothingThatIsInstalled)
{
    MakeBeat("drum", 10);
    WriteBytes(Chosen("Bell.wav"), "wave");
    Shared().InstallRoot = Shared().UserBeats.parent_path();
    EXPECT_THROW(AddBeatFiles(Chosen("Bell.wav"), AnyPicture(), "Bell.wav"), RunTimeError);
    EXPECT_THROW(RenameBeatFiles("drum", "bell"), RunTimeError);
    DeleteBeatFiles("drum");
    EXPECT_EQ(FilesOfUserBeats(), "drum.bmp drum.wav ");
}

TEST(SecondsText, HasFifteenDigitsAndNoneThatAreNotNeeded)
{
    EXPECT_EQ(SecondsText(10), "10");
    EXPECT_EQ(SecondsText(3.5), "3.5");
    EXPECT_EQ(SecondsText(10.0 / 3), "3.33333333333333");
}

} // namespace
} // namespace sprout
