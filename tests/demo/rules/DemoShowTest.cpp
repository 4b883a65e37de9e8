// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoShow.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace sprout {
namespace {

using testing::ElementsAre;

constexpr DemoPoint kInside{15, 15};
constexpr DemoPoint kOutside{50, 50};

/// Demos of slides with the active rectangle (10, 10) to (20, 20) in pictures of 100 x 80 pixels.
class DemoShowTest : public testing::Test {
protected:
    static DemoSlide Slide(DemoAction action, double seconds = 0)
    {
        return {"a.bmp", {10, 10, 20, 20}, action, seconds, ""};
    }

    /// Starts a demo at its first slide.
    DemoOrders Start(const std::vector<DemoSlide>& slides)
    {
        show = DemoShow(slides);
        return Show(0);
    }

    DemoOrders Show(std::int32_t index)
    {
        return show.ShowDemoSlide(index, [this](const DemoSlide& slide) {
            loaded.push_back(slide.Picture);
            return slide.Picture == "missing" ? std::nullopt : std::optional(BoxSize{100, 80});
        });
    }
    DemoOrders ShowNext() { return Show(show.SlideIndex()); }

    static DemoOrders Orders(bool stopPlayer, bool playSound, std::int32_t interval)
    {
        return {stopPlayer, playSound, interval > 0 ? DemoTimerChange::On : DemoTimerChange::Off, interval};
    }

    DemoShow show;
    std::vector<std::string> loaded;
};

TEST_F(DemoShowTest, StopsThePlayerAndPlaysTheSoundOfAClickSlide)
{
    EXPECT_EQ(Start({Slide(DemoAction::Click, 2), Slide(DemoAction::Click)}), Orders(true, true, 2000));
    EXPECT_FALSE(show.IsLinkShown());
    EXPECT_FALSE(show.IsOver());
    EXPECT_EQ(show.DragSteps(), 1);
    EXPECT_THAT(loaded, ElementsAre("a.bmp"));
}

TEST_F(DemoShowTest, LetsASoundGoOnBesideATimedSlide)
{
    EXPECT_EQ(Start({Slide(DemoAction::Wait, 3)}), Orders(false, true, 3000));
}

TEST_F(DemoShowTest, SwitchesTheTimerOffWhereASlideHasNoTime)
{
    EXPECT_EQ(Start({Slide(DemoAction::Click, 0)}).Timer, DemoTimerChange::Off);
    EXPECT_EQ(Start({Slide(DemoAction::Wait, -1)}).Timer, DemoTimerChange::Off);
}

TEST_F(DemoShowTest, GoesOnByAClickInTheRectangle)
{
    Start({Slide(DemoAction::Click), Slide(DemoAction::Click)});
    EXPECT_FALSE(show.Press(kOutside));
    EXPECT_EQ(show.SlideIndex(), 0);
    EXPECT_TRUE(show.Press(kInside));
    EXPECT_EQ(show.SlideIndex(), 1);
    ShowNext();
    EXPECT_TRUE(show.IsLinkShown());
}

TEST_F(DemoShowTest, TakesTheCornersOfTheRectangleAsInside)
{
    for (const DemoPoint corner : {DemoPoint{10, 10}, {20, 20}}) {
        Start({Slide(DemoAction::Click), Slide(DemoAction::Click)});
        EXPECT_TRUE(show.Press(corner));
    }
    for (const DemoPoint beside : {DemoPoint{9, 10}, {21, 20}}) {
        Start({Slide(DemoAction::Click), Slide(DemoAction::Click)});
        EXPECT_FALSE(show.Press(beside));
    }
}

TEST_F(DemoShowTest, GoesOnByAClickOnATimedSlideToo)
{
    Start({Slide(DemoAction::Wait, 5), Slide(DemoAction::Click)});
    EXPECT_TRUE(show.Press(kInside));
}

TEST_F(DemoShowTest, GoesOnByAMoveInTheRectangleOfAHeldDrag)
{
    Start({Slide(DemoAction::Drag), Slide(DemoAction::Drag), Slide(DemoAction::Click)});
    EXPECT_FALSE(show.Move(kInside)) << "nothing is held";
    EXPECT_FALSE(show.Press(kOutside));
    EXPECT_FALSE(show.Move(kInside)) << "the press was beside the rectangle";
    EXPECT_FALSE(show.Press(kInside));
    EXPECT_TRUE(show.DragStarted());
    EXPECT_FALSE(show.Move(kOutside));
    EXPECT_TRUE(show.Move(kInside));
    EXPECT_EQ(show.SlideIndex(), 1);
    EXPECT_EQ(show.DragSteps(), 2);
}

TEST_F(DemoShowTest, DoesNotDragAfterTheButtonIsReleased)
{
    Start({Slide(DemoAction::Drag), Slide(DemoAction::Click)});
    EXPECT_FALSE(show.Press(kInside));
    show.Release();
    EXPECT_FALSE(show.Move(kInside));
    EXPECT_EQ(show.SlideIndex(), 0);
}

TEST_F(DemoShowTest, DragsThroughSeveralSlidesWithOnePress)
{
    Start({Slide(DemoAction::Drag), Slide(DemoAction::Drag, 1), Slide(DemoAction::Click)});
    EXPECT_FALSE(show.Press(kInside));
    EXPECT_TRUE(show.Move(kInside));
    EXPECT_EQ(ShowNext(), Orders(false, true, 1000)) << "the sound of the drag goes on";
    EXPECT_TRUE(show.Move(kInside));
    EXPECT_EQ(show.DragSteps(), 3);
    ShowNext();
    EXPECT_FALSE(show.Move(kInside)) << "the last slide wants a click";
}

TEST_F(DemoShowTest, MovesADragThatWasLetGoOnByTime)
{
    Start({Slide(DemoAction::Drag, 1), Slide(DemoAction::Drag, 2), Slide(DemoAction::Drag, 0)});
    EXPECT_FALSE(show.TimerStaysOn());
    EXPECT_TRUE(show.Tick());
    EXPECT_EQ(show.DragSteps(), 2);
    EXPECT_EQ(ShowNext(), Orders(true, false, 2000)) << "no other sound on the way";
    EXPECT_TRUE(show.Tick());
    EXPECT_EQ(ShowNext(), Orders(true, false, 0));
}

TEST_F(DemoShowTest, BeginsTheNextDragAnewAfterAClickSlideHasTimedOut)
{
    Start({Slide(DemoAction::Click, 1), Slide(DemoAction::Drag, 1), Slide(DemoAction::Drag, 1)});
    EXPECT_FALSE(show.TimerStaysOn());
    EXPECT_TRUE(show.Tick());
    EXPECT_EQ(show.DragSteps(), 0);
    EXPECT_EQ(ShowNext(), Orders(true, true, 1000));
    EXPECT_TRUE(show.Tick());
    EXPECT_EQ(show.DragSteps(), 1);
    EXPECT_EQ(ShowNext(), Orders(true, true, 1000));
}

TEST_F(DemoShowTest, LeavesTheTimerOfATimedSlideRunning)
{
    Start({Slide(DemoAction::Wait, 1), Slide(DemoAction::Wait, 1)});
    EXPECT_TRUE(show.TimerStaysOn());
    EXPECT_TRUE(show.Tick());
    EXPECT_EQ(show.SlideIndex(), 1);
    EXPECT_EQ(show.DragSteps(), 1);
}

TEST_F(DemoShowTest, ShowsTheLinkFromTheLastSlideOn)
{
    Start({Slide(DemoAction::Click), Slide(DemoAction::Click)});
    EXPECT_FALSE(show.IsLinkShown());
    Show(1);
    EXPECT_TRUE(show.IsLinkShown());
    EXPECT_FALSE(show.IsOver());
}

TEST_F(DemoShowTest, EndsBehindTheLastSlide)
{
    Start({Slide(DemoAction::Click, 5)});
    EXPECT_TRUE(show.Press(kInside));
    EXPECT_EQ(ShowNext(), Orders(true, false, 0));
    EXPECT_TRUE(show.IsOver());
    EXPECT_TRUE(show.IsLinkShown());
    EXPECT_THAT(loaded, ElementsAre("a.bmp")) << "nothing else is shown";
    EXPECT_FALSE(show.Press(kInside));
    EXPECT_FALSE(show.PressKey());
    EXPECT_FALSE(show.Move(kInside));
    EXPECT_FALSE(show.Tick());
    EXPECT_FALSE(show.StepForward());
}

TEST_F(DemoShowTest, IsOverAtOnceWithoutSlides)
{
    EXPECT_EQ(Start({}), Orders(true, false, 0));
    EXPECT_TRUE(show.IsOver());
    EXPECT_TRUE(show.IsLinkShown());
    EXPECT_FALSE(show.StepBack());
}

TEST_F(DemoShowTest, LeavesAllAsItWasWhereAPictureCannotBeLoaded)
{
    DemoSlide missing = Slide(DemoAction::Wait, 7);
    missing.Picture = "missing";
    Start({Slide(DemoAction::Click, 2), missing, Slide(DemoAction::Click)});
    EXPECT_TRUE(show.Press(kInside));
    EXPECT_EQ(ShowNext(), DemoOrders());
    EXPECT_EQ(show.Slide().Seconds, 7) << "its fields count";
    EXPECT_TRUE(show.TimerStaysOn());
    EXPECT_TRUE(show.GoesOnAnywhere());
    EXPECT_FALSE(show.IsRectangleAwaited());
    EXPECT_TRUE(show.Press(kOutside));
    EXPECT_EQ(show.SlideIndex(), 2);
    ShowNext();
    EXPECT_FALSE(show.GoesOnAnywhere());
    EXPECT_FALSE(show.Press(kOutside));
}

TEST_F(DemoShowTest, LeavesTheLinkHiddenWhereTheLastPictureCannotBeLoaded)
{
    DemoSlide missing = Slide(DemoAction::Click);
    missing.Picture = "missing";
    Start({missing});
    EXPECT_FALSE(show.IsLinkShown());
    EXPECT_TRUE(show.Press(kOutside));
    ShowNext();
    EXPECT_TRUE(show.IsLinkShown());
}

TEST_F(DemoShowTest, GoesOnAnywhereWhereNothingElseWould)
{
    DemoSlide unreachable = Slide(DemoAction::Click);
    unreachable.Rectangle = {100, 0, 120, 20}; // beside the picture
    Start({unreachable, Slide(DemoAction::Click)});
    EXPECT_TRUE(show.GoesOnAnywhere());
    EXPECT_TRUE(show.Press(kOutside));
    unreachable.Seconds = 1;
    Start({unreachable, Slide(DemoAction::Click)});
    EXPECT_FALSE(show.GoesOnAnywhere()) << "time goes on";
    EXPECT_FALSE(show.Press(kOutside));
}

TEST_F(DemoShowTest, AwaitsTheRectangleOfAClickOrADrag)
{
    Start({Slide(DemoAction::Click)});
    EXPECT_TRUE(show.IsRectangleAwaited());
    Start({Slide(DemoAction::Drag)});
    EXPECT_TRUE(show.IsRectangleAwaited());
    Start({Slide(DemoAction::Wait)});
    EXPECT_FALSE(show.IsRectangleAwaited());
    Show(1);
    EXPECT_FALSE(show.IsRectangleAwaited());
}

TEST_F(DemoShowTest, TakesAKeyForTheClick)
{
    Start({Slide(DemoAction::Click), Slide(DemoAction::Wait), Slide(DemoAction::Click)});
    EXPECT_TRUE(show.PressKey());
    EXPECT_EQ(show.SlideIndex(), 1);
    ShowNext();
    EXPECT_TRUE(show.PressKey());
    EXPECT_EQ(show.DragSteps(), 1);
}

TEST_F(DemoShowTest, TakesAKeyForThePressAndTheMoveOfADrag)
{
    Start({Slide(DemoAction::Drag), Slide(DemoAction::Drag, 1), Slide(DemoAction::Click)});
    EXPECT_TRUE(show.PressKey());
    EXPECT_TRUE(show.DragStarted());
    EXPECT_EQ(show.DragSteps(), 2);
    EXPECT_EQ(ShowNext(), Orders(false, true, 1000));
    show.Release();
    EXPECT_FALSE(show.DragStarted());
}

TEST_F(DemoShowTest, StepsBackAndForth)
{
    Start({Slide(DemoAction::Drag, 1), Slide(DemoAction::Drag, 1)});
    EXPECT_FALSE(show.StepBack());
    EXPECT_TRUE(show.Tick());
    ShowNext();
    EXPECT_EQ(show.DragSteps(), 2);
    EXPECT_TRUE(show.StepBack());
    EXPECT_EQ(show.SlideIndex(), 0);
    EXPECT_EQ(ShowNext(), Orders(true, true, 1000)) << "it begins anew";
    EXPECT_FALSE(show.IsLinkShown());
    EXPECT_TRUE(show.StepForward());
    ShowNext();
    EXPECT_TRUE(show.StepForward());
    ShowNext();
    EXPECT_TRUE(show.IsOver());
    EXPECT_TRUE(show.StepBack());
    EXPECT_EQ(show.SlideIndex(), 0) << "the end still shows the last slide";
}

} // namespace
} // namespace sprout
