// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/RowButtons.h"

#include "main_window/TitleStripFixture.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RowButtonsTest : public TitleStripFixture {};

TEST_F(RowButtonsTest, FloatsTheTuneButtonOverTheTunesPicture)
{
    EXPECT_THAT(Floating(), IsEmpty());
    for (const int x : {22, 56}) {
        Hover(x, RowY(1) + 20);
        EXPECT_THAT(Floating(), ElementsAre("TrackTuneBtn")) << x;
    }
    EXPECT_TRUE(canvas->TrackTuneBtnVisible());
    EXPECT_EQ(canvas->HoverTrack(), 1);
    EXPECT_EQ(Part("TrackTuneBtn").geometry(), QRect(23, RowY(1) + 6, 34, 34));
    for (const int x : {21, 57}) {
        Hover(x, RowY(1) + 20);
        EXPECT_THAT(Floating(), IsEmpty()) << x;
    }
}

TEST_F(RowButtonsTest, ShowsTheSamePictureWithAndWithoutTheTuneButton)
{
    const QRect picture(24, RowY(1) + 7, 32, 32);
    const QImage without = Shown(Strip()).copy(picture);
    Hover(40, RowY(1) + 20);
    EXPECT_EQ(Shown(Strip()).copy(picture), without);
}

TEST_F(RowButtonsTest, FloatsTheAudioButtonOverARecording)
{
    Hover(40, RowY(2) + 20);
    EXPECT_THAT(Floating(), ElementsAre("TrackAudioBtn"));
    EXPECT_TRUE(canvas->TrackAudioBtnVisible());
    EXPECT_EQ(canvas->HoverTrack(), 2);
    EXPECT_EQ(Part("TrackAudioBtn").geometry().topLeft(), QPoint(23, RowY(2) + 6));
    for (const int x : {22, 56}) {
        Hover(x, RowY(2) + 20);
        EXPECT_THAT(Floating(), ElementsAre("TrackAudioBtn")) << x;
    }
    for (const int x : {21, 57}) {
        Hover(x, RowY(2) + 20);
        EXPECT_THAT(Floating(), IsEmpty()) << x;
    }
}

TEST_F(RowButtonsTest, TheButtonOfOneKindOfTrackGoesWhereThatOfTheOtherComes)
{
    Hover(40, RowY(1) + 20);
    Hover(22, RowY(2) + 20);
    EXPECT_THAT(Floating(), ElementsAre("TrackAudioBtn"));
    Hover(22, RowY(1) + 20);
    EXPECT_THAT(Floating(), ElementsAre("TrackTuneBtn"));
}

TEST_F(RowButtonsTest, FloatsDeleteAndPlayInTheirRangesAlone)
{
    for (const QPoint& at : {QPoint(71, 15), QPoint(83, 30)}) {
        Hover(at.x(), RowY(1) + at.y());
        EXPECT_THAT(Floating(), ElementsAre("TrackDeleteBtn"));
    }
    EXPECT_EQ(Part("TrackDeleteBtn").geometry(), QRect(70, RowY(1) + 15, 14, 16));
    for (const QPoint& at : {QPoint(70, 20), QPoint(84, 20), QPoint(75, 14), QPoint(75, 31)}) {
        Hover(62, 5); // while the button floats, it gets the pointer's moves itself
        Hover(at.x(), RowY(1) + at.y());
        EXPECT_THAT(Floating(), IsEmpty()) << at.x() << "," << at.y();
    }
    for (const int x : {100, 134}) {
        Hover(x, RowY(2) + 20);
        EXPECT_THAT(Floating(), ElementsAre("TrackPlayBtn")) << x;
    }
    EXPECT_EQ(Part("TrackPlayBtn").geometry(), QRect(102, RowY(2) + 7, 32, 32));
    Hover(135, RowY(2) + 20);
    EXPECT_THAT(Floating(), IsEmpty());
}

TEST_F(RowButtonsTest, HidesTheButtonsOutsideTheRowsAndWhereThePointerLeaves)
{
    Hover(117, RowY(1) + 20);
    QTest::mouseMove(&Part("TrackTopLbl"), QPoint(10, 10));
    EXPECT_THAT(Floating(), IsEmpty());
    for (const int y : {5, 17, RowY(3) + 20}) {
        Hover(117, RowY(1) + 20);
        ASSERT_THAT(Floating(), ElementsAre("TrackPlayBtn"));
        Hover(117, y);
        EXPECT_THAT(Floating(), IsEmpty()) << y;
        EXPECT_EQ(canvas->HoverTrack(), 0);
    }
    Hover(117, RowY(1) + 20);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Strip(), &leave);
    EXPECT_THAT(Floating(), IsEmpty());
}

TEST_F(RowButtonsTest, HideTrackButtonsAndAWholeRedrawHideTheButtons)
{
    Hover(40, RowY(1) + 20);
    canvas->HideTrackButtons();
    EXPECT_THAT(Floating(), IsEmpty());
    EXPECT_EQ(canvas->HoverTrack(), 1);
    Hover(117, RowY(1) + 20);
    canvas->DrawTracksAll();
    EXPECT_THAT(Floating(), IsEmpty());
}

TEST_F(RowButtonsTest, TheTuneButtonTellsTheTunesNameAndLetsItPlay)
{
    Hover(40, RowY(1) + 20);
    EXPECT_EQ(titlePlays, 0);
    QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(10, 10));
    EXPECT_EQ(titlePlays, 1);
    EXPECT_EQ(Part("TrackTuneBtn").toolTip(), QStringLiteral("Tune Button"));
    TrackOf(1).TrackTune.Name = "Bambu";
    QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(12, 10));
    EXPECT_EQ(Part("TrackTuneBtn").toolTip(), QStringLiteral("Bambu"));
    TrackOf(1).TrackTune.Name = "<b>Bold</b>"; // a name, not markup
    QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(13, 10));
    EXPECT_EQ(Part("TrackTuneBtn").toolTip(), QStringLiteral("<p>&lt;b&gt;Bold&lt;/b&gt;</p>"));
    Hover(40, RowY(2) + 20);
    QTest::mouseMove(&Part("TrackAudioBtn"), QPoint(10, 10));
    EXPECT_EQ(titlePlays, 4);
}

TEST_F(RowButtonsTest, TheTuneButtonHidesWhereItsTrackIsGone)
{
    Song().TrackCount = 1;
    Song().Tracks.resize(2);
    canvas->DrawTracksAll();
    Hover(40, RowY(1) + 20);
    Song().TrackCount = 0;
    QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(10, 10));
    EXPECT_THAT(Floating(), IsEmpty());
    EXPECT_EQ(titlePlays, 0);
}

} // namespace
} // namespace sprout
