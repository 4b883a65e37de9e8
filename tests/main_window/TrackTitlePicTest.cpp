// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePic.h"

#include "main_window/TitleStripFixture.h"
#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrackTitlePicTest : public TitleStripFixture {};

TEST_F(TrackTitlePicTest, APressShowsWhatItWouldPressWhereARedrawHidTheButtons)
{
    Hover(117, RowY(1) + 20);
    canvas->DrawTracksAll(); // as after scrolling or deleting a track, with the pointer at rest
    ASSERT_THAT(Floating(), IsEmpty());
    QTest::mouseClick(&Strip(), Qt::LeftButton, {}, QPoint(117, RowY(2) + 20));
    EXPECT_THAT(Floating(), ElementsAre("TrackPlayBtn"));
    EXPECT_EQ(canvas->HoverTrack(), 2);
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(TrackTitlePicTest, AMoveOverTheStripClearsTheHintAndOneOverAButtonShowsIts)
{
    statusLbl.setText(QStringLiteral("old"));
    Hover(62, RowY(1) + 20);
    EXPECT_EQ(statusLbl.text(), QString());
    Hover(117, RowY(1) + 20);
    QTest::mouseMove(&Part("TrackPlayBtn"), QPoint(10, 10));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Track play button, use it to test play this track"));
    Hover(40, RowY(1) + 20);
    QTest::mouseMove(&Part("TrackTuneBtn"), QPoint(10, 10));
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Tune button, Click to choose a tune, keep mouse over it to play"));
    QTest::mouseMove(&Part("TrackTopLbl"), QPoint(10, 10));
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(TrackTitlePicTest, KeysChooseARowAndItsButtonAndPressIt)
{
    Strip().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(Strip().hasFocus());
    EXPECT_THAT(Floating(), ElementsAre("TrackPlayBtn"));
    EXPECT_EQ(statusLbl.text().toStdString(), MainWindowHint("TrackPlayBtn").English());
    EXPECT_EQ(Strip().accessibleName(), QStringLiteral("Track 1, Play track"));
    QTest::keyClick(&Strip(), Qt::Key_Down);
    QTest::keyClick(&Strip(), Qt::Key_Left);
    EXPECT_THAT(Floating(), ElementsAre("TrackDeleteBtn"));
    QTest::keyClick(&Strip(), Qt::Key_Left);
    EXPECT_THAT(Floating(), ElementsAre("TrackAudioBtn"));
    EXPECT_EQ(titlePlays, 1);
    EXPECT_EQ(canvas->HoverTrack(), 2);
    QTest::keyClick(&Strip(), Qt::Key_Return);
    QTest::keyClick(&Strip(), Qt::Key_Up);
    QTest::keyClick(&Strip(), Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("TrackAudioBtn", "TrackTuneBtn"));
    QTest::keyClick(&Strip(), Qt::Key_Escape);
    EXPECT_THAT(Floating(), IsEmpty());
    QTest::keyClick(&Strip(), Qt::Key_Return); // first shows it again
    EXPECT_THAT(Floating(), ElementsAre("TrackTuneBtn"));
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(TrackTitlePicTest, AKeyHeldDownPressesTheChosenButtonOnce)
{
    Strip().setFocus(Qt::TabFocusReason);
    QTest::keyPress(&Strip(), Qt::Key_Return);
    RepeatKey(Strip(), Qt::Key_Return);
    RepeatKey(Strip(), Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("TrackPlayBtn"));
}

TEST_F(TrackTitlePicTest, AChosenRowIsScrolledIntoViewAndFramed)
{
    SetTracks(20);
    const QImage without = Shown(Strip());
    Strip().setFocus(Qt::TabFocusReason);
    for (int i = 1; i < 20; ++i)
        QTest::keyClick(&Strip(), Qt::Key_Down);
    EXPECT_EQ(canvas->HoverTrack(), 20);
    EXPECT_EQ(canvas->View().FirstTrack, 15);
    EXPECT_THAT(Floating(), ElementsAre("TrackPlayBtn"));
    for (int i = 1; i < 20; ++i)
        QTest::keyClick(&Strip(), Qt::Key_Up);
    EXPECT_EQ(canvas->View().FirstTrack, 1);
    canvas->HideTrackButtons();
    EXPECT_NE(Shown(Strip()).pixelColor(0, RowY(1)), without.pixelColor(0, RowY(1)));
    Pic().setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(Shown(Strip()), without);
}

TEST_F(TrackTitlePicTest, TheFrameOfATrackThatIsGoneGoesToTheLastOne)
{
    SetTracks(3);
    Strip().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Strip(), Qt::Key_Down);
    QTest::keyClick(&Strip(), Qt::Key_Down);
    const auto framed = [this](std::int32_t row) { return ColourAt(Strip(), 0, RowY(row) + 30) == kLink; };
    EXPECT_TRUE(framed(3));
    SetTracks(2);
    EXPECT_FALSE(framed(3));
    EXPECT_TRUE(framed(2));
    SetTracks(0);
    EXPECT_FALSE(framed(1));
}

} // namespace
} // namespace sprout
