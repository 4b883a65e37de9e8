// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepEditorTest.h"

#include <QMouseEvent>

namespace sprout {
namespace {

using LampTest = StepEditorTest;
using IconTest = StepEditorTest;
using PointerTest = StepEditorTest;

constexpr std::int32_t kLeadInFrames = 33075;

TEST_F(LampTest, TogglesItsStepAndPlaysTheTuneBehindALeadIn)
{
    ClickAt(In(3, 30));
    EXPECT_EQ(tune.Steps[3].OnPos, 1);
    EXPECT_EQ(edits, 1);
    EXPECT_TRUE(tune.TuneWaveValid) << "rendered for the play";
    EXPECT_EQ(Played(), tune.TuneWave.Length + kLeadInFrames);
    EXPECT_EQ(editorDisplay.status, "Playing Tune");
    EXPECT_TRUE(Find<QTimer>("PlayPosTimer").isActive());
    ClickAt(In(3, 30));
    EXPECT_EQ(tune.Steps[3].OnPos, 0);
}

TEST_F(LampTest, ReturnsTheEditorToStep1)
{
    ShowTuneOf(64);
    Scroll().setValue(351);
    ClickAt(QPoint(8 - 351 + 35 * 12 + 10, 30));
    EXPECT_EQ(tune.Steps[13].OnPos, 0);
    EXPECT_EQ(Scroll().value(), 1);
    ClickAt(In(1, 30));
    EXPECT_EQ(tune.Steps[1].OnPos, 0);
}

TEST_F(LampTest, CountsBothClicksOfADoubleClick)
{
    ClickAt(In(1, 30));
    QMouseEvent second(QEvent::MouseButtonDblClick, In(1, 30), Surface().mapToGlobal(In(1, 30)), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Surface(), &second);
    EXPECT_EQ(edits, 2);
    EXPECT_EQ(tune.Steps[1].OnPos, 1);
}

TEST_F(LampTest, IsNotHitInTheGapBetweenTwoColumns)
{
    for (std::int32_t dx = 30; dx <= 35; ++dx)
        ClickAt(In(1, 30, dx));
    ClickAt(In(5, 30));
    EXPECT_EQ(edits, 0);
    EXPECT_FALSE(HasPlayed());
}

TEST_F(IconTest, DoesNothingWhenTheMouseIsLetGoElsewhere)
{
    const auto drag = [this](QPoint from, QPoint to) {
        QTest::mousePress(&Surface(), Qt::LeftButton, Qt::NoModifier, from);
        QTest::mouseRelease(&Surface(), Qt::LeftButton, Qt::NoModifier, to);
    };
    drag(In(1, 100), In(2, 100));
    drag(In(1, 100), In(1, 120));
    drag(In(1, 60), In(1, 100));
    EXPECT_TRUE(chooserGot.empty());
    drag(In(1, 82, 3), In(1, 108, 28));
    EXPECT_EQ(chooserGot.size(), 1U);
    drag(In(1, 30), In(1, 100));
    EXPECT_EQ(chooserGot.size(), 1U) << "the press on the icon before is forgotten";
}

TEST_F(IconTest, PlaysTheBeatItselfForTheRightButton)
{
    tune.Steps[1].StepBeat.Sound = CountingWave(900);
    ClickAt(In(1, 100), Qt::RightButton);
    EXPECT_EQ(Played(), 900);
    EXPECT_EQ(editorDisplay.status, "Playing Step");
    EXPECT_TRUE(chooserGot.empty());
}

TEST_F(PointerTest, ShowsTheHintOfWhatItRestsOn)
{
    MoveTo(In(1, 30));
    EXPECT_EQ(Hint(), "Click on a step to make in ON/OFF");
    MoveTo(In(1, 150, 3));
    EXPECT_EQ(Hint(), "Click on a piano key to change pitch");
    EXPECT_EQ(Surface().cursor().shape(), Qt::BitmapCursor);
    MoveTo(In(1, 100));
    EXPECT_EQ(Hint(), "Click on the icon to choose an instrument beat");
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("B1"));
    EXPECT_EQ(Surface().cursor().shape(), Qt::ArrowCursor);
    MoveTo(In(1, 60));
    EXPECT_EQ(Hint(), "");
    EXPECT_EQ(Surface().toolTip(), QString());
}

TEST_F(PointerTest, ShowsANameThatLooksLikeRichTextAsItIsWritten)
{
    tune.Steps[1].StepBeat.Name = "<b>Drum</b>";
    MoveTo(In(1, 100));
    EXPECT_EQ(Surface().toolTip(), QStringLiteral("<p>&lt;b&gt;Drum&lt;/b&gt;</p>"));
}

TEST_F(PointerTest, LosesItsToolTipWithTheNextDrawing)
{
    MoveTo(In(1, 100));
    editor.UpdateThisTune();
    EXPECT_EQ(Surface().toolTip(), QString());
}

} // namespace
} // namespace sprout
