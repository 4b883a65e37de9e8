// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackCanvas.h"

#include <gmock/gmock.h>

#include <QPaintEvent>
#include <QPainter>

#include "main_window/CanvasFixture.h"
#include "ui/Artwork.h"
#include "ui/Look.h"
#include "ui/Palette.h"

namespace sprout {
namespace {

using testing::Each;
using testing::ElementsAre;

class TrackCanvasTest : public CanvasFixture {};

/// Collects the regions that are redrawn on a widget.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) : widget(watched)
    {
        static_cast<void>(widget.grab()); // labels do their layout when they are first drawn
        DrawNow();
        widget.installEventFilter(this);
    }

    /// What was drawn since the last call, including what is still pending.
    QRegion Drawn()
    {
        DrawNow();
        return std::exchange(drawn, QRegion());
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            drawn += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    void DrawNow()
    {
        QEvent request(QEvent::UpdateRequest);
        QApplication::sendEvent(widget.window(), &request);
    }

    QWidget& widget;
    QRegion drawn;
};

bool HasColourIn(const QImage& image, const QRect& place, const QColor& colour)
{
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.valid(x, y) && image.pixelColor(x, y) == colour)
                return true;
    return false;
}

/// The bounding box of the pixels for which `isInk` is true.
template <class IsInk>
QRect InkIn(const QRect& place, IsInk isInk)
{
    QRect box;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (isInk(x, y))
                box |= QRect(x, y, 1, 1);
    return box;
}

/// The box of a text whose line begins at `at`.
QRect InkOf(const QString& text, QPoint at, const QFont& font)
{
    QImage page(600, 400, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setFont(font);
    painter.setPen(kBark);
    painter.drawText(QPointF(at.x(), at.y() + QFontMetricsF(font).ascent()), text);
    painter.end();
    return InkIn(page.rect(), [&page](int x, int y) { return page.pixelColor(x, y) == kBark; });
}

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

TEST_F(TrackCanvasTest, HasAMeadowBelowFewTracksAndNoneBehindMany)
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

TEST_F(TrackCanvasTest, GivesTrack9Tile10Track10Tile1AndTrack11Tile2)
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

TEST_F(TrackCanvasTest, PaintsAudioTracksWithTile0OnTheirOwnBackground)
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

TEST_F(TrackCanvasTest, ShowsOneCellOfALongCycleWithItsFirstLineAndTheOddEndLine)
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

TEST_F(TrackCanvasTest, MarksTheCyclesOfARunWithTicksAndEndsAWholeOneInsideIt)
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

TEST_F(TrackCanvasTest, AsksForPaintOnATrackWithoutAnyAlsoBesideTheView)
{
    const QRect words(10, RowY(1) + 6, 300, 30);
    EXPECT_TRUE(HasColourIn(Shown(Pic()), words, kBark));
    PaintCells(1, 900, 900);
    EXPECT_FALSE(HasColourIn(Shown(Pic()), words, kBark));
    EXPECT_TRUE(HasColourIn(Shown(Pic()), words.translated(0, 46), kBark));
}

TEST_F(TrackCanvasTest, ShowsBusyCellsInGroupsOfEightInTwoPictures)
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

TEST_F(TrackCanvasTest, LabelsTheSecondsUpTo480AtHalfTheTempo)
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

TEST_F(TrackCanvasTest, WritesTheWordsOfATrackWithoutPaintAtTheirPlace)
{
    const QImage shown = Shown(Pic());
    const QRect row(0, RowY(1) + 2, kPicWidth, 42);
    EXPECT_EQ(
        InkIn(row, [&shown](int x, int y) { return shown.pixelColor(x, y) == kBark; }),
        InkOf(QStringLiteral("Please paint on this track to play with others."), QPoint(10, RowY(1) + 6), LabelFont()));
}

TEST_F(TrackCanvasTest, DrawsNothingThroughTheWordsOfATrackWithoutPaint)
{
    const QColor seedling(0xE9, 0xDA, 0xB2);
    const int textEnd =
        10 +
        QFontMetrics(LabelFont()).horizontalAdvance(QStringLiteral("Please paint on this track to play with others."));
    const QImage shown = Shown(Pic());
    EXPECT_FALSE(HasColourIn(shown, QRect(0, RowY(1), textEnd, 42), seedling));
    EXPECT_TRUE(HasColourIn(shown, QRect(textEnd, RowY(1), kPicWidth - textEnd, 42), seedling));
}

TEST_F(TrackCanvasTest, WritesTheNumberOfATrackAheadOfItsPicture)
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

TEST_F(TrackCanvasTest, LaysThePictureOfTheTimeBandFivePixelsToTheLeft)
{
    Song().Tempo = 0;                          // no seconds
    canvas->resize(140 + 3900 + 18, 300 + 18); // so wide that the end of the song is visible
    QImage band(3900, 17, QImage::Format_RGB32);
    band.fill(kPaper);
    QPainter(&band).drawPixmap(-5, 2, Artwork(QStringLiteral("pictures/TimeSlide"), QSize(3850, 15), 1));
    EXPECT_EQ(Shown(Pic()).copy(band.rect()), band);
}

TEST_F(TrackCanvasTest, StandsTheSecondsOnTheFootOfTheBand)
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

TEST_F(TrackCanvasTest, DrawsTheStripOfAMusicTrack)
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

TEST_F(TrackCanvasTest, DrawsTheRecordingPictureForAnAudioTrack)
{
    TrackOf(1).TrackType = 1;
    canvas->DrawTrackOne(1);
    EXPECT_TRUE(HasColourIn(Shown(Strip()), QRect(24, RowY(1) + 7, 32, 32), kCoral));
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

TEST_F(TrackCanvasTest, SetsTheScrollBarsByTheRowsAndCells)
{
    EXPECT_FALSE(Scroll("TrackVScroll").isEnabled());
    EXPECT_EQ(Scroll("TrackVScroll").minimum(), 1);
    EXPECT_EQ(Scroll("TrackHScroll").minimum(), 1);
    EXPECT_EQ(Scroll("TrackHScroll").maximum(), 1280 - 200 + 10);
    SetTracks(4); // six rows fit, but three of them are kept free
    EXPECT_FALSE(Scroll("TrackVScroll").isEnabled());
    SetTracks(5);
    EXPECT_TRUE(Scroll("TrackVScroll").isEnabled());
    EXPECT_EQ(Scroll("TrackVScroll").maximum(), 2);
    SetTracks(40);
    EXPECT_EQ(Scroll("TrackVScroll").maximum(), 37);
}

TEST_F(TrackCanvasTest, GoesBackToTheFirstTrackWhereTheBarIsDisabled)
{
    SetTracks(40);
    Scroll("TrackVScroll").setValue(30);
    EXPECT_EQ(canvas->View().FirstTrack, 30);
    SetTracks(10);
    EXPECT_EQ(canvas->View().FirstTrack, 7);
    EXPECT_EQ(Scroll("TrackVScroll").value(), 7);
    SetTracks(2);
    EXPECT_EQ(canvas->View().FirstTrack, 1);
    EXPECT_EQ(Scroll("TrackVScroll").value(), 1);
}

TEST_F(TrackCanvasTest, PutsTheAddButtonsBelowTheLastRow)
{
    const auto expectTop = [this](int top) {
        EXPECT_EQ(Part("TrackAddBtn").geometry().topLeft().y(), top);
        EXPECT_EQ(Part("TrackAddRecBtn").pos(), Part("TrackAddBtn").pos() + QPoint(55, 0));
        EXPECT_EQ(Part("TrackTopLbl").y(), top + 50);
    };
    EXPECT_EQ(Part("TrackAddBtn").size(), QSize(48, 48));
    EXPECT_EQ(Part("TrackAddRecBtn").size(), QSize(48, 48));
    EXPECT_TRUE(IsShown("TrackAddBtn"));
    EXPECT_TRUE(IsShown("TrackAddRecBtn"));
    expectTop(2 * 46 + 30);
    SetTracks(5);
    expectTop(5 * 46 + 30);
    Scroll("TrackVScroll").setValue(2);
    expectTop(4 * 46 + 30);
}

TEST_F(TrackCanvasTest, AddsTracksByItsButtons)
{
    statusLbl.setText(QStringLiteral("old"));
    QTest::mouseClick(&Part("TrackAddBtn"), Qt::LeftButton);
    EXPECT_EQ(statusLbl.text(), QString());
    QTest::keyClick(&Part("TrackAddRecBtn"), Qt::Key_Return);
    EXPECT_THAT(asked, ElementsAre("TrackAddBtn", "TrackAddRecBtn"));
}

TEST_F(TrackCanvasTest, PlacesTheMarkersOfThePlayPosition)
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

} // namespace
} // namespace sprout
