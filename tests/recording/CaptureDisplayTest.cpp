// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/CaptureDisplay.h"

#include "recording/RecdFrmFixture.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

class CaptureDisplayTest : public RecdFrmFixture {};

TEST_F(CaptureDisplayTest, ShowsARecordingWhileItRuns)
{
    Record([this] {
        EXPECT_EQ(Text("Dur_Lbl"), "0.0");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "");
        Tell(CaptureState::Recording, 0);
        EXPECT_EQ(Text("Dur_Lbl"), "00");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Now Recording");
        Tell(CaptureState::Recording, 7);
        EXPECT_EQ(Text("Dur_Lbl"), "01.40");
        Tell(CaptureState::Paused, 7);
        EXPECT_EQ(Text("Dur_Lbl"), "01.40 [P]");
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Paused");
        capture.status.SilentSeconds = 2;
        Tell(CaptureState::Paused, 7);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Recording Paused - I cannot hear you");
    });
    EXPECT_FALSE(Control<QTimer>("CaptureTimer").isActive());
    EXPECT_FALSE(Control<QTimer>("AnimTimer").isActive());
}

TEST_F(CaptureDisplayTest, ShowsTheWholeSecondTimeFromTheBeginning)
{
    Record([this] { Tell(CaptureState::Recording, 50); });
    capture.status = {};
    Record([this] {
        EXPECT_EQ(Text("Dur_Lbl"), "0.0");
        Tell(CaptureState::Recording, 0);
        EXPECT_EQ(Text("Rec_Stat_Lbl"), "Now Recording");
    });
}

TEST_F(CaptureDisplayTest, HasTheMetersBesideTheTextsAndTheProgressBelow)
{
    EXPECT_EQ(Place("Dur_Lbl"), QRect(160, 18, 306, 56));
    EXPECT_EQ(Place("Rec_Stat_Lbl"), QRect(160, 80, 306, 52));
    EXPECT_EQ(Place("RecShowLPic"), QRect(476, 12, 48, 128));
    EXPECT_EQ(Place("RecShowRPic"), QRect(536, 12, 48, 128));
    EXPECT_EQ(Place("RecProgressPic"), QRect(16, 154, 568, 18));
}

TEST_F(CaptureDisplayTest, ShowsTheLongestStatusInTwoLines)
{
    Record([this] {
        Tell(CaptureState::Stopped, 1, CaptureEnd::TooLong);
        const auto& status = Control<QLabel>("Rec_Stat_Lbl");
        ASSERT_EQ(Text("Rec_Stat_Lbl"), "Recording Done - it cannot become any longer");
        EXPECT_GT(status.fontMetrics().horizontalAdvance(status.text()), status.width());
        const int height = status.heightForWidth(status.width());
        EXPECT_GE(height, 2 * status.fontMetrics().height());
        EXPECT_LE(height, status.height());
    });
}

TEST_F(CaptureDisplayTest, DrawsTheLevelsOfBothChannels)
{
    const int top = 2; // below the frame
    const int bottom = Control<QWidget>("RecShowLPic").height() - 3;
    Record([this, top, bottom] {
        for (const char* meter : {"RecShowLPic", "RecShowRPic"})
            EXPECT_EQ(Pixel(meter, 20, bottom), kSand) << "an empty bar";
        capture.peaks = {32767, 0};
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Pixel("RecShowLPic", 20, 6), ColourOf(0x0000FF)) << "a bar of full height";
        EXPECT_EQ(Pixel("RecShowRPic", 20, bottom), kSand);
        capture.peaks = {0, 16384};
        Tell(CaptureState::Paused, 1);
        EXPECT_EQ(Pixel("RecShowRPic", 20, bottom), ColourOf(0xFF0000));
        EXPECT_EQ(Pixel("RecShowRPic", 20, 68), ColourOf(0xFF0000));
        EXPECT_EQ(Pixel("RecShowRPic", 20, 62), kSand);
        EXPECT_EQ(Pixel("RecShowRPic", 20, 64), kBark) << "the loudest of the last second";
        EXPECT_EQ(Pixel("RecShowLPic", 20, top), kBark) << "the loudest of the last second";
        EXPECT_EQ(Pixel("RecShowLPic", 20, 6), kSand);
    });
}

TEST_F(CaptureDisplayTest, MarksAnOverloadInTheMeterItBelongsTo)
{
    Record([this] {
        capture.peaks = {10, 10, false, true};
        Tell(CaptureState::Recording, 1);
        EXPECT_EQ(Pixel("RecShowLPic", 24, 28), kSand);
        EXPECT_NE(Pixel("RecShowRPic", 24, 28), kSand);
        Tell(CaptureState::Stopped, 1, CaptureEnd::DiskFull);
        EXPECT_EQ(Pixel("RecShowRPic", 24, 28), kSand);
    });
}

TEST_F(CaptureDisplayTest, FillsTheProgressUpToThreeMinutes)
{
    const int width = Control<QWidget>("RecProgressPic").width();
    Record([this, width] {
        Tell(CaptureState::Recording, 450); // 90 s
        EXPECT_EQ(Pixel("RecProgressPic", width / 2 - 1, 9), kLeaf);
        EXPECT_EQ(Pixel("RecProgressPic", width / 2, 9), kSand);
        Tell(CaptureState::Recording, 9000);
        EXPECT_EQ(Pixel("RecProgressPic", width - 3, 9), kLeaf);
        EXPECT_TRUE(form->isVisible()) << "there is no limit";
    });
}

} // namespace
} // namespace sprout
