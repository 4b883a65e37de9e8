// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ButtonStates.h"

#include <gmock/gmock.h>

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ButtonStatesTest : public testing::Test {
protected:
    [[nodiscard]] ButtonFace Wanted(int button) const { return states.State(button).Wanted; }

    ButtonStates states;
    int play = states.AddButton("PlayAllBtn");
    int stop = states.AddButton("PlayStopBtn");
    int brush = states.AddButton("BrushBtn");
};

TEST_F(ButtonStatesTest, AreNumberedFrom1AndNotYetShown)
{
    EXPECT_EQ(play, 1);
    EXPECT_EQ(states.State(3).Name, "BrushBtn");
    EXPECT_EQ(states.State(1).Shown, ButtonFace::None);
    EXPECT_THAT(states.RefreshButtons(), ElementsAre(1, 2, 3));
    EXPECT_EQ(states.State(1).Shown, ButtonFace::Normal);
    EXPECT_THAT(states.RefreshButtons(), IsEmpty());
}

TEST_F(ButtonStatesTest, MovingFromOneToAnotherRaisesTheNewOneAlone)
{
    states.ButtonHover(play);
    states.ButtonHover(stop);
    EXPECT_EQ(Wanted(play), ButtonFace::Normal);
    EXPECT_EQ(Wanted(stop), ButtonFace::Raised);
}

TEST_F(ButtonStatesTest, PressAndReleaseGoFromPressedBackToRaised)
{
    states.ButtonHover(play);
    states.ButtonPress(play);
    EXPECT_EQ(Wanted(play), ButtonFace::Pressed);
    EXPECT_TRUE(states.ButtonDown());
    states.ButtonRelease(play);
    EXPECT_EQ(Wanted(play), ButtonFace::Raised);
    EXPECT_FALSE(states.ButtonDown());
}

TEST_F(ButtonStatesTest, AFaceStaysPressedWhileThePointerMoves)
{
    states.ButtonPress(play);
    states.ButtonHover(stop);
    EXPECT_EQ(Wanted(play), ButtonFace::Pressed);
    EXPECT_EQ(Wanted(stop), ButtonFace::Normal);
}

TEST_F(ButtonStatesTest, PressedOnKeepsItsFaceUnderHoverPressAndTimer)
{
    states.SetWanted(brush, ButtonFace::PressedOn);
    states.ButtonHover(brush);
    EXPECT_EQ(Wanted(brush), ButtonFace::PressedOn);
    states.ButtonPress(brush);
    EXPECT_EQ(Wanted(brush), ButtonFace::PressedOn);
    states.ButtonRelease(brush);
    states.ButtonsOff();
    EXPECT_EQ(Wanted(brush), ButtonFace::PressedOn);
    states.SetWanted(brush, ButtonFace::Normal);
    EXPECT_EQ(Wanted(brush), ButtonFace::Normal);
}

TEST_F(ButtonStatesTest, HoverOnAPressedOnButtonLowersTheOthers)
{
    states.SetWanted(brush, ButtonFace::PressedOn);
    states.ButtonHover(play);
    states.ButtonHover(brush);
    EXPECT_EQ(Wanted(play), ButtonFace::Normal);
}

TEST_F(ButtonStatesTest, ButtonsOffLowersWhatIsRaisedAndNothingElse)
{
    states.ButtonPress(stop);
    states.SetWanted(play, ButtonFace::Raised);
    states.ButtonsOff();
    EXPECT_EQ(Wanted(play), ButtonFace::Normal);
    EXPECT_EQ(Wanted(stop), ButtonFace::Pressed);
}

TEST_F(ButtonStatesTest, InitButtonsStartsAnew)
{
    states.SetWanted(brush, ButtonFace::PressedOn);
    static_cast<void>(states.RefreshButtons());
    states.InitButtons();
    EXPECT_EQ(Wanted(brush), ButtonFace::Normal);
    EXPECT_THAT(states.RefreshButtons(), ElementsAre(1, 2, 3));
}

} // namespace
} // namespace sprout
