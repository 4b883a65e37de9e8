// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFileCommands.h"

#include "core/Settings.h"
#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

using DeleteTuneTest = TuneFrm2Test;

TEST_F(DeleteTuneTest, ADeleteKeepsTheOrderAndTheTuneInTheEditor)
{
    MakeTuneFiles(3);
    WriteBytes(File("Tune 01.bmp"), "picture");
    Open([this](TuneFrm2& window) {
        PressTune(window, 1, Qt::RightButton);
        MenuItem(window, 3).trigger();
        ForgetPlay();
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(GridOf(window).Selected(), -1);
        EXPECT_EQ(GridOf(window).Count(), 2);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 01") << "the first tune, which the opening chose";
        EXPECT_EQ(Played(), 0);
        EXPECT_EQ(statusLbl.text(), QString());
    });
    EXPECT_THAT(noted, ElementsAre("  Confirm Delete Tune", "Are you sure to delete this Tune?", "Tune name: Tune 01"));
    EXPECT_EQ(hintOfMessage, "Click Yes to delete, No to keep");
    EXPECT_FALSE(fs::exists(File("Tune 01.TqTun")));
    EXPECT_FALSE(fs::exists(File("Tune 01.bmp")));
    EXPECT_EQ(FolderOrder::Read(TuneIndexFile()).Place("Tune 02"), 1);
}

TEST_F(DeleteTuneTest, ATuneIsKeptOnAnyAnswerButYes)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        WithNextForm([](BandedForm& form) { form.reject(); });
        MenuItem(window, 4).trigger();
        EXPECT_EQ(statusLbl.text(), QString());
        EXPECT_EQ(GridOf(window).Count(), 2);
        AnswerNext("NoBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(GridOf(window).Count(), 2);
    });
    EXPECT_TRUE(fs::exists(File("Tune 01.TqTun")));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(DeleteTuneTest, ButtonAndKeyDeleteTheChosenTuneAsTheMenuDoes)
{
    for (const bool byKey : {false, true}) {
        MakeTuneFiles(2);
        Shared().TuneTableCount = 0;
        Open([&](TuneFrm2& window) {
            PressTune(window, 2);
            AnswerNext("NoBtn");
            byKey ? QTest::keyClick(&GridOf(window), Qt::Key_Delete) : Click(window, "DeleteTuneBtn");
            EXPECT_EQ(noted.back(), "Tune name: Tune 02");
            EXPECT_TRUE(fs::exists(File("Tune 02.TqTun")));
            AnswerNext("YesBtn");
            byKey ? QTest::keyClick(&GridOf(window), Qt::Key_Delete) : Click(window, "DeleteTuneBtn");
            EXPECT_FALSE(fs::exists(File("Tune 02.TqTun")));
        });
    }
}

TEST_F(DeleteTuneTest, IsNotOfferedForAnOriginalWhereThatIsSwitchedOff)
{
    PutSetting("General", "HideDeleteSupplied", "1");
    Shared().AllowEditOriginal = true;
    MakeTuneFile(PlainTune("Lumo", "tonquill"));
    MakeTuneFile(PlainTune("Mine", "me"));
    Open([this](TuneFrm2& window) {
        const auto isOffered = [&window] {
            const bool byButton = window.findChild<QWidget*>(QStringLiteral("DeleteTuneBtn"))->isVisible();
            EXPECT_EQ(MenuItem(window, 4).isVisible(), byButton);
            return byButton;
        };
        PressTune(window, 1);
        EXPECT_FALSE(isOffered());
        PressTune(window, 2);
        EXPECT_TRUE(isOffered());
        PressTune(window, 1);
        AnswerNext("OkBtn");
        QTest::keyClick(&GridOf(window), Qt::Key_Delete);
    });
    EXPECT_EQ(noted.back(), "This tune can not be deleted.");
    EXPECT_TRUE(fs::exists(File("Lumo.TqTun")));
}

TEST_F(DeleteTuneTest, AnOriginalCannotBeDeleted)
{
    MakeTuneFile(PlainTune("Lumo", "tonquill"));
    Open([this](TuneFrm2& window) {
        AnswerNext("OkBtn");
        MenuItem(window, 4).trigger();
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "This is an original Tune from Tonquill.",
                                   "This tune can not be deleted."));
    EXPECT_EQ(hintOfMessage, "Blue bordered are originals, red bordered are your new tunes");
    EXPECT_TRUE(fs::exists(File("Lumo.TqTun")));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(DeleteTuneTest, AnOriginalCanBeDeletedWhereOriginalsMayBeEdited)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Shared().AllowEditOriginal = true;
    Open([this](TuneFrm2& window) {
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "[none]");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "");
        EXPECT_TRUE(PartOf<TunePicture>(window, "TunePic").Picture().IsNothing());
        EXPECT_EQ(GridOf(window).BlinkSelectImg().pos(), QPoint(-47, -47));
    });
    EXPECT_FALSE(fs::exists(File("Lumo.TqTun")));
}

TEST_F(DeleteTuneTest, WithoutAChoiceThereIsNothingToDeleteOrToPlay)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        Click(window, "NewTuneBtn");
        AnswerNext("OkBtn");
        MenuItem(window, 4).trigger();
        EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Select a Tune and try this."));
        EXPECT_EQ(hintOfMessage, "Click on a picture to select a Tune");
        AnswerNext("OkBtn");
        Click(window, "TunePic");
        EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Select a Tune first."));
        EXPECT_EQ(hintOfMessage, "Click on a picture to select a tune");
        EXPECT_EQ(statusLbl.text(), QString());
    });
}

TEST_F(DeleteTuneTest, AnEmptyEntryCanBeChosenAndHarmsNothing)
{
    WriteBytes(File("Broken.TqTun"), FileOf("TqTun", "2", {1000, 0}));
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        EXPECT_EQ(GridOf(window).Count(), 2);
        PressTune(window, 1);
        AnswerNext("YesBtn");
        MenuItem(window, 4).trigger();
    });
    EXPECT_TRUE(fs::exists(File("Broken.TqTun")));
    EXPECT_FALSE(fs::exists(File(".TqTun")));
}

TEST_F(DeleteTuneTest, IsNotOfferedForATuneOfTheClass)
{
    MakeTuneFile(PlainTune("Bells", "Teacher"));
    Shared().ClassRoot = Shared().UserRoot.parent_path() / "class" / "";
    fs::create_directories(Shared().ClassRoot / "Tunes");
    const fs::path file = Shared().ClassRoot / "Tunes" / "Bells.TqTun";
    fs::rename(File("Bells.TqTun"), file);
    Open([this](TuneFrm2& window) {
        PressTune(window, 1);
        EXPECT_FALSE(window.findChild<QWidget*>(QStringLiteral("DeleteTuneBtn"))->isVisible());
        AnswerNext("OkBtn");
        QTest::keyClick(&GridOf(window), Qt::Key_Delete);
    });
    EXPECT_EQ(noted.back(), "This tune can not be deleted.");
    EXPECT_TRUE(fs::exists(file));
}

} // namespace
} // namespace sprout
