// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>

#include <memory>

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

class StepEditorKeyboardTest : public StepEditorTest {
protected:
    void Press(std::int32_t step, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&StepButton(step), key, modifiers);
    }

    /// The number of the step that has the focus, or 0.
    [[nodiscard]] std::int32_t FocusedStep() const
    {
        const QWidget* const focus = window.focusWidget();
        for (std::int32_t step = 1; step <= tune.StepCount; ++step)
            if (focus == &StepButton(step))
                return step;
        return 0;
    }
};

TEST_F(StepEditorKeyboardTest, TabStopsAtOneStepAndArrowsWalkTheOthersIntoView)
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

TEST_F(StepEditorKeyboardTest, HomeAndEndWalkToTheFirstAndTheLastStep)
{
    ShowTuneOf(64);
    StepButton(3).setFocus();
    Press(3, Qt::Key_End);
    EXPECT_EQ(FocusedStep(), 64);
    Press(64, Qt::Key_Home);
    EXPECT_EQ(FocusedStep(), 1);
}

TEST_F(StepEditorKeyboardTest, StepsThatAreAddedAreReachedAndTabStaysWithATuneThatIsShorter)
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

TEST_F(StepEditorKeyboardTest, ATuneOfAnyLengthHasNoMoreThan256StepsForTheKeyboard)
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

TEST_F(StepEditorKeyboardTest, LeftAndRightWalkTheSteps)
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

TEST_F(StepEditorKeyboardTest, UpAndDownMoveThePitchByAKey)
{
    Press(1, Qt::Key_Up);
    EXPECT_EQ(tune.Steps[1].PitchShift, 1);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
    EXPECT_EQ(edits, 1);
    Press(1, Qt::Key_Down);
    Press(1, Qt::Key_Down);
    EXPECT_EQ(tune.Steps[1].PitchShift, -1);
    Press(3, Qt::Key_Up);
    EXPECT_EQ(tune.Steps[3].PitchShift, 0) << "step 3 is off";
}

TEST_F(StepEditorKeyboardTest, SpaceTogglesTheLampAndKeepsTheStepInView)
{
    ShowTuneOf(64);
    StepButton(60).setFocus(Qt::TabFocusReason);
    const int scrolled = Scroll().value();
    Press(60, Qt::Key_Space);
    EXPECT_EQ(tune.Steps[60].OnPos, 0);
    EXPECT_EQ(editorDisplay.tunesShown, 1);
    EXPECT_EQ(FocusedStep(), 60);
    EXPECT_EQ(Scroll().value(), scrolled);
}

TEST_F(StepEditorKeyboardTest, AKeyThatIsHeldDownEditsOnceAndOnlyArrowsRepeat)
{
    const auto hold = [this](Qt::Key key) {
        for (const bool again : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), again);
            QApplication::sendEvent(&StepButton(1), &press);
        }
    };
    hold(Qt::Key_Space);
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
    EXPECT_EQ(edits, 1);
    hold(Qt::Key_Delete);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "B2");
    EXPECT_EQ(edits, 2);
    hold(Qt::Key_Up);
    EXPECT_EQ(tune.Steps[1].PitchShift, 3);
}

TEST_F(StepEditorKeyboardTest, EnterOpensTheChooserOfAnOnStep)
{
    Press(2, Qt::Key_Return);
    EXPECT_EQ(chooserGot, std::vector<std::string>{"B2"});
    Press(2, Qt::Key_Enter);
    EXPECT_EQ(chooserGot.size(), 2U);
    Press(3, Qt::Key_Return);
    EXPECT_EQ(chooserGot.size(), 2U);
}

TEST_F(StepEditorKeyboardTest, DeleteAndInsertDoWhatTheMenuDoes)
{
    Press(1, Qt::Key_Delete);
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "B2");
    EXPECT_EQ(tune.Steps[4].OnPos, 0);
    EXPECT_EQ(edits, 1);
    Press(1, Qt::Key_Insert);
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
    EXPECT_EQ(tune.Steps[2].OnPos, 1);
    EXPECT_EQ(edits, 2);
    tune.Steps[4].OnPos = 1;
    std::string title;
    WithNextForm([&title](BandedForm& form) {
        title = form.windowTitle().toStdString();
        Click(form, "OkBtn");
    });
    Press(1, Qt::Key_Insert);
    EXPECT_EQ(title, "Insert Step Failed!");
    EXPECT_EQ(edits, 2);
}

TEST_F(StepEditorKeyboardTest, ShiftWithLeftOrRightDrawsTheBar)
{
    Press(1, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(tune.Steps[1].Duration, 105);
    EXPECT_EQ(Played(), 601);
    Press(1, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(tune.Steps[1].Duration, 100);
    EXPECT_EQ(edits, 0) << "as with the mouse";
    Press(3, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(tune.Steps[3].Duration, 100) << "step 3 is off";
}

TEST_F(StepEditorKeyboardTest, PAndBPlayTheStepAndItsBeat)
{
    Press(2, Qt::Key_P);
    EXPECT_EQ(editorDisplay.status, "Playing Beat");
    Press(2, Qt::Key_B);
    EXPECT_EQ(editorDisplay.status, "Playing Step");
    EXPECT_EQ(edits, 0);
}

TEST_F(StepEditorKeyboardTest, TheMenuKeyOpensTheMenuOfTheStep)
{
    std::string enabled;
    QTimer::singleShot(0, &editor, [&] {
        auto& menu = Find<QMenu>("StepPopMnu");
        for (const QAction* const action : menu.actions())
            enabled += action->isSeparator() ? '|' : action->isEnabled() ? 'y' : 'n';
        menu.close();
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&StepButton(3), &event);
    EXPECT_EQ(enabled, "yy|nn|yy");
}

TEST_F(StepEditorKeyboardTest, AScreenReaderHearsEachStep)
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

TEST_F(StepEditorKeyboardTest, AScreenReaderCanToggleAStep)
{
    dynamic_cast<QAbstractButton&>(StepButton(3)).click();
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(StepButton(3)).isChecked());
    EXPECT_EQ(edits, 1);
}

} // namespace
} // namespace sprout
