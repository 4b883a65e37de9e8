// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TitleRow.h"

#include "main_window/CanvasFixture.h"
#include "main_window/CanvasPixels.h"
#include "ui/look/Look.h"

namespace sprout {
namespace {

class TitleRowTest : public CanvasFixture {};

TEST_F(TitleRowTest, WritesTheNumberOfATrackAheadOfItsPicture)
{
    SetTracks(110);
    QFont small = ButtonFont();
    small.setPixelSize(12); // a third digit would overlap the picture
    const auto expectNumber = [this](std::int32_t track, int left, const QFont& font) {
        Scroll("TrackVScroll").setValue(track);
        const QImage shown = Shown(Strip());
        const QRect ahead(0, RowY(1) + 2, 24, 42);
        EXPECT_EQ(InkIn(ahead, [&shown](int x, int y) { return shown.pixelColor(x, y) == kBark; }),
                  InkOf(QString::number(track), QPoint(left, RowY(1) + 13), font))
            << track;
    };
    expectNumber(9, 6, ButtonFont());
    expectNumber(10, 2, ButtonFont());
    expectNumber(99, 2, ButtonFont());
    expectNumber(104, 2, small);
}

TEST_F(TitleRowTest, DrawsTheStripOfAMusicTrack)
{
    const QImage shown = Shown(Strip());
    const QImage picture = ToImage(Shared().BlankPic);
    const int top = RowY(1);
    EXPECT_EQ(shown.pixelColor(24 + 16, top + 7 + 16), picture.pixelColor(16, 16));
    const int left = picture.pixelColor(0, 16).red();
    EXPECT_EQ(shown.pixelColor(24, top + 7 + 16).red(), qRound(255 - (255 - left) * 0.8));
    EXPECT_TRUE(HasColourIn(shown, QRect(6, top + 13, 16, 28), kBark)); // the number
    EXPECT_TRUE(HasColourIn(shown, QRect(70, top + 15, 14, 16), kStone));
    EXPECT_TRUE(HasColourIn(shown, QRect(102, top + 7, 32, 32), kDeepLeaf));
    EXPECT_FALSE(HasColourIn(shown, QRect(86, top + 7, 15, 32), kDeepLeaf));
}

TEST_F(TitleRowTest, DrawsTheRecordingPictureForAnAudioTrack)
{
    TrackOf(1).TrackType = 1;
    canvas->DrawTrackOne(1);
    EXPECT_TRUE(HasColourIn(Shown(Strip()), QRect(24, RowY(1) + 7, 32, 32), kCoral));
}

} // namespace
} // namespace sprout
