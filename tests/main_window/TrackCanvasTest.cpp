// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCanvas.h"

#include "main_window/CanvasFixture.h"
#include "main_window/CanvasPixels.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

class TrackCanvasTest : public CanvasFixture {};

TEST_F(TrackCanvasTest, PutsStripSurfaceAndBarsSideBySide)
{
    EXPECT_EQ(canvas->objectName(), QStringLiteral("TrackFramePic"));
    EXPECT_EQ(Strip().geometry(), QRect(0, 0, 140, kPicHeight));
    EXPECT_EQ(Pic().geometry(), QRect(140, 0, kPicWidth, kPicHeight));
    EXPECT_EQ(Part("TrackVScroll").geometry(), QRect(740, 0, 18, kPicHeight));
    EXPECT_EQ(Part("TrackHScroll").geometry(), QRect(140, kPicHeight, kPicWidth, 18));
    canvas->resize(400, 218);
    EXPECT_EQ(Pic().geometry(), QRect(140, 0, 242, 200));
    EXPECT_EQ(Part("PlayPosImg0").height(), 200);
    EXPECT_EQ(canvas->View().trackPicWidth, 242);
}

TEST_F(TrackCanvasTest, DrawsNothingForATrackAboveTheFirst)
{
    SetTracks(20);
    Scroll("TrackVScroll").setValue(3);
    const QImage before = Shown(Pic());
    At(TrackOf(2).Painted, 5) = 1;
    canvas->DrawTrackOne(2);
    EXPECT_EQ(Shown(Pic()), before);
    At(TrackOf(3).Painted, 5) = 1;
    canvas->DrawTrackOne(3);
    EXPECT_NE(Shown(Pic()), before);
}

TEST_F(TrackCanvasTest, DrawsAChangedPictureAnewAndTheSameOneNot)
{
    PaintWatch strip(Strip());
    PaintWatch pic(Pic());
    canvas->DrawTrackOne(1);
    canvas->DrawTrackTop();
    EXPECT_TRUE(strip.Drawn().isEmpty());
    EXPECT_TRUE(pic.Drawn().isEmpty());
    TrackOf(1).TrackTune.Picture = Shared().BlankStarPic;
    canvas->DrawTrackOne(1);
    EXPECT_EQ(strip.Drawn().boundingRect(), QRect(0, RowY(1) + 2, 140, 42));
    EXPECT_TRUE(pic.Drawn().isEmpty());
    EXPECT_EQ(ColourAt(Strip(), 24 + 10, RowY(1) + 7 + 10), ToImage(Shared().BlankStarPic).pixelColor(10, 10));
}

TEST_F(TrackCanvasTest, DrawsOneRowAndTheBandForAStroke)
{
    SetTracks(6);
    Press(InRow(30, 2));
    PaintWatch pic(Pic());
    MoveTo(InRow(60, 2));
    const QRegion drawn = pic.Drawn();
    EXPECT_TRUE(QRegion(QRect(0, 0, kPicWidth, 17))
                    .united(QRect(0, RowY(2) + 2, kPicWidth, 42))
                    .contains(drawn.boundingRect().topLeft()));
    EXPECT_TRUE(
        drawn.subtracted(QRect(0, 0, kPicWidth, 17)).subtracted(QRect(0, RowY(2) + 2, kPicWidth, 42)).isEmpty());
    EXPECT_FALSE(drawn.isEmpty());
}

TEST_F(TrackCanvasTest, MovesCursorAndMarkersWithoutDrawingTheRowsAnew)
{
    MoveTo(InRow(30, 1));
    PaintWatch pic(Pic());
    MoveTo(InRow(60, 1));
    for (const QRect& part : pic.Drawn())
        EXPECT_LE(part.width(), 3);
    canvas->ShowPlayIndicator({30, std::nullopt});
    static_cast<void>(pic.Drawn());
    canvas->ShowPlayIndicator({90, std::nullopt});
    for (const QRect& part : pic.Drawn())
        EXPECT_LE(part.width(), 3);
}

TEST_F(TrackCanvasTest, AWholeRedrawHidesTheCellCursor)
{
    Pic().setFocus();
    MoveTo(InRow(30, 1));
    ASSERT_TRUE(IsShown("CellCursor"));
    ASSERT_TRUE(IsShown("CellOutline"));
    canvas->DrawTracksAll();
    EXPECT_FALSE(IsShown("CellCursor"));
    EXPECT_FALSE(IsShown("CellOutline"));
}

TEST_F(TrackCanvasTest, ShowsAfterAStrokeWhatAWholeRedrawShows)
{
    PaintCells(1, 4, 30);
    PaintCells(2, 8, 9);
    Press(InRow(150, 1));
    for (const int x : {200, 290, 240, 120, 90})
        MoveTo(InRow(x, 1));
    Release(InRow(90, 1));
    const QImage shown = Shown(Pic());
    canvas->DrawTracksAll();
    MoveTo(InRow(90, 1)); // redrawing hides the cell cursor
    EXPECT_EQ(Shown(Pic()), shown);
}

TEST_F(TrackCanvasTest, SurvivesSizesWithoutRoomAndSongsWithoutTracks)
{
    canvas->resize(20, 10);
    EXPECT_EQ(Pic().width(), 0);
    SetTracks(0);
    canvas->DrawTrackOne(1);
    canvas->resize(500, 300);
    EXPECT_EQ(canvas->View().FirstTrack, 1);
    EXPECT_EQ(ColourAt(Pic(), 30, RowY(1) + 20), kPaper);
}

TEST_F(TrackCanvasTest, ASpaceBarHeldDownPlaysOnce)
{
    QTest::keyClick(&Pic(), Qt::Key_Space);
    RepeatKey(*canvas, Qt::Key_Space);
    EXPECT_EQ(asked, std::vector<std::string>{"PlayOrStop"});
}

} // namespace
} // namespace sprout
