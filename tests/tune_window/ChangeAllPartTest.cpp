// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ChangeAllPart.h"

#include <array>

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using ChangeAllPartTest = StepEditorTest;

TEST_F(ChangeAllPartTest, StandsBehindTheLastStepWhileAnyStepIsOn)
{
    constexpr std::array names{"ChangeAllBtn", "NoteInstrLbl", "NotePianoLbl"};
    for (const char* const name : names)
        EXPECT_FALSE(Find<QWidget>(name).isHidden()) << name;
    EXPECT_EQ(Find<QWidget>("ChangeAllBtn").pos(), QPoint(4 * 35 + 8 + 8, 75));
    for (TuneStep& step : tune.Steps)
        step.OnPos = 0;
    editor.UpdateThisTune();
    for (const char* const name : names)
        EXPECT_TRUE(Find<QWidget>(name).isHidden()) << name;
}

TEST_F(ChangeAllPartTest, ShowsItsHintThoughItLiesOnTheSurface)
{
    MoveTo(In(1, 30));
    QTest::mouseMove(&Find<QWidget>("ChangeAllBtn"), QPoint(20, 20));
    QTest::mouseMove(&Find<QWidget>("ChangeAllBtn"), QPoint(22, 20));
    EXPECT_EQ(Hint(), "Change All button, use it to choose one instrument for all steps");
}

TEST_F(ChangeAllPartTest, FollowsTheScrollAndReportsAClick)
{
    QWidget surface;
    surface.resize(740, 304);
    ChangeAllPart part(&surface);
    int clicked = 0;
    QObject::connect(&part, &ChangeAllPart::Clicked, &surface, [&clicked] { ++clicked; });
    part.ShowTune(tune, -20);
    EXPECT_EQ(part.ChangeAllBtn().pos(), QPoint(4 * 35 - 20 + 8, 75));
    EXPECT_FALSE(part.ChangeAllBtn().isHidden());
    Click(surface, "ChangeAllBtn");
    EXPECT_EQ(clicked, 1);
    EXPECT_TRUE(chooserGot.empty());
}

} // namespace
} // namespace sprout
