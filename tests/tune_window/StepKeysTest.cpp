// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include "tune_window/StepEditorKeyboardTest.h"

namespace sprout {
namespace {

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

std::optional<StepCommand> Asked(Qt::Key key, bool isOn = true, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                                 bool again = false)
{
    const QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), again);
    return CommandOfKey(event, 3, isOn, 16);
}

TEST(CommandOfKey, WalksToTheNeighboursAndTheEnds)
{
    EXPECT_EQ(Asked(Qt::Key_Left), (StepCommand{.act = StepAct::WalkTo, .step = 2}));
    EXPECT_EQ(Asked(Qt::Key_Right, false), (StepCommand{.act = StepAct::WalkTo, .step = 4}));
    EXPECT_EQ(Asked(Qt::Key_Home), (StepCommand{.act = StepAct::WalkTo, .step = 1}));
    EXPECT_EQ(Asked(Qt::Key_End), (StepCommand{.act = StepAct::WalkTo, .step = 16}));
}

TEST(CommandOfKey, AsksAnOffStepOnlyForItsLampAndItsMenu)
{
    EXPECT_EQ(Asked(Qt::Key_Space, false), (StepCommand{.act = StepAct::ToggleLamp, .step = 3}));
    EXPECT_EQ(Asked(Qt::Key_Insert, false),
              (StepCommand{.act = StepAct::UseMenu, .step = 3, .item = StepMoveMnu::InsertStep}));
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter, Qt::Key_P, Qt::Key_B})
        EXPECT_EQ(Asked(key, false), StepCommand()) << key;
    EXPECT_EQ(Asked(Qt::Key_Right, false, Qt::ShiftModifier), StepCommand());
    EXPECT_EQ(Asked(Qt::Key_Left, true, Qt::ShiftModifier),
              (StepCommand{.act = StepAct::StretchBar, .step = 3, .amount = -1}));
    EXPECT_EQ(Asked(Qt::Key_Down), (StepCommand{.act = StepAct::MovePitch, .step = 3, .amount = -1}));
}

TEST(CommandOfKey, LeavesOtherKeysToTheWindowAndRepeatsOnlyArrows)
{
    EXPECT_EQ(Asked(Qt::Key_F1), std::nullopt);
    EXPECT_EQ(Asked(Qt::Key_A, false), std::nullopt);
    EXPECT_EQ(Asked(Qt::Key_Space, true, Qt::NoModifier, true), StepCommand());
    EXPECT_EQ(Asked(Qt::Key_Up, true, Qt::NoModifier, true),
              (StepCommand{.act = StepAct::MovePitch, .step = 3, .amount = 1}));
}

} // namespace
} // namespace sprout
