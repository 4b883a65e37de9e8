// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/EditorPlays.h"

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using PlayMarksTest = StepEditorTest;

constexpr std::int32_t kLeadInFrames = 33075;

/// Makes the play-position timer tick.
void Tick(const StepEditor& editor)
{
    auto* const timer = editor.findChild<QTimer*>(QStringLiteral("PlayPosTimer"));
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
}

constexpr std::int32_t kCellFrames = 8269; // at the reference tempo

TEST_F(PlayMarksTest, FollowTheStepInPlay)
{
    editor.PlayCurrentTune(0);
    const QWidget& mark = Find<QWidget>("PlayingStepImg");
    const QWidget& onMark = Find<QWidget>("PlayingOnStepImg");
    EXPECT_TRUE(mark.isHidden());
    sound.place = {kCellFrames, true};
    Tick(editor);
    EXPECT_FALSE(mark.isHidden());
    EXPECT_EQ(mark.pos(), QPoint(8 + 35, 24));
    EXPECT_FALSE(onMark.isHidden());
    EXPECT_EQ(onMark.pos(), QPoint(8 + 35, 24));
    sound.place = {2 * kCellFrames, true};
    Tick(editor);
    EXPECT_EQ(mark.pos(), QPoint(8 + 70, 24));
    EXPECT_EQ(onMark.pos(), QPoint(8 + 35, 24)) << "step 3 is off";
}

TEST_F(PlayMarksTest, StayOnTheLastStepBehindTheCycle)
{
    editor.PlayCurrentTune(0);
    sound.place = {50 * kCellFrames, true};
    Tick(editor);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").pos(), QPoint(8 + 3 * 35, 24));
}

TEST_F(PlayMarksTest, CountTheLeadInAsSteps)
{
    editor.PlayCurrentTune(0.75F);
    sound.place = {kLeadInFrames, true};
    Tick(editor);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").pos(), QPoint(8 + 3 * 35, 24)) << "0.75 seconds are four steps";
}

TEST_F(PlayMarksTest, MoveWithTheScroll)
{
    ShowTuneOf(64);
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    Scroll().setValue(21);
    EXPECT_EQ(Find<QWidget>("PlayingStepImg").x(), 8 - 21 + 35);
    EXPECT_EQ(Find<QWidget>("PlayingOnStepImg").x(), 8 - 21 + 35);
}

TEST_F(PlayMarksTest, GoWithTheSound)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    sound.place = {0, false};
    Tick(editor);
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_TRUE(Find<QWidget>("PlayingOnStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
}

TEST_F(PlayMarksTest, GoBeforeAStepIsPlayed)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    ClickAt(In(2, 141 + 70, 25));
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
    EXPECT_TRUE(sound.place.Playing) << "the step's own sound";
}

TEST_F(PlayMarksTest, GoBeforeABeatIsPlayed)
{
    editor.PlayCurrentTune(0);
    sound.place = {kCellFrames, true};
    Tick(editor);
    ClickAt(In(1, 100), Qt::RightButton);
    EXPECT_EQ(editorDisplay.status, "Playing Step");
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
    EXPECT_FALSE(Find<QTimer>("PlayPosTimer").isActive());
}

TEST_F(PlayMarksTest, AreNotShownWithoutSteps)
{
    editor.PlayCurrentTune(0);
    ShowTuneOf(0);
    Tick(editor);
    EXPECT_TRUE(Find<QWidget>("PlayingStepImg").isHidden());
}

TEST_F(PlayMarksTest, StayWhereTheirStepsAreUntilTheyAreMoved)
{
    QWidget surface;
    EditorPlays plays(&surface);
    plays.PlacePlayMarks(50);
    plays.PlayTune(0);
    sound.place = {2 * kCellFrames, true};
    auto* const timer = surface.findChild<QTimer*>(QStringLiteral("PlayPosTimer"));
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
    const auto& mark = *surface.findChild<QWidget*>(QStringLiteral("PlayingStepImg"));
    EXPECT_EQ(mark.pos(), QPoint(50 + 2 * 35, 24));
    plays.PlacePlayMarks(8);
    EXPECT_EQ(mark.pos(), QPoint(8 + 2 * 35, 24));
    plays.HidePlayMarks();
    EXPECT_TRUE(mark.isHidden());
    EXPECT_FALSE(timer->isActive());
}

} // namespace
} // namespace sprout
