// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePic.h"

#include <gmock/gmock.h>

#include "main_window/CanvasFixture.h"
#include "ui/ModalSteps.h"
#include "ui/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrackTitlePicTest : public CanvasFixture {
protected:
    TrackTitlePicTest() { TrackOf(2).TrackType = 1; }

    std::vector<std::string> Floating() const
    {
        std::vector<std::string> names;
        for (const char* name : {"TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn"})
            if (IsShown(name))
                names.emplace_back(name);
        return names;
    }
};

TEST_F(TrackTitlePicTest, FloatsTheTuneButtonOverTheTunesPicture)
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

TEST_F(TrackTitlePicTest, ShowsTheSamePictureWithAndWithoutTheTuneButton)
{
    const QRect picture(24, RowY(1) + 7, 32, 32);
    const QImage without = Shown(Strip()).copy(picture);
    Hover(40, RowY(1) + 20);
    EXPECT_EQ(Shown(Strip()).copy(picture), without);
}

TEST_F(TrackTitlePicTest, FloatsTheAudioButtonOverARecording)
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

TEST_F(TrackTitlePicTest, TheButtonOfOneKindOfTrackGoesWhereThatOfTheOtherComes)
{
    Hover(40, RowY(1) + 20);
    Hover(22, RowY(2) + 20);
    EXPECT_THAT(Floating(), ElementsAre("TrackAudioBtn"));
    Hover(22, RowY(1) + 20);
    EXPECT_THAT(Floating(), ElementsAre("TrackTuneBtn"));
}

TEST_F(TrackTitlePicTest, FloatsDeleteAndPlayInTheirRangesAlone)
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

TEST_F(TrackTitlePicTest, HidesTheButtonsOutsideTheRowsAndWhereThePointerLeaves)
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

TEST_F(TrackTitlePicTest, HideTrackButtonsAndAWholeRedrawHideTheButtons)
{
    Hover(40, RowY(1) + 20);
    canvas->HideTrackButtons();
    EXPECT_THAT(Floating(), IsEmpty());
    EXPECT_EQ(canvas->HoverTrack(), 1);
    Hover(117, RowY(1) + 20);
    canvas->DrawTracksAll();
    EXPECT_THAT(Floating(), IsEmpty());
}

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

TEST_F(TrackTitlePicTest, TheTuneButtonTellsTheTunesNameAndLetsItPlay)
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

TEST_F(TrackTitlePicTest, TheTuneButtonHidesWhereItsTrackIsGone)
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

TEST_F(TrackTitlePicTest, AClickOnAFloatingButtonRunsItsCommandAndClearsTheHint)
{
    const auto click = [this](int x, std::int32_t row, const char* name) {
        Hover(x, RowY(row) + 20);
        QTest::mouseClick(&Part(name), Qt::LeftButton);
        EXPECT_EQ(statusLbl.text(), QString()) << name;
    };
    click(40, 1, "TrackTuneBtn");
    click(40, 2, "TrackAudioBtn");
    click(77, 2, "TrackDeleteBtn");
    click(117, 1, "TrackPlayBtn");
    EXPECT_THAT(asked, ElementsAre("TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn"));
    EXPECT_EQ(canvas->HoverTrack(), 1);
}

TEST_F(TrackTitlePicTest, EveryButtonSaysWhatItIs)
{
    for (const char* name :
         {"TrackTuneBtn", "TrackAudioBtn", "TrackDeleteBtn", "TrackPlayBtn", "TrackAddBtn", "TrackAddRecBtn"}) {
        EXPECT_FALSE(Part(name).accessibleName().isEmpty()) << name;
        EXPECT_EQ(Part(name).accessibleDescription().toStdString(), MainWindowHint(name)) << name;
    }
}

TEST_F(TrackTitlePicTest, TheHeadingsExplainThemselvesWhenClicked)
{
    const auto expectMessage = [this](const char* name, const char* message, const std::function<void()>& click) {
        QString shown;
        WithNextForm([&shown](BandedForm& form) {
            for (const QLabel* label : form.findChildren<QLabel*>())
                shown += label->text() + QLatin1Char('|');
            form.reject();
        });
        click();
        EXPECT_TRUE(shown.contains(QString::fromLatin1(message))) << name << ": " << shown.toStdString();
    };
    expectMessage("Label1", "Click on the Play button below this.", [this] { Click(window, "Label1"); });
    expectMessage("Label5", "Click on the Tune button below this.", [this] { Click(window, "Label5"); });
    expectMessage("Label5", "Click on the Tune button below this.",
                  [this] { QTest::keyClick(&Part("Label5"), Qt::Key_Return); });
    RepeatKey(Part("Label5"), Qt::Key_Return); // shows no message, which this test would have to close
    // They are above the columns that they name.
    EXPECT_EQ(Part("Label1").accessibleName(), QStringLiteral("Play"));
    EXPECT_EQ(Part("Label5").accessibleName(), QStringLiteral("Tune"));
    EXPECT_EQ(Part("Label5").accessibleDescription(), QStringLiteral("Click on the Tune button below this."));
    EXPECT_LT(Part("Label1").geometry().bottom(), 20);
    EXPECT_TRUE(Part("Label1").geometry().contains(QPoint(118, 10)));
    EXPECT_TRUE(Part("Label5").geometry().contains(QPoint(40, 10)));
}

TEST_F(TrackTitlePicTest, KeysChooseARowAndItsButtonAndPressIt)
{
    Strip().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(Strip().hasFocus());
    EXPECT_THAT(Floating(), ElementsAre("TrackPlayBtn"));
    EXPECT_EQ(statusLbl.text().toStdString(), MainWindowHint("TrackPlayBtn"));
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
