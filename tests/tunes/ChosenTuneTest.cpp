// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/ChosenTune.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/Shared.h"
#include "support/FakeServices.h"
#include "support/FullDisk.h"
#include "tune_window/Tunes.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

class ChosenTuneTest : public testing::Test {
protected:
    [[nodiscard]] static fs::path File(const char* name = "Rain.TqTun") { return Shared().UserTunes / name; }

    /// The table's entry for a tune.
    static Tune Entry(const char* name = "Rain")
    {
        Tune tune;
        tune.Name = name;
        return tune;
    }

    /// Loads a tune and keeps it, as it is done before and after its play.
    static void Choose(Tune& chosen)
    {
        if (LoadChosenTune(chosen))
            KeepChosenTune(chosen);
    }

    FakeServices services;
};

TEST_F(ChosenTuneTest, CompletesATuneThatLacksEverything)
{
    Tune tune;
    EXPECT_TRUE(CompleteTune(tune));
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().NewTunePicture));
    EXPECT_EQ(tune.CreatedBy, "Me");
    EXPECT_EQ(tune.Name, "New");
    ASSERT_EQ(tune.StepCount, 16);
    ASSERT_EQ(tune.Steps.size(), 17U);
    for (const TuneStep& step : tune.Steps) {
        EXPECT_EQ(step.OnPos, 0);
        EXPECT_EQ(step.Duration, 100);
        EXPECT_EQ(step.Volume, 100);
        EXPECT_EQ(step.StepWave.Length, 0);
    }
}

TEST_F(ChosenTuneTest, TellsTheDefaultPictureByIdentity)
{
    Tune tune = PlainTune("Rain", "Ann");
    tune.Picture = Shared().DefaultTunePicture;
    EXPECT_TRUE(CompleteTune(tune));
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().NewTunePicture));
    tune.Picture = PlainPicture(Shared().DefaultTunePicture.Pixel(0, 0));
    EXPECT_FALSE(CompleteTune(tune));
    EXPECT_EQ(tune.Name, "Rain");
    EXPECT_EQ(tune.StepCount, 2);
}

TEST_F(ChosenTuneTest, ANewTuneIsSilentAndNotRendered)
{
    Tune tune = PlainTune("Rain", "Ann");
    MakeNewTune(tune);
    EXPECT_TRUE(SamePicture(tune.Picture, Shared().NewTunePicture));
    EXPECT_EQ(tune.CreatedBy, "Me");
    EXPECT_EQ(tune.Name, "New");
    EXPECT_EQ(tune.StepCount, 16);
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
    EXPECT_TRUE(tune.Steps[1].StepBeat.Name.empty());
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(tune.TuneWave.Length, 0);
}

TEST_F(ChosenTuneTest, TakesTheSoundFromTheFile)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    const std::string before = ReadBytes(File());
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_TRUE(chosen.TuneWaveValid);
    EXPECT_EQ(chosen.TuneWave.Length, 7);
    EXPECT_EQ(Shared().CurrentTune.Name, "Rain");
    EXPECT_EQ(Shared().CurrentTune.StepCount, 2);
    EXPECT_EQ(ReadBytes(File()), before);
}

TEST_F(ChosenTuneTest, ATuneWithSoundIsNotReadAgain)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Tune chosen = PlainTune("Rain", "Ann", 3);
    Shared().CurrentTune.Name = "Edited";
    Choose(chosen);
    EXPECT_EQ(chosen.TuneWave.Length, 3);
    EXPECT_EQ(Shared().CurrentTune.Name, "Edited");
}

TEST_F(ChosenTuneTest, ATuneWithoutSoundIsRenderedAndItsFileKeepsTheSound)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_TRUE(chosen.TuneWaveValid);
    EXPECT_GT(chosen.TuneWave.Length, 0);
    TunOpnSavClass().Load_Tune(File());
    EXPECT_TRUE(Shared().TuneClipboard.TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, chosen.TuneWave.Length);
    EXPECT_EQ(Shared().TuneClipboard.Steps[1].StepBeat.Name, "Drum");
}

TEST_F(ChosenTuneTest, CanBeHeardBeforeTheDiskIsWaitedFor)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    const std::string before = ReadBytes(File());
    Tune chosen = Entry();
    EXPECT_TRUE(LoadChosenTune(chosen));
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_EQ(ReadBytes(File()), before);
    KeepChosenTune(chosen);
    Tune again = Entry();
    EXPECT_FALSE(LoadChosenTune(again));
    EXPECT_EQ(again.TuneWave, chosen.TuneWave);
}

TEST_F(ChosenTuneTest, TheTuneInTheEditorHasTheRenderedSoundToo)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_TRUE(Shared().CurrentTune.TuneWaveValid);
    EXPECT_EQ(Shared().CurrentTune.TuneWave, chosen.TuneWave);
}

TEST_F(ChosenTuneTest, ATuneOfTheLibraryTakesItsBeatsFromTheFolderAndKeepsThemWithItsSound)
{
    MakeLightTuneFile("Rain");
    MakeDrum();
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_FALSE(fs::exists(File("Rain.TqTunCache")));
    fs::remove(Shared().UserBeats / "Drum.wav");
    TunOpnSavClass().Load_Tune(File());
    EXPECT_EQ(Shared().TuneClipboard.TuneWave, chosen.TuneWave);
    EXPECT_EQ(Shared().TuneClipboard.Steps[1].StepBeat.Name, "Drum");
    EXPECT_EQ(Shared().TuneClipboard.Steps[1].StepBeat.Sound, chosen.Steps[1].StepBeat.Sound);
}

TEST_F(ChosenTuneTest, AFileWhoseBeatIsNotFoundStillNamesItAfterwards)
{
    MakeLightTuneFile("Rain");
    const std::string before = ReadBytes(File());
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_TRUE(chosen.TuneWaveValid);
    EXPECT_EQ(ReadBytes(File()), before);
    Shared().SongBeatsInside = false;
    Choose(chosen); // now that it has its sound
    EXPECT_EQ(ReadBytes(File()), before);
    Shared().SongBeatsInside = true;
    MakeDrum();
    chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(chosen.Steps[1].StepBeat.Name, "Drum");
    EXPECT_NE(ReadBytes(File()), before);
}

TEST_F(ChosenTuneTest, AnInstalledTuneThatIsReadInPlaceOfTheUsersStaysAsItIs)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    const std::string before = ReadBytes(File());
    Shared().InstallRoot = Shared().UserTunes;
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_EQ(ReadBytes(File()), before);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(ChosenTuneTest, WhereTunesDoNotCarryBeatsTheCacheKeepsTheSound)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Shared().SongBeatsInside = false;
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(chosen.TuneWave.Length, 7);
    ASSERT_TRUE(fs::exists(File("Rain.TqTunCache")));
    TunOpnSavClass().Load_Tune(File());
    EXPECT_TRUE(Shared().TuneClipboard.TuneWaveValid);
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 7);

    const fs::file_time_type written = fs::last_write_time(File());
    Tune again = Entry();
    Choose(again);
    EXPECT_EQ(again.TuneWave.Length, 7);
    EXPECT_EQ(fs::last_write_time(File()), written);
}

TEST_F(ChosenTuneTest, ADamagedFileStaysAsItIs)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    const std::string cut = ReadBytes(File()).substr(0, 6000);
    WriteBytes(File(), cut);
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_TRUE(chosen.TuneWaveValid);
    EXPECT_EQ(ReadBytes(File()), cut);
}

TEST_F(ChosenTuneTest, ATuneOfAnotherVersionStaysAsItIs)
{
    const std::string later = FileOf("TqTun", "3", std::vector<std::int32_t>(2000));
    WriteBytes(File(), later);
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(ReadBytes(File()), later);
}

TEST_F(ChosenTuneTest, ATuneThatIsGoneBecomesABlankOneAndNoFile)
{
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(chosen.StepCount, 16);
    EXPECT_FALSE(fs::exists(File()));
    chosen = Entry("");
    Choose(chosen);
    EXPECT_TRUE(fs::is_empty(Shared().UserTunes));
}

TEST_F(ChosenTuneTest, ADamagedCacheCountsAsNone)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    WriteBytes(File("Rain.TqTunCache"), "nonsense");
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_TRUE(chosen.TuneWaveValid);
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(ChosenTuneTest, ASoundThatCannotBeKeptIsHeardAllTheSame)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    const std::string before = ReadBytes(File());
    FullDisk disk;
    TheServices().files = &disk;
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_TRUE(services.messages.shown.empty());
    EXPECT_EQ(ReadBytes(File()), before);
}

TEST_F(ChosenTuneTest, AFailedRenderIsNotKept)
{
    MakeSilentTuneFile(PlainTune("Rain", "Ann"));
    const std::string before = ReadBytes(File());
    Shared().Song.Tempo = 0;
    Tune chosen = Entry();
    Choose(chosen);
    EXPECT_EQ(chosen.TuneWave.Length, 0);
    EXPECT_EQ(ReadBytes(File()), before);
}

TEST_F(ChosenTuneTest, OfTheClassIsHeardAndItsFileStaysAsItIs)
{
    MakeSilentTuneFile(PlainTune("Rain", "Teacher"));
    Shared().ClassRoot = Shared().UserRoot.parent_path() / "class" / "";
    fs::create_directories(Shared().ClassRoot / "Tunes");
    const fs::path file = Shared().ClassRoot / "Tunes" / "Rain.TqTun";
    fs::rename(File(), file);
    const std::string before = ReadBytes(file);
    Tune chosen = Entry();
    EXPECT_FALSE(LoadChosenTune(chosen)); // keeps nothing
    EXPECT_GT(chosen.TuneWave.Length, 0);
    EXPECT_EQ(ReadBytes(file), before);
    EXPECT_FALSE(fs::exists(File()));
}

} // namespace
} // namespace sprout
