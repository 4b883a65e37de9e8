// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingTake.h"

#include "recording/RecdFrmFixture.h"

namespace sprout {
namespace {

class RecordingTakeTest : public RecdFrmFixture {};

TEST_F(RecordingTakeTest, DeletesTheFilesThatWereNotLoaded)
{
    {
        RecordingTake take(capture);
        ASSERT_TRUE(take.Start());
        take.Stop();
        EXPECT_TRUE(std::filesystem::exists(capture.files.first));
        EXPECT_TRUE(std::filesystem::exists(capture.files.second));
    }
    EXPECT_EQ(capture.calls.back(), "Release");
    EXPECT_FALSE(std::filesystem::exists(capture.files.first));
    EXPECT_FALSE(std::filesystem::exists(capture.files.second));
}

TEST_F(RecordingTakeTest, LeavesTheFilesToACaptureThatWasNotStopped)
{
    class KeepingCapture : public FakeCapture {
    public:
        void Release() override { calls.emplace_back("Release"); }
    } keeping;
    {
        RecordingTake take(keeping);
        ASSERT_TRUE(take.Start());
    }
    EXPECT_TRUE(std::filesystem::exists(keeping.files.first));
}

TEST_F(RecordingTakeTest, HasNoFilesWhereTheCaptureDoesNotStart)
{
    capture.starts = false;
    RecordingTake take(capture);
    EXPECT_FALSE(take.Start());
    take.Stop();
    Recd().RecdLength = 0;
    take.Load();
    EXPECT_EQ(Recd().RecdLength, 0);
}

TEST_F(RecordingTakeTest, BringsTheRecordingToTheSharedArrays)
{
    capture.leftSamples = {1, 2, 3};
    capture.rightSamples = {4, 5, 6};
    ShowHint(Words::AsIs("A hint"));
    Record([this] {
        Tell(CaptureState::Recording, 1);
        Click(*form, "RecFinishBtn");
        EXPECT_FALSE(form->isVisible());
    });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
    EXPECT_EQ(TakeRecordedWave().WavR[2], 6);
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(services.screen.hourglassesShown, 1);
    EXPECT_EQ(services.screen.hourglasses, 0);
    EXPECT_FALSE(std::filesystem::exists(capture.files.first));
    EXPECT_FALSE(std::filesystem::exists(capture.files.second));
}

TEST_F(RecordingTakeTest, FinishesWithNothingWhereNothingWasCaptured)
{
    Recd().RecdLength = 77;
    Record([this] { Click(*form, "RecFinishBtn"); });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 0) << "the length of an earlier recording is not this one's";
}

TEST_F(RecordingTakeTest, FinishesWhatACaptureLeftThatEndedByItself)
{
    capture.leftSamples = {1, 2, 3};
    Record([this] {
        Tell(CaptureState::Recording, 3);
        Tell(CaptureState::Stopped, 3, CaptureEnd::DiskFull);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Done - the disk is full");
        Click(*form, "RecFinishBtn");
    });
    EXPECT_TRUE(form->Ok);
    EXPECT_EQ(Recd().RecdLength, 2);
}

TEST_F(RecordingTakeTest, StaysOpenWhereTheRecordingCannotBeReadAndLeavesNoVoiceBehind)
{
    class UnreadableCapture : public FakeCapture {
    public:
        void Stop() override
        {
            isKeeping = false; // from here on the files belong to the window
            std::filesystem::remove(files.first);
            std::filesystem::create_symlink("/proc/self/mem", files.first);
        }
    };
    UnreadableCapture unreadable;
    TheServices().capture = &unreadable;
    form = std::make_unique<Recd_Frm>(nullptr);
    Record([this, &unreadable] {
        Click(*form, "RecFinishBtn");
        EXPECT_TRUE(form->isVisible());
        EXPECT_EQ(services.screen.hourglasses, 0);
        EXPECT_TRUE(std::filesystem::exists(unreadable.files.second));
    });
    EXPECT_EQ(services.messages.shown.size(), 1U);
    EXPECT_FALSE(form->Ok);
    form.reset();
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(unreadable.files.first)));
    EXPECT_FALSE(std::filesystem::exists(unreadable.files.second));
}

} // namespace
} // namespace sprout
