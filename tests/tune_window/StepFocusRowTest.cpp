// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepFocusRow.h"

#include <QAbstractButton>
#include <QAccessible>

#include "tune_window/BeatNames.h"
#include "tune_window/StepEditorKeyboardTest.h"

namespace sprout {
namespace {

using StepFocusRowTest = StepEditorKeyboardTest;

TEST_F(StepFocusRowTest, TabStopsAtOneStepAndArrowsWalkTheOthersIntoView)
{
    ShowTuneOf(64);
    StepNos().setFocus();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    for (std::int32_t step = 1; step <= 64; ++step) {
        ASSERT_EQ(FocusedStep(), step);
        const QRect place = StepButton(step).geometry();
        EXPECT_GE(place.left(), 0) << "it is scrolled into view";
        EXPECT_LE(place.right(), Surface().width());
        Press(step, Qt::Key_Right);
    }
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget()->objectName(), QStringLiteral("ChangeAllBtn"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(FocusedStep(), 64) << "it is the step that was left";
    QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(window.focusWidget(), &StepNos());
}

TEST_F(StepFocusRowTest, HomeAndEndWalkToTheFirstAndTheLastStep)
{
    ShowTuneOf(64);
    StepButton(3).setFocus();
    Press(3, Qt::Key_End);
    EXPECT_EQ(FocusedStep(), 64);
    Press(64, Qt::Key_Home);
    EXPECT_EQ(FocusedStep(), 1);
}

TEST_F(StepFocusRowTest, StepsThatAreAddedAreReachedAndTabStaysWithATuneThatIsShorter)
{
    ShowTuneOf(2);
    ShowTuneOf(6);
    StepButton(2).setFocus();
    Press(2, Qt::Key_Right);
    EXPECT_EQ(FocusedStep(), 3);
    Press(3, Qt::Key_End);
    StepNos().setFocus();
    ShowTuneOf(2);
    EXPECT_EQ(editor.findChild<QWidget*>(QStringLiteral("Step3")), nullptr);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(FocusedStep(), 2);
}

TEST_F(StepFocusRowTest, ATuneOfAnyLengthHasNoMoreThan256StepsForTheKeyboard)
{
    ShowTuneOf(5000);
    EXPECT_TRUE(editor.findChild<QWidget*>(QStringLiteral("Step256")));
    EXPECT_FALSE(editor.findChild<QWidget*>(QStringLiteral("Step257")));
    Press(256, Qt::Key_Right);
    Scroll().setValue(Scroll().maximum());
    ClickAt(QPoint(StepLeft(5000, StepsLeftAt(Scroll().value())) + 10, 141 + 3));
    EXPECT_EQ(tune.Steps[5000].PitchShift, 11);
    ShowTuneOf(3);
    EXPECT_FALSE(editor.findChild<QWidget*>(QStringLiteral("Step4")));
}

TEST_F(StepFocusRowTest, LeftAndRightWalkTheSteps)
{
    StepButton(2).setFocus();
    Press(2, Qt::Key_Right);
    EXPECT_EQ(FocusedStep(), 3);
    Press(3, Qt::Key_Left);
    Press(2, Qt::Key_Left);
    EXPECT_EQ(FocusedStep(), 1);
    Press(1, Qt::Key_Left);
    EXPECT_EQ(FocusedStep(), 1);
    StepButton(4).setFocus();
    Press(4, Qt::Key_Right);
    EXPECT_EQ(FocusedStep(), 4);
}

TEST_F(StepFocusRowTest, AScreenReaderHearsEachStep)
{
    tune.Steps[1].StepBeat.Name = "P_Piano High";
    tune.Steps[1].PitchShift = 4;
    editor.UpdateThisTune();
    QAccessibleInterface* const first = QAccessible::queryAccessibleInterface(&StepButton(1));
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text(QAccessible::Name), QStringLiteral("Step 1, on, Piano High, pitch 4"));
    EXPECT_EQ(first->role(), QAccessible::CheckBox);
    EXPECT_TRUE(first->state().checked);
    QAccessibleInterface* const third = QAccessible::queryAccessibleInterface(&StepButton(3));
    EXPECT_EQ(third->text(QAccessible::Name), QStringLiteral("Step 3, off"));
    EXPECT_FALSE(third->state().checked);
    EXPECT_FALSE(Find<QComboBox>("StepNosCmb").accessibleName().isEmpty());
    EXPECT_FALSE(Find<QScrollBar>("TunFramHScroll").accessibleName().isEmpty());
}

TEST_F(StepFocusRowTest, AScreenReaderCanToggleAStep)
{
    dynamic_cast<QAbstractButton&>(StepButton(3)).click();
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(StepButton(3)).isChecked());
    EXPECT_EQ(edits, 1);
}

TEST_F(StepFocusRowTest, MakesAsManyStepsAsTheTuneHasAndReportsWhatHappensToThem)
{
    QWidget surface;
    QWidget before(&surface);
    QWidget after(&surface);
    StepFocusRow row(&surface, &before, &after);
    BeatNames names;
    row.ShowTune(tune, names, 8);
    EXPECT_EQ(row.LastStep(), 4);
    std::string seen;
    QObject::connect(&row, &StepFocusRow::KeyPressed, &surface,
                     [&seen](std::int32_t step, QKeyEvent*) { seen += "key " + std::to_string(step) + "|"; });
    QObject::connect(&row, &StepFocusRow::Clicked, &surface,
                     [&seen](std::int32_t step) { seen += "click " + std::to_string(step) + "|"; });
    auto& third = *surface.findChild<QAbstractButton*>(QStringLiteral("Step3"));
    QTest::keyClick(&third, Qt::Key_P);
    third.click();
    EXPECT_EQ(seen, "key 3|click 3|");
    tune.StepCount = 2;
    row.ShowTune(tune, names, 8);
    EXPECT_EQ(row.LastStep(), 2);
    EXPECT_FALSE(surface.findChild<QWidget*>(QStringLiteral("Step3")));
}

} // namespace
} // namespace sprout
