// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/CaptureView.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

CaptureStatus Status(CaptureState state, std::int64_t pieces, std::int64_t blocks = 0)
{
    CaptureStatus status;
    status.State = state;
    status.Pieces = pieces;
    status.Blocks = blocks;
    return status;
}

CaptureStatus Silent(CaptureState state, std::int64_t pieces, double seconds)
{
    CaptureStatus status = Status(state, pieces);
    status.SilentSeconds = seconds;
    return status;
}

CaptureStatus Ended(CaptureEnd end, std::int64_t pieces)
{
    CaptureStatus status = Status(CaptureState::Stopped, pieces, 10);
    status.End = end;
    return status;
}

/// A view whose capture has started.
class CaptureViewTest : public testing::Test {
protected:
    CaptureViewTest() { view.Start(); }

    CaptureView view;
};

TEST_F(CaptureViewTest, IsBlankUntilTheFirstFrameIsKept)
{
    EXPECT_EQ(view.Duration(), "0.0");
    EXPECT_EQ(view.Status().English(), "");
    EXPECT_TRUE(view.Update(Status(CaptureState::Stopped, 3), {}));
    EXPECT_EQ(view.Status().English(), "");
    EXPECT_TRUE(view.IsKeeping());
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 4), {}));
    EXPECT_EQ(view.Status().English(), "Now Recording");
    EXPECT_EQ(view.Duration(), "00");
}

TEST_F(CaptureViewTest, ChangesNothingWhereNothingNewHasCome)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 10, 1), {100, 200}));
    EXPECT_FALSE(view.Update(Status(CaptureState::Recording, 10, 99), {300, 400}));
    EXPECT_EQ(view.Duration(), "00.20");
    EXPECT_EQ(view.Left().Peak, 100);
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 11, 1), {300, 400}));
    EXPECT_EQ(view.Left().Peak, 300);
    EXPECT_EQ(view.Right().Peak, 400);
    EXPECT_TRUE(view.Update(Status(CaptureState::Paused, 11, 1), {}));
}

TEST_F(CaptureViewTest, CountsBlocksOfAFifthOfASecond)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 1, 317), {}));
    EXPECT_FLOAT_EQ(view.Elapsed(), 63.4F);
    EXPECT_EQ(view.Duration(), "01:03.40");
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 2, 60'865), {}));
    EXPECT_EQ(view.Duration(), "3:22:53");
}

TEST_F(CaptureViewTest, TellsAPauseAndItsEnd)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 10, 5), {}));
    EXPECT_EQ(view.BarColour(), 0x0000FF);
    EXPECT_TRUE(view.Update(Status(CaptureState::Paused, 10, 5), {}));
    EXPECT_EQ(view.Duration(), "01 [P]");
    EXPECT_EQ(view.Status().English(), "Recording Paused");
    EXPECT_EQ(view.BarColour(), 0xFF0000);
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 11, 5), {}));
    EXPECT_EQ(view.Duration(), "01");
    EXPECT_EQ(view.Status().English(), "Now Recording");
}

TEST_F(CaptureViewTest, StopsWithoutTheMarkOfAPause)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Paused, 10, 5), {}));
    view.Stop();
    EXPECT_EQ(view.Duration(), "01");
    EXPECT_EQ(view.Status().English(), "Recording Done");
    EXPECT_FALSE(view.IsKeeping());
}

TEST_F(CaptureViewTest, TellsWhyACaptureEndedByItself)
{
    struct Reason {
        CaptureEnd end;
        const char* status;
    };
    for (const auto& [end, status] :
         {Reason{CaptureEnd::None, "Recording Done"}, Reason{CaptureEnd::DiskFull, "Recording Done - the disk is full"},
          Reason{CaptureEnd::MicrophoneGone, "Recording Done - the microphone is gone"},
          Reason{CaptureEnd::TooLong, "Recording Done - it cannot become any longer"}}) {
        CaptureView ending;
        ending.Start();
        EXPECT_TRUE(ending.Update(Status(CaptureState::Recording, 10), {}));
        EXPECT_TRUE(ending.Update(Ended(end, 10), {}));
        EXPECT_EQ(ending.Status().English(), status);
        EXPECT_FALSE(ending.IsKeeping());
        ending.Stop();
        EXPECT_EQ(ending.Status().English(), status);
    }
}

TEST_F(CaptureViewTest, TellsTheReasonAlsoWhereNoLookFellIntoTheRecording)
{
    EXPECT_TRUE(view.Update(Ended(CaptureEnd::DiskFull, 2), {}));
    EXPECT_EQ(view.Status().English(), "Recording Done - the disk is full");
}

TEST_F(CaptureViewTest, WondersAfterTwoSilentSeconds)
{
    EXPECT_TRUE(view.Update(Silent(CaptureState::Recording, 10, 1.9), {}));
    EXPECT_EQ(view.Status().English(), "Now Recording");
    EXPECT_TRUE(view.Update(Silent(CaptureState::Recording, 11, 2.0), {}));
    EXPECT_EQ(view.Status().English(), "Now Recording - I cannot hear you");
    EXPECT_TRUE(view.Update(Silent(CaptureState::Recording, 12, 0.02), {}));
    EXPECT_EQ(view.Status().English(), "Now Recording");
}

TEST_F(CaptureViewTest, WondersAlsoWhereNoPieceComesAnyMore)
{
    EXPECT_TRUE(view.Update(Silent(CaptureState::Paused, 10, 0.6), {}));
    EXPECT_FALSE(view.Update(Silent(CaptureState::Paused, 10, 1.8), {}));
    EXPECT_TRUE(view.Update(Silent(CaptureState::Paused, 10, 2.1), {}));
    EXPECT_EQ(view.Status().English(), "Recording Paused - I cannot hear you");
    EXPECT_FALSE(view.Update(Silent(CaptureState::Paused, 10, 2.2), {}));
}

TEST_F(CaptureViewTest, WondersNoMoreOnceItHasEnded)
{
    EXPECT_TRUE(view.Update(Silent(CaptureState::Recording, 10, 5), {}));
    CaptureStatus gone = Ended(CaptureEnd::MicrophoneGone, 10);
    gone.SilentSeconds = 5;
    EXPECT_TRUE(view.Update(gone, {}));
    EXPECT_EQ(view.Status().English(), "Recording Done - the microphone is gone");
}

TEST_F(CaptureViewTest, MarksTheLoudestOfTheLastSecond)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 10), {900, 100}));
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 30), {200, 400}));
    EXPECT_EQ(view.Left(), (MeterView{200, 900, false}));
    EXPECT_EQ(view.Right(), (MeterView{400, 400, false}));
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 60), {50, 50}));
    EXPECT_EQ(view.Left().Loudest, 200);
}

TEST_F(CaptureViewTest, KeepsTheMarkOfAnOverloadUntilTheCaptureEnds)
{
    EXPECT_TRUE(view.Update(Status(CaptureState::Recording, 10), {32767, 0, true, false}));
    EXPECT_TRUE(view.Left().Overloaded);
    EXPECT_FALSE(view.Right().Overloaded);
    EXPECT_TRUE(view.Update(Ended(CaptureEnd::DiskFull, 10), {32767, 0, true, false}));
    EXPECT_FALSE(view.Left().Overloaded);
    EXPECT_TRUE(view.Update(Ended(CaptureEnd::DiskFull, 11), {32767, 0, true, false}));
    EXPECT_FALSE(view.Left().Overloaded);
}

TEST(CaptureView, ShowsTheLevelBeforeAStartInBlueAndSaysNothing)
{
    CaptureView view;
    EXPECT_TRUE(view.Update(Silent(CaptureState::Stopped, 200, 4), {700, 800}));
    EXPECT_EQ(view.BarColour(), 0xFF0000);
    EXPECT_EQ(view.Left().Peak, 700);
    EXPECT_EQ(view.Status().English(), "");
    view.Stop();
    EXPECT_EQ(view.Status().English(), "") << "where nothing was started nothing is done";
}

} // namespace
} // namespace sprout
