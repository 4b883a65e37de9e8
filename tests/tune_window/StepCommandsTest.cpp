// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepCommands.h"

#include "tune_window/EditorPlays.h"
#include "tune_window/StepEditorTest.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using KeysTest = StepEditorTest;
using StripTest = StepEditorTest;
using IconTest = StepEditorTest;
using ChangeAllBtnTest = StepEditorTest;

TEST_F(KeysTest, SetThePitchAndPlayTheStep)
{
    ClickAt(In(2, 141 + 3, 25));
    EXPECT_EQ(tune.Steps[2].PitchShift, 11);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
    ClickAt(In(2, 213 + 62, 5));
    EXPECT_EQ(tune.Steps[2].PitchShift, -11) << "the lower octave's lowest black key";
}

TEST_F(KeysTest, PlayAKeyThatIsSetAlreadyWithoutAnEdit)
{
    ClickAt(In(2, 141 + 70, 25));
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(KeysTest, StaySilentBetweenTwoKeys)
{
    ClickAt(In(2, 141 + 42, 25));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(KeysTest, OnlyPlayForTheRightButton)
{
    ClickAt(In(2, 141 + 3, 25), Qt::RightButton);
    EXPECT_EQ(tune.Steps[2].PitchShift, 0);
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(Played(), 602);
}

TEST_F(KeysTest, DoNothingForAPitchBeyond64)
{
    tune.Steps[2].PitchShift = 65;
    editor.UpdateThisTune();
    ClickAt(In(2, 141 + 30, 25));
    EXPECT_EQ(tune.Steps[2].PitchShift, 65);
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(KeysTest, DrawAPitchOf40AtTheHighestKeyAndKeepIt)
{
    tune.Steps[2].PitchShift = 40;
    editor.UpdateThisTune();
    EXPECT_EQ(Surface().DurationBars()[2].top, 142);
    EXPECT_EQ(tune.Steps[2].PitchShift, 40);
}

TEST_F(KeysTest, DoNothingOnAnOffStep)
{
    for (const std::int32_t y : {100, 150, 230, 295})
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
            ClickAt(In(3, y, 2), button);
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
    EXPECT_TRUE(chooserGot.empty());
}

TEST_F(StripTest, SetsVolumeAndDurationAtItsNarrowPlaces)
{
    ClickAt(In(1, 296, 2));
    EXPECT_EQ(tune.Steps[1].Volume, 114);
    EXPECT_EQ(edits, 1);
    ClickAt(In(1, 292, 29));
    EXPECT_EQ(tune.Steps[1].Duration, 200);
    EXPECT_EQ(edits, 2);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
}

TEST_F(StripTest, PlaysOnlyBesideItsPlacesAndForTheRightButton)
{
    ClickAt(In(1, 296));
    EXPECT_EQ(Played(), 601);
    ClickAt(In(2, 296, 2), Qt::RightButton);
    EXPECT_EQ(Played(), 602);
    EXPECT_EQ(tune.Steps[2].Volume, 100);
    EXPECT_EQ(edits, 0);
}

TEST_F(IconTest, OpensTheChooserWithItsBeatAndTakesTheChosenOne)
{
    SaveWaveFile(CountingWave(700), Shared().UserBeats / "Drum.wav");
    tune.Steps[4].StepBeat.Name.clear();
    chosenBeat = "Drum";
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot, std::vector<std::string>{"B2"});
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "Drum");
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "B3");
    EXPECT_EQ(tune.Steps[4].StepBeat.Name, "Drum") << "a later step without a beat";
    EXPECT_FALSE(tune.Steps[4].StepWaveValid);
    EXPECT_EQ(edits, 1);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(IconTest, ChangesNothingWhenTheChooserIsCancelled)
{
    ClickAt(In(2, 100));
    EXPECT_EQ(chooserGot.size(), 1U);
    EXPECT_EQ(edits, 0);
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(IconTest, IsPushedInWhileTheChooserIsOpenAndRaisedBehindIt)
{
    QImage pressed;
    whileChoosing = [&] { pressed = Drawn(); };
    ClickAt(In(2, 100));
    const FrameEdges frame = IconFrame(2, kStepsLeftAtStart);
    EXPECT_EQ(pressed.pixelColor(frame.left, frame.top + 9), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(pressed.pixelColor(frame.right, frame.top + 9), QColor(Qt::white));
    EXPECT_NE(pressed.pixelColor(frame.left + 9, kIconTop), QColor(3, 0, 0)) << "a pixel lower";
    const QImage after = Drawn();
    EXPECT_EQ(after.pixelColor(frame.left, frame.top + 9), QColor(Qt::white));
    EXPECT_EQ(after.pixelColor(frame.right, frame.top + 9), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(after.pixelColor(frame.left + 9, kIconTop), QColor(3, 0, 0)) << "the default picture";
}

TEST_F(ChangeAllBtnTest, GivesAllStepsTheChosenBeat)
{
    SaveWaveFile(CountingWave(700), Shared().UserBeats / "Drum.wav");
    chosenBeat = "Drum";
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(chooserGot, std::vector<std::string>{""});
    for (std::int32_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(At(tune.Steps, i).StepBeat.Name, "Drum");
        EXPECT_FALSE(At(tune.Steps, i).StepWaveValid);
    }
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_EQ(edits, 1);
}

TEST_F(ChangeAllBtnTest, ChangesNothingWithoutAChoice)
{
    Click(editor, "ChangeAllBtn");
    chosenBeat = "";
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(chooserGot.size(), 2U);
    EXPECT_EQ(edits, 0);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "B1");
}

TEST_F(ChangeAllBtnTest, AsksForStepsFirst)
{
    ShowTuneOf(0);
    std::string words;
    WithNextForm([&words](BandedForm& form) {
        words = form.findChild<QLabel*>(QStringLiteral("NoteLbl"))->text().toStdString();
        Click(form, "OkBtn");
    });
    Click(editor, "ChangeAllBtn");
    EXPECT_EQ(words, "Set the number of steps and try.");
    EXPECT_TRUE(chooserGot.empty());
}

using StepCommandsTest = StepEditorTest;

TEST_F(StepCommandsTest, ShowsAnEditBeforeItPlays)
{
    QWidget parent;
    TunFramPic surface(&parent);
    EditorPlays plays(&surface);
    std::vector<std::string> seen;
    StepCommands commands(surface, plays, [&] { seen.push_back(HasPlayed() ? "drawn late" : "drawn"); });
    QObject::connect(&commands, &StepCommands::TuneEdited, &parent, [&seen] { seen.emplace_back("edited"); });
    commands.Do({.act = StepAct::ToggleLamp, .step = 3});
    EXPECT_EQ(seen, (std::vector<std::string>{"edited", "drawn"}));
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_TRUE(HasPlayed());
}

TEST_F(StepCommandsTest, LeavesMenusAndTheFocusToTheEditor)
{
    QWidget parent;
    TunFramPic surface(&parent);
    EditorPlays plays(&surface);
    int drawn = 0;
    StepCommands commands(surface, plays, [&drawn] { ++drawn; });
    for (const StepAct act : {StepAct::None, StepAct::OpenMenu, StepAct::WalkTo})
        commands.Do({.act = act, .step = 1});
    EXPECT_EQ(drawn, 0);
    EXPECT_FALSE(HasPlayed());
    EXPECT_FALSE(commands.StretchBar(5, 10)) << "the tune has no such step";
}

} // namespace
} // namespace sprout
