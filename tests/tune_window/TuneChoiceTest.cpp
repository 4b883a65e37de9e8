// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneChoice.h"

#include <filesystem>

#include "service/posix/PosixFiles.h"
#include "support/FullDisk.h"
#include "tune_window/TunFramPic.h"
#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

using TuneChoiceTest = TuneFrm2Test;

/// Whether a widget was drawn.
class PaintWatch : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        wasPainted = wasPainted || event->type() == QEvent::Paint;
        return false;
    }

    bool wasPainted = false;
};

/// A disk that notes what was heard and seen when something was written to it.
class WatchedDisk : public PosixFiles {
public:
    void ReplaceFile(const fs::path& target, std::span<const std::span<const std::byte>> pieces, Flush flush) override
    {
        stateAtWrite = PlayShared().PlayState;
        framesAtWrite = PlayShared().PlayLength;
        paintedAtWrite = steps.wasPainted;
        ++writes;
        PosixFiles::ReplaceFile(target, pieces, flush);
    }

    PlayState stateAtWrite = PlayState::Stopped;
    std::int32_t framesAtWrite = 0;
    bool paintedAtWrite = false;
    int writes = 0;
    PaintWatch steps;
};

TEST_F(TuneChoiceTest, ChoosesAndPlaysTheFirstTuneWhenItOpens)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    MakeTuneFile(PlainTune("Sun", "Bob"));
    Open([](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Selected(), 1);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Rain");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
        EXPECT_EQ(PartOf<TunePicture>(window, "TunePic").Picture().Pixel(0, 0), 0x102030U);
        EXPECT_EQ(Played(), kLeadInFrames + 7);
        EXPECT_EQ(Shared().CurrentTune.Name, "Rain");
        EXPECT_EQ(Shared().CurrentTune.StepCount, 2);
    });
    EXPECT_EQ(display.status, "Playing Tune");
    EXPECT_EQ(Shared().TuneInfoDefault.CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneInfoDefault.Name, "Lumo");
}

TEST_F(TuneChoiceTest, TheFirstPressOnATuneOfTheLibraryRendersItAndTheNextFindsItsSound)
{
    MakeTuneFile(PlainTune("A first", "Ann"));
    MakeLightTuneFile("Lumo");
    MakeDrum();
    Open([](TuneFrm2& window) {
        PressTune(window, 2);
        const std::int32_t played = Played();
        EXPECT_GT(played, kLeadInFrames);
        EXPECT_TRUE(Shared().CurrentTune.TuneWaveValid);
        const std::string kept = ReadBytes(File("Lumo.TqTun"));
        fs::remove(Shared().UserBeats / "Drum.wav");
        PressTune(window, 1);
        PressTune(window, 2);
        EXPECT_EQ(Played(), played);
        EXPECT_EQ(Shared().CurrentTune.Steps[1].StepBeat.Name, "Drum");
        EXPECT_EQ(ReadBytes(File("Lumo.TqTun")), kept);
    });
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneChoiceTest, ATunePlaysAndIsShownBeforeItsSoundIsWrittenToTheDisk)
{
    MakeTuneFile(PlainTune("A first", "Ann"));
    MakeLightTuneFile("Lumo");
    MakeDrum();
    WatchedDisk disk;
    TheServices().files = &disk;
    Open([&disk](TuneFrm2& window) {
        QCoreApplication::processEvents();
        ForgetPlay();
        window.findChild<TunFramPic*>()->installEventFilter(&disk.steps);
        PressTune(window, 2);
        EXPECT_EQ(disk.writes, 1);
        EXPECT_EQ(disk.stateAtWrite, PlayState::Playing);
        EXPECT_EQ(disk.framesAtWrite, Played());
        EXPECT_TRUE(disk.paintedAtWrite);
    });
}

TEST_F(TuneChoiceTest, ARenderedTuneThatCannotBeKeptPlaysWithoutAWord)
{
    MakeTuneFile(PlainTune("A first", "Ann"));
    MakeLightTuneFile("Lumo");
    MakeDrum();
    FullDisk disk;
    TheServices().files = &disk;
    Open([](TuneFrm2& window) {
        for (int press = 0; press < 2; ++press) {
            ForgetPlay();
            PressTune(window, 2);
            EXPECT_GT(Played(), kLeadInFrames);
        }
    });
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneChoiceTest, FindsTunesThatCameIntoAnEmptyFolderMeanwhile)
{
    Open([](TuneFrm2& window) { Click(window, "NewTuneBtn"); });
    MakeTuneFiles(1);
    Open([](TuneFrm2& window) { EXPECT_EQ(GridOf(window).Selected(), 1); });
}

TEST_F(TuneChoiceTest, FindsATuneOrNothingAndStaysOpenWithoutAName)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    TuneChoice choice;
    choice.Find("tune 02");
    EXPECT_EQ(choice.SelectedTune(), 2);
    EXPECT_TRUE(choice.HasTune());
    choice.Find("Gone");
    EXPECT_FALSE(choice.HasTune());
    EXPECT_TRUE(choice.ShowsEditorsTune());
    EXPECT_FALSE(choice.ChooseFirstIfOpen());
    EXPECT_FALSE(choice.HasTune()) << "nothing shall be chosen";
    choice.Find("");
    EXPECT_EQ(choice.SelectedTune(), 0);
    EXPECT_FALSE(choice.ChooseFirstIfOpen()) << "its file has the sound";
    EXPECT_EQ(choice.SelectedTune(), 1);
    EXPECT_GT(Played(), 0);
}

TEST_F(TuneChoiceTest, StartsWithTheEditorsTuneUntilOneIsChosen)
{
    MakeTuneFiles(2);
    LoadTuneFiles();
    TuneChoice choice;
    choice.StartWithEditor();
    choice.Find("Tune 01");
    EXPECT_TRUE(choice.StartedWithEditor());
    EXPECT_TRUE(choice.ShowsEditorsTune());
    choice.Choose(2);
    EXPECT_FALSE(choice.StartedWithEditor());
    EXPECT_FALSE(choice.ShowsEditorsTune());
    choice.ChooseNothing();
    EXPECT_TRUE(choice.ShowsEditorsTune());
    EXPECT_FALSE(choice.Play());
    EXPECT_EQ(Played(), 0);
}

TEST_F(TuneChoiceTest, PlaysWhatItCopiedFromTheEditor)
{
    MakeTuneFiles(1);
    LoadTuneFiles();
    Shared().CurrentTune = PlainTune("Mine", "Ann", 13);
    TuneChoice choice;
    choice.TakeEditorsTune(1);
    EXPECT_FALSE(choice.Play());
    EXPECT_EQ(Played(), kLeadInFrames + 13);
}

} // namespace
} // namespace sprout
