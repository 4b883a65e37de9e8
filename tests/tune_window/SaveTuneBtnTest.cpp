// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Flags.h"
#include "tune_window/TuneFrm2Test.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SaveTuneBtnTest : public TuneFrm2Test {
protected:
    /// Fills in the next form for names and leaves it with a button; the previous texts of its boxes are kept.
    void AnswerNames(const char* name, const char* author, std::function<void()> before = {},
                     const char* button = "OkBtn")
    {
        WithNextForm([this, name, author, button, before = std::move(before)](BandedForm& form) {
            offered = {PartOf<QLineEdit>(form, "NameTxt").text().toStdString(),
                       PartOf<QLineEdit>(form, "CreatedTxt").text().toStdString()};
            if (name)
                PartOf<QLineEdit>(form, "NameTxt").setText(QString::fromUtf8(name));
            if (author)
                PartOf<QLineEdit>(form, "CreatedTxt").setText(QString::fromUtf8(author));
            if (before)
                before();
            Click(form, button);
        });
    }

    static Tune Loaded(const char* name)
    {
        TunOpnSavClass().Load_Tune(File(name));
        return Shared().TuneClipboard;
    }

    TuneNames offered;
};

TEST_F(SaveTuneBtnTest, AnOriginalOffersTwoEmptyBoxes)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Open([this](TuneFrm2& window) {
        AnswerNames("My Lumo", "Ann");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "My Lumo");
        EXPECT_EQ(TextOf(window, "CreatedByLbl"), "By: Ann");
    });
    EXPECT_EQ(offered, (TuneNames{"", ""}));
    EXPECT_EQ(Loaded("My Lumo.TqTun").CreatedBy, "Ann");
    EXPECT_EQ(Shared().TuneClipboard.TuneWave.Length, 4);
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, ACopyOfATuneThatWasJustRenderedHasItsSound)
{
    MakeLightTuneFile("Lumo");
    MakeDrum();
    Open([this](TuneFrm2& window) {
        AnswerNames("My Lumo", "Ann");
        Click(window, "SaveTuneBtn");
    });
    const Tune copy = Loaded("My Lumo.TqTun");
    EXPECT_GT(copy.TuneWave.Length, 0);
    EXPECT_EQ(copy.TuneWave, Loaded("Lumo.TqTun").TuneWave);
}

TEST_F(SaveTuneBtnTest, ANewTuneSortsLastAndIsChosen)
{
    MakeTuneFiles(2);
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\nTune 02=1\r\nTune 01=2\r\n");
    Open([this](TuneFrm2& window) {
        AnswerNames(" A first ", " Bob ");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(GridOf(window).Count(), 3);
    });
    EXPECT_EQ(offered, (TuneNames{"Tune 02", "Ann"}));
    EXPECT_THAT(TableNames(), ElementsAre("Tune 02", "Tune 01", "A first"));
    EXPECT_EQ(Shared().CurrentTune.Name, "A first");
    EXPECT_EQ(FolderOrder::Read(TuneIndexFile()).Place("A first"), 3);
    EXPECT_TRUE(tune.Name.empty());
}

TEST_F(SaveTuneBtnTest, AnOverwrittenTuneKeepsItsPlaceAndTheFrameGoesToTheLast)
{
    MakeTuneFiles(3);
    WriteBytes(TuneIndexFile(), "[SortOrder]\r\nTune 01=1\r\nTune 02=2\r\nTune 03=3\r\n");
    Open([this](TuneFrm2& window) {
        Shared().CurrentTune.Picture = PlainPicture(0x77);
        AnswerNames(nullptr, "Bob", [this] { AnswerNext("YesBtn"); });
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Selected(), 3);
        EXPECT_EQ(TextOf(window, "TuneNameLbl"), "Tune 03");
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter", "Another Tune is there with this name: Tune 01",
                                   "Would you like to overwrite that?"));
    EXPECT_THAT(TableNames(), ElementsAre("Tune 01", "Tune 02", "Tune 03"));
    EXPECT_EQ(Shared().TuneTable[1].CreatedBy, "Bob");
    EXPECT_EQ(Shared().TuneTable[1].Picture.Pixel(0, 0), 0x77U);
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
}

TEST_F(SaveTuneBtnTest, ATuneThatIsKeptLeadsBackToTheTypedTexts)
{
    MakeTuneFiles(2);
    Open([this](TuneFrm2& window) {
        AnswerNames("Tune 02", " Bob ", [this] {
            WithNextForm([this](BandedForm& question) {
                AnswerNames(nullptr, nullptr, {}, "CancelBtn");
                Click(question, "NoBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_EQ(offered, (TuneNames{"Tune 02", "Bob"}));
    EXPECT_EQ(Loaded("Tune 02.TqTun").CreatedBy, "Ann");
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
}

TEST_F(SaveTuneBtnTest, TheNameOfAnOriginalIsRefused)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill", 7));
    Open([this](TuneFrm2& window) {
        AnswerNames("lumo", "Ann", [this] {
            WithNextForm([this](BandedForm& message) {
                noted = {TextOf(message, "CaptionLbl"), TextOf(message, "NoteLbl1"), TextOf(message, "NoteLbl2")};
                AnswerNames(nullptr, nullptr, {}, "CancelBtn");
                Click(message, "OkBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_THAT(noted, ElementsAre(" Tonquill Sprout Painter",
                                   "An Original Tonquill Tune is there with this name \"lumo\"\r\n",
                                   "Please enter another name for this Tune and save."));
    EXPECT_EQ(offered, (TuneNames{"lumo", "Ann"}));
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, WhereOriginalsMayBeEditedOverwritingOneAsksOnlyThat)
{
    MakeTuneFile(PlainTune("Lumo", "Tonquill"));
    Shared().AllowEditOriginal = true;
    Open([this](TuneFrm2& window) {
        AnswerNames(nullptr, nullptr, [this] { AnswerNext("YesBtn"); });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_EQ(offered, (TuneNames{"Lumo", "Tonquill"}));
    EXPECT_EQ(noted[1], "Another Tune is there with this name: Lumo");
    EXPECT_EQ(Loaded("Lumo.TqTun").CreatedBy, "Tonquill");
}

TEST_F(SaveTuneBtnTest, WithoutAnAuthorItAsksAgain)
{
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "  ", [this] {
            WithNextForm([this](BandedForm& message) {
                noted = {TextOf(message, "NoteLbl")};
                AnswerNames(nullptr, "Bob");
                Click(message, "OkBtn");
            });
        });
        Click(window, "SaveTuneBtn");
    });
    EXPECT_THAT(noted, ElementsAre("Enter a your name in \"Created By\" box."));
    EXPECT_EQ(offered, (TuneNames{"Rain", ""}));
    EXPECT_EQ(Loaded("Rain.TqTun").CreatedBy, "Bob");
}

TEST_F(SaveTuneBtnTest, CancelSavesNothing)
{
    MakeTuneFiles(1);
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "Bob", {}, "CancelBtn");
        Click(window, "SaveTuneBtn");
        EXPECT_EQ(GridOf(window).Count(), 1);
    });
    EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
    EXPECT_FALSE(fs::exists(File("Rain.TqTun")));
}

TEST_F(SaveTuneBtnTest, AFolderThatTakesNoFileIsToldAndTheWindowStaysUsable)
{
    MakeTuneFiles(2);
    fs::create_directory(File("Rain.TqTun"));
    Open([this](TuneFrm2& window) {
        AnswerNames("Rain", "Bob");
        Click(window, "SaveTuneBtn");
        ASSERT_EQ(services.messages.shown.size(), 1U);
        EXPECT_FALSE(services.messages.shown[0].text.empty());
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 01");
        PressTune(window, 2);
        EXPECT_EQ(Shared().CurrentTune.Name, "Tune 02");
    });
}

TEST_F(SaveTuneBtnTest, AnEditedTuneCarriesTheSoundThatItHadLast)
{
    MakeTuneFile(PlainTune("Rain", "Ann", 7));
    Open([this](TuneFrm2& window) {
        Shared().CurrentTune.Steps[2].OnPos = 1;
        SetTuneWaveValid(Shared().CurrentTune, false);
        AnswerNames("Sun", nullptr);
        Click(window, "SaveTuneBtn");
    });
    const Tune saved = Loaded("Sun.TqTun");
    EXPECT_EQ(saved.TuneWave.Length, 7);
    EXPECT_EQ(saved.Steps[2].OnPos, 1);
}

} // namespace
} // namespace sprout
