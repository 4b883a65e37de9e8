// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackPic.h"

#include "main_window/CanvasFixture.h"
#include "main_window/CanvasPixels.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"

namespace sprout {
namespace {

class TrackPicTest : public CanvasFixture {};

TEST_F(TrackPicTest, HasAMeadowBelowFewTracksAndNoneBehindMany)
{
    const auto hasMeadow = [this] {
        return ColourAt(Pic(), 300, kPicHeight - 1) != kPaper && ColourAt(Pic(), 590, kPicHeight - 1) != kPaper;
    };
    EXPECT_TRUE(hasMeadow());
    EXPECT_EQ(ColourAt(Pic(), 300, kPicHeight - 81), kPaper);
    SetTracks(4);
    canvas->DrawTracksAll();
    EXPECT_FALSE(hasMeadow());
}

TEST_F(TrackPicTest, GivesTrack9Tile10Track10Tile1AndTrack11Tile2)
{
    SetTracks(20);
    for (const std::int32_t track : {9, 10, 11})
        PaintCells(track, 1, 64);
    Scroll("TrackVScroll").setValue(9);
    const QImage shown = Shown(Pic());
    const auto expectTile = [&shown](std::int32_t row, int number) {
        const QImage tile = Artwork(QStringLiteral("tiles/Tile%1").arg(number), QSize(64, 32), 1)
                                .toImage()
                                .convertToFormat(QImage::Format_RGB32);
        // Inside the black marks: without the edges and the starts of the 16-cell cycles.
        const QRect inside(2, 6, 44, 20);
        EXPECT_EQ(shown.copy(inside.translated(64, RowY(row) + 7)), tile.copy(inside)) << "row " << row;
    };
    expectTile(1, 10);
    expectTile(2, 1);
    expectTile(3, 2);
}

TEST_F(TrackPicTest, PaintsAudioTracksWithTile0OnTheirOwnBackground)
{
    TrackOf(2).TrackType = 1;
    TrackOf(2).TrackAudio.Length = 44100 * 60;
    PaintCells(2, 1, 40);
    const QImage tile = Artwork(QStringLiteral("tiles/Tile0"), QSize(64, 32), 1).toImage();
    const QImage background = Artwork(QStringLiteral("pictures/TrackBlankPic1"), QSize(64, 42), 1).toImage();
    EXPECT_EQ(ColourAt(Pic(), 28, RowY(2) + 7 + 10), tile.pixelColor(28, 10));
    EXPECT_EQ(ColourAt(Pic(), 192 + 30, RowY(2) + 2 + 30), background.pixelColor(30, 30));
    EXPECT_EQ(ColourAt(Strip(), 90, RowY(2) + 2 + 5), background.pixelColor(26, 5));
}

TEST_F(TrackPicTest, ShowsOneCellOfALongCycleWithItsFirstLineAndTheOddEndLine)
{
    PaintCells(1, 10, 10);
    QImage shown = Shown(Pic());
    const int top = RowY(1) + 7;
    for (const int y : {top, top + 16, top + 32}) {
        EXPECT_EQ(shown.pixelColor(27, y), QColor(Qt::black)) << y;
        EXPECT_EQ(shown.pixelColor(30, y), QColor(Qt::black)) << y;
    }
    EXPECT_EQ(shown.pixelColor(28, top), QColor(Qt::black));
    EXPECT_NE(shown.pixelColor(28, top + 16), QColor(Qt::black));
    EXPECT_EQ(shown.pixelColor(29, top + 32), QColor(Qt::black));
    // Scrolled by four cells, the run moves and its end line does not.
    Scroll("TrackHScroll").setValue(5);
    shown = Shown(Pic());
    EXPECT_EQ(shown.pixelColor(15, top + 16), QColor(Qt::black));
    EXPECT_NE(shown.pixelColor(18, top + 16), QColor(Qt::black));
    EXPECT_EQ(shown.pixelColor(30, top + 16), QColor(Qt::black));
}

TEST_F(TrackPicTest, MarksTheCyclesOfARunWithTicksAndEndsAWholeOneInsideIt)
{
    PaintCells(1, 3, 34); // two cycles of 16 steps
    const QImage shown = Shown(Pic());
    const int top = RowY(1) + 7;
    const int tick = CellX(19);
    for (const int y : {top + 4, top + 28})
        EXPECT_EQ(shown.pixelColor(tick, y), QColor(Qt::black)) << y;
    for (const int y : {top + 5, top + 27})
        EXPECT_NE(shown.pixelColor(tick, y), QColor(Qt::black)) << y;
    EXPECT_EQ(shown.pixelColor(CellX(35) - 1, top + 16), QColor(Qt::black));
    EXPECT_NE(shown.pixelColor(CellX(35), top + 16), QColor(Qt::black));
}

TEST_F(TrackPicTest, AsksForPaintOnATrackWithoutAnyAlsoBesideTheView)
{
    const QRect words(10, RowY(1) + 6, 300, 30);
    EXPECT_TRUE(HasColourIn(Shown(Pic()), words, kBark));
    PaintCells(1, 900, 900);
    EXPECT_FALSE(HasColourIn(Shown(Pic()), words, kBark));
    EXPECT_TRUE(HasColourIn(Shown(Pic()), words.translated(0, 46), kBark));
}

TEST_F(TrackPicTest, ShowsBusyCellsInGroupsOfEightInTwoPictures)
{
    PaintCells(1, 1, 8);
    PaintCells(2, 9, 12);
    const QImage shown = Shown(Pic());
    const auto foot = [](int picture) {
        return Artwork(QStringLiteral("pictures/BusyMark%1").arg(picture), QSize(3, 17), 1).toImage().pixelColor(1, 15);
    };
    EXPECT_EQ(shown.pixelColor(CellX(8) + 1, 15), foot(1));
    EXPECT_EQ(shown.pixelColor(CellX(9) + 1, 15), foot(0));
    EXPECT_EQ(shown.pixelColor(CellX(12) + 2, 15), foot(0));
    EXPECT_NE(shown.pixelColor(CellX(13) + 1, 15), foot(0));
    EXPECT_NE(shown.pixelColor(CellX(13) + 1, 15), foot(1));
    EXPECT_EQ(shown.pixelColor(CellX(8) + 1, 17), kPaper);
}

TEST_F(TrackPicTest, LabelsTheSecondsUpTo480AtHalfTheTempo)
{
    Scroll("TrackHScroll").setValue(Scroll("TrackHScroll").maximum());
    const std::int32_t firstCell = canvas->View().FirstCell;
    // Where cell 1281 would be: 240 seconds at the reference tempo.
    const QRect label(CellX(1281, firstCell), 0, 24, 14);
    const QImage at240 = Shown(Pic()).copy(label);
    Song().Tempo = 160;
    canvas->DrawTrackTop();
    EXPECT_TRUE(HasColourIn(Shown(Pic()), label, kBark));
    EXPECT_NE(Shown(Pic()).copy(label), at240);
}

TEST_F(TrackPicTest, WritesTheWordsOfATrackWithoutPaintAtTheirPlace)
{
    const QImage shown = Shown(Pic());
    const QRect row(0, RowY(1) + 2, kPicWidth, 42);
    EXPECT_EQ(
        InkIn(row, [&shown](int x, int y) { return shown.pixelColor(x, y) == kBark; }),
        InkOf(QStringLiteral("Please paint on this track to play with others."), QPoint(10, RowY(1) + 6), LabelFont()));
}

TEST_F(TrackPicTest, DrawsNothingThroughTheWordsOfATrackWithoutPaint)
{
    const QColor seedling(0xE9, 0xDA, 0xB2);
    const int textEnd =
        10 +
        QFontMetrics(LabelFont()).horizontalAdvance(QStringLiteral("Please paint on this track to play with others."));
    const QImage shown = Shown(Pic());
    EXPECT_FALSE(HasColourIn(shown, QRect(0, RowY(1), textEnd, 42), seedling));
    EXPECT_TRUE(HasColourIn(shown, QRect(textEnd, RowY(1), kPicWidth - textEnd, 42), seedling));
}

TEST_F(TrackPicTest, LaysThePictureOfTheTimeBandFivePixelsToTheLeft)
{
    Song().Tempo = 0;                          // no seconds
    canvas->resize(140 + 3900 + 18, 300 + 18); // so wide that the end of the song is visible
    QImage band(3900, 17, QImage::Format_RGB32);
    band.fill(kPaper);
    QPainter(&band).drawPixmap(-5, 2, Artwork(QStringLiteral("pictures/TimeSlide"), QSize(3850, 15), 1));
    EXPECT_EQ(Shown(Pic()).copy(band.rect()), band);
}

TEST_F(TrackPicTest, StandsTheSecondsOnTheFootOfTheBand)
{
    const QImage with = Shown(Pic());
    Song().Tempo = 0; // none
    canvas->DrawTrackTop();
    const QImage without = Shown(Pic());
    const QRect aroundFive(72, 0, 40, 17); // five seconds are 80 pixels after the start
    const int top = 17 - QFontMetrics(HintFont()).height();
    EXPECT_EQ(InkIn(aroundFive,
                    [&](int x, int y) {
                        return with.pixelColor(x, y) == kBark && with.pixelColor(x, y) != without.pixelColor(x, y);
                    }),
              InkOf(QStringLiteral("5"), QPoint(80, top), HintFont()));
}

TEST_F(TrackPicTest, PlacesTheMarkersOfThePlayPosition)
{
    EXPECT_FALSE(IsShown("PlayPosImg0"));
    EXPECT_FALSE(IsShown("PlayPosImg1"));
    canvas->ShowPlayIndicator({42, std::nullopt});
    EXPECT_EQ(Part("PlayPosImg0").geometry(), QRect(42, 0, 3, kPicHeight));
    EXPECT_TRUE(IsShown("PlayPosImg0"));
    EXPECT_EQ(ColourAt(Pic(), 43, 200), kSun);
    canvas->ShowPlayIndicator({std::nullopt, PlayIndicator::OnRow{60, RowY(2) + 7}});
    EXPECT_FALSE(IsShown("PlayPosImg0"));
    EXPECT_EQ(Part("PlayPosImg1").geometry(), QRect(60, RowY(2) + 7, 3, 32));
    EXPECT_EQ(ColourAt(Pic(), 61, RowY(2) + 20), kSun);
    canvas->ShowPlayIndicator({});
    EXPECT_FALSE(IsShown("PlayPosImg1"));
}

} // namespace
} // namespace sprout
