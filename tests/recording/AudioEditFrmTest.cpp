// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/AudioEditFrm.h"

#include <gmock/gmock.h>

#include <QScrollBar>
#include <QWheelEvent>

#include "core/Shared.h"
#include "main_window/TransportCommands.h"
#include "recording/WavePic.h"
#include "recording/rules/WaveMaker.h"
#include "sound/PlayTest.h"
#include "ui/FormAnswers.h"
#include "ui/HelpFrm.h"
#include "ui/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoSelection = "Make a selection on the waveform|(by mouse drag) to adjust volume or delete.|";

/// A song with a music track and an audio track of 16,000 frames, and the editor opened on the audio track. The picture
/// is 736 pixels wide.
class AudioEditFrmTest : public PlayTest {
protected:
    AudioEditFrmTest()
    {
        SetStatusLbl(&statusLbl);
        SongState& song = Shared().Song;
        song.TrackCount = 2;
        song.Tracks.resize(3);
        song.Tracks[2].TrackType = static_cast<std::int32_t>(TrackKind::Audio);
        song.Tracks[2].TrackAudio = CountingWave(16000);
        song.Tracks[2].TrackRenderValid = true;
        song.SongMixValid = true;
        form.FitTo({800, 600});
        Open(2);
    }

    void Open(std::int32_t number)
    {
        form.UpdateFormWithCurrentTrack(number);
        form.show();
        QApplication::setActiveWindow(&form);
        Pic().setFocus();
    }

    void OpenWave(const WaveData& wave)
    {
        Audio() = wave;
        Open(2);
    }

    static WaveData& Audio() { return Shared().Song.Tracks[2].TrackAudio; }

    template <class Control = QWidget>
    Control& Part(const char* name)
    {
        return *form.findChild<Control*>(QString::fromLatin1(name));
    }

    WavePic& Pic() { return Part<WavePic>("WavePic"); }
    QScrollBar& Bar() { return Part<QScrollBar>("HScroll"); }
    void Click(const char* name) { sprout::Click(form, name); }
    QString Spoken() { return Pic().accessibleName().section(QStringLiteral(": "), 1); }
    int Right() { return Pic().width() - 1; }

    void Drag(int from, int to)
    {
        QTest::mousePress(&Pic(), Qt::LeftButton, {}, {from, 30});
        QTest::mouseMove(&Pic(), {to, 30});
        QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, {to, 30});
    }

    /// The track's sound after OK.
    const WaveData& Taken()
    {
        Click("OkBtn");
        return Audio();
    }

    /// The pixels of the picture's top row that have the selection's colour, as "left-right".
    std::string Boxed()
    {
        const QImage image = Pic().Draw(1);
        const QColor colour = ColourOf(Shared().WaveColours.SelectBackColor);
        int first = -1;
        int last = -1;
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, 0) == colour) {
                first = first < 0 ? x : first;
                last = x;
            }
        return std::to_string(first) + "-" + std::to_string(last);
    }

    QLabel statusLbl;
    AudioEditFrm form{nullptr};
};

TEST_F(AudioEditFrmTest, LoadsTheTracksSoundWithoutCopyingASample)
{
    const void* const samples = Audio().WavL.Identity();
    Click("TestPlayBtn");
    EXPECT_EQ(play.PlayLength, 16000);
    Drag(100, 200);
    Click("CancelBtn");
    EXPECT_EQ(Audio().WavL.Identity(), samples);
    EXPECT_FALSE(form.Ok);
}

TEST_F(AudioEditFrmTest, ShowsTheEmptyWaveForATrackWithoutSound)
{
    Shared().Song.Tracks[1].TrackAudio = CountingWave(100);
    for (const std::int32_t number : {-1, 0, 1, 3}) {
        Open(number);
        EXPECT_EQ(Pic().Draw(1).pixelColor(5, Pic().height() / 2), ColourOf(Shared().WaveColours.NormalBackColor));
        play.PlayLength = -1;
        Click("TestPlayBtn");
        EXPECT_EQ(play.PlayLength, 0);
        Click("OkBtn");
        EXPECT_FALSE(form.TrackWasChanged());
    }
}

TEST_F(AudioEditFrmTest, OpensAgainAsAtTheFirstTime)
{
    Bar().setValue(50);
    Drag(100, 200);
    Click("VolumeUpBtn");
    Click("OkBtn");
    EXPECT_TRUE(form.TrackWasChanged());
    Open(2);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_FALSE(form.Ok);
    EXPECT_EQ(Spoken(), QStringLiteral("Nothing is selected"));
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    EXPECT_EQ(Part("PlayPosShp").x(), -2);
    Click("OkBtn");
    EXPECT_FALSE(form.TrackWasChanged());
}

TEST_F(AudioEditFrmTest, TellsHowToSelectAsLongAsNothingCanBeEdited)
{
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    Drag(100, 200);
    EXPECT_FALSE(Part("SelectOkLbl").isVisible());
    EXPECT_EQ(Part<QLabel>("SelectedLbl").text(), QStringLiteral("0.0 to 0.1 seconds"));
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, {150, 30});
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    EXPECT_FALSE(Part("SelectedLbl").isVisible());
}

TEST_F(AudioEditFrmTest, SelectsTheSameFromRightToLeft)
{
    Drag(100, 200);
    EXPECT_EQ(Boxed(), "100-200");
    Drag(300, 400);
    EXPECT_EQ(Boxed(), "300-400");
    Drag(200, 100);
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(AudioEditFrmTest, SelectsToTheEndsWhereTheMouseIsCloseToAnEdge)
{
    Drag(2, 400);
    EXPECT_EQ(Boxed(), "0-400");
    Drag(400, Right());
    EXPECT_EQ(Boxed(), "400-" + std::to_string(Right()));
    Drag(400, Right() + 300);
    EXPECT_EQ(Boxed(), "400-" + std::to_string(Right()));
}

TEST_F(AudioEditFrmTest, ShowsABandWhileTheMouseIsDown)
{
    QWidget& band = Part("SelectBandShp");
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, {100, 30});
    EXPECT_EQ(band.geometry(), QRect(100, 1, 1, Pic().height() - 2));
    QTest::mouseMove(&Pic(), {60, 30});
    EXPECT_EQ(band.geometry(), QRect(60, 1, 40, Pic().height() - 2));
    EXPECT_TRUE(band.isVisible());
    QTest::mouseMove(&Pic(), {5000, 30});
    EXPECT_EQ(band.geometry(), QRect(100, 1, Pic().width() - 100, Pic().height() - 2));
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, {60, 30});
    EXPECT_FALSE(band.isVisible());
}

TEST_F(AudioEditFrmTest, EndsADragWhereAKeyBringsAMessage)
{
    FormAnswers answers(statusLbl, {"OkBtn"});
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, {100, 30});
    QTest::mouseMove(&Pic(), {200, 30});
    statusLbl.clear();
    QTest::keyClick(&Pic(), Qt::Key_Delete);
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection));
    EXPECT_FALSE(Part("SelectBandShp").isVisible());
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(AudioEditFrmTest, AsksForASelectionBeforeItEdits)
{
    FormAnswers answers(statusLbl, {"OkBtn", "OkBtn", "OkBtn"});
    for (const char* name : {"VolumeUpBtn", "VolumeDnBtn", "DeleteBtn"})
        Click(name);
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection, kNoSelection, kNoSelection));
    EXPECT_EQ(Taken(), CountingWave(16000));
    EXPECT_THAT(sound.calls, IsEmpty());
}

TEST_F(AudioEditFrmTest, AsksForASelectionAfterAClickAndInAnEmptyWave)
{
    FormAnswers answers(statusLbl, {"OkBtn", "OkBtn"});
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, {150, 30});
    statusLbl.clear();
    Click("DeleteBtn");
    OpenWave(WaveData());
    Drag(10, 100);
    statusLbl.clear();
    Click("VolumeUpBtn");
    EXPECT_THAT(answers.seen, ElementsAre(kNoSelection, kNoSelection));
}

TEST_F(AudioEditFrmTest, MakesTheSelectedPartLouderAndPlaysTheWholeWave)
{
    Drag(-5, 5000);
    Click("VolumeUpBtn");
    EXPECT_EQ(display.status, "Playing Recorded");
    EXPECT_EQ(play.PlayKind, PlayKind::Recording);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(play.PlayLength, 16000);
    EXPECT_EQ(Taken().WavL[1000], 1250);
    EXPECT_EQ(Audio().WavR[16000], -20000);
}

TEST_F(AudioEditFrmTest, MakesTheSelectedPartSofterAndKeepsTheSelection)
{
    Drag(-5, 5000);
    Click("VolumeDnBtn");
    Click("VolumeDnBtn");
    EXPECT_EQ(Taken().WavL[1000], 640);
}

TEST_F(AudioEditFrmTest, HoldsLoudSamplesToTheLimit)
{
    OpenWave(MonoOf({30000, -30000, 30000}));
    Drag(-5, 5000);
    Click("VolumeUpBtn");
    EXPECT_THAT(SamplesOf(Taken().WavL), ElementsAre(32767, -32768, 32767));
}

TEST_F(AudioEditFrmTest, CutsTheSelectedPartOutAndSelectsNothing)
{
    Drag(-5, 368);
    Click("DeleteBtn");
    EXPECT_EQ(Spoken(), QStringLiteral("Nothing is selected"));
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    const WaveData& left = Taken();
    EXPECT_EQ(play.PlayLength, left.Length);
    EXPECT_EQ(left.Length, 16000 - left.WavL[1] + 1); // the counting wave shows where the cut was
    EXPECT_NEAR(left.Length, 8000, 22);
    EXPECT_EQ(left.WavR[left.Length], -16000);
}

TEST_F(AudioEditFrmTest, DoesNotDeleteAll)
{
    FormAnswers answers(statusLbl, {"OkBtn"});
    QTest::keyClick(&Pic(), Qt::Key_A, Qt::ControlModifier);
    Click("TestPlayBtn");
    Click("DeleteBtn");
    EXPECT_THAT(answers.seen, ElementsAre("Can not delete all,|Select a part and delete.|"));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(Taken().Length, 16000);
}

TEST_F(AudioEditFrmTest, LeavesOneSampleOfACutFromTheSecondToTheLast)
{
    OpenWave(MonoOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    QTest::keyClick(&Pic(), Qt::Key_Home);
    QTest::keyClick(&Pic(), Qt::Key_Right);
    QTest::keyClick(&Pic(), Qt::Key_End, Qt::ShiftModifier);
    Click("DeleteBtn");
    EXPECT_THAT(SamplesOf(Taken().WavL), ElementsAre(1));
}

TEST_F(AudioEditFrmTest, WritesTheSoundBackWithOk)
{
    Drag(100, 200);
    Click("VolumeUpBtn");
    statusLbl.setText(QStringLiteral("hint"));
    Click("OkBtn");
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Ok);
    EXPECT_TRUE(form.TrackWasChanged());
    EXPECT_FALSE(Shared().Song.Tracks[2].TrackRenderValid);
    EXPECT_FALSE(Shared().Song.SongMixValid);
    EXPECT_TRUE(Shared().Song.SongChanged);
    EXPECT_EQ(statusLbl.text(), QString());
}

TEST_F(AudioEditFrmTest, LeavesTheSongAloneWithOkWhereNothingWasEdited)
{
    Drag(100, 200);
    Click("ZoomInBtn");
    Click("OkBtn");
    EXPECT_TRUE(form.Ok);
    EXPECT_FALSE(form.TrackWasChanged());
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(Shared().Song.Tracks[2].TrackRenderValid);
    EXPECT_TRUE(Shared().Song.SongMixValid);
    EXPECT_FALSE(Shared().Song.SongChanged);
}

TEST_F(AudioEditFrmTest, ThrowsTheEditsAwayWithCancelEscapeAndTheCloseBoxWithoutAQuestion)
{
    const std::vector<std::function<void()>> ways{[this] { Click("CancelBtn"); }, [this] { Click("CloseImgBtn"); },
                                                  [this] { QTest::keyClick(&Pic(), Qt::Key_Escape); }};
    for (const auto& leave : ways) {
        Open(2);
        Drag(100, 200);
        for (int i = 0; i < 3; ++i)
            Click("VolumeUpBtn");
        Click("DeleteBtn");
        form.Ok = true;
        leave();
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Ok);
        EXPECT_FALSE(form.TrackWasChanged());
        EXPECT_EQ(Audio(), CountingWave(16000));
        EXPECT_TRUE(Shared().Song.SongMixValid);
    }
}

TEST_F(AudioEditFrmTest, ZoomsInAndOut)
{
    Drag(100, 200);
    Click("ZoomInBtn");
    EXPECT_EQ(Boxed(), "120-240");
    Click("ZoomOutBtn");
    EXPECT_EQ(Boxed(), "100-200");
    Click("ZoomOutBtn");
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(AudioEditFrmTest, NeverShowsFewerSamplesThanPixels)
{
    OpenWave(CountingWave(2000));
    QTest::keyClick(&Pic(), Qt::Key_Home);
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    // One pixel per sample: the arrow moves by one.
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "0-50");
}

TEST_F(AudioEditFrmTest, ScrollsFromWhereTheViewStands)
{
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    QTest::keyClick(&Pic(), Qt::Key_Home);
    EXPECT_EQ(Boxed(), "-1--1");
    const QImage before = Pic().Draw(1);
    Bar().setValue(50);
    const QImage once = Pic().Draw(1);
    EXPECT_NE(once, before);
    Bar().setValue(51);
    const QImage twice = Pic().Draw(1);
    Bar().setValue(50);
    EXPECT_NE(Pic().Draw(1), once); // the same value now means another place
}

TEST_F(AudioEditFrmTest, ScrollsOnceForAThumbThatIsLetGo)
{
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    const QImage before = Pic().Draw(1);
    Bar().setSliderDown(true);
    Bar().setSliderPosition(40);
    Bar().setSliderPosition(60);
    EXPECT_EQ(Pic().Draw(1), before);
    Bar().setSliderDown(false);
    EXPECT_EQ(Bar().value(), 60);
    EXPECT_NE(Pic().Draw(1), before);
}

TEST_F(AudioEditFrmTest, ScrollsByArrowsPagesKeysAndWheel)
{
    Bar().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(Bar().value(), 1);
    Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(Bar().value(), 11);
    QTest::keyClick(&Bar(), Qt::Key_Right);
    EXPECT_EQ(Bar().value(), 12);
    QTest::keyClick(&Bar(), Qt::Key_Left);
    EXPECT_EQ(Bar().value(), 11);
    QTest::keyClick(&Bar(), Qt::Key_PageDown);
    EXPECT_EQ(Bar().value(), 21);
    QWheelEvent wheel({5, 5}, Bar().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Bar(), &wheel);
    EXPECT_GT(Bar().value(), 21);
}

TEST_F(AudioEditFrmTest, WorksByKeysAlone)
{
    QTest::keyClick(&Pic(), Qt::Key_Home);
    QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "0-20");
    QTest::keyClick(&Pic(), Qt::Key_Plus);
    EXPECT_EQ(Boxed(), "0-24");
    QTest::keyClick(&Pic(), Qt::Key_Minus);
    EXPECT_EQ(Boxed(), "0-20");
    QTest::keyClick(&Pic(), Qt::Key_Delete);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    Player().StopPlay();
    QTest::keyClick(&Pic(), Qt::Key_Space);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    QTest::keyClick(&Pic(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(Audio().Length, 16000 - Audio().WavL[1] + 1);
    EXPECT_GT(Audio().WavL[1], 1);
}

TEST_F(AudioEditFrmTest, PlaysOnceForAKeyThatIsHeldDown)
{
    RepeatKey(Pic(), Qt::Key_Space);
    RepeatKey(Pic(), Qt::Key_Delete);
    EXPECT_THAT(sound.calls, IsEmpty());
}

TEST_F(AudioEditFrmTest, GoesOnWithShiftFromWhereTheMouseBegan)
{
    Drag(200, 100);
    QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "120-200");
}

TEST_F(AudioEditFrmTest, SpeaksTheSelection)
{
    EXPECT_EQ(Pic().accessibleName(), QStringLiteral("Your recorded sound: Nothing is selected"));
    QTest::keyClick(&Pic(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Spoken(), QStringLiteral("0.0 to 0.4 seconds"));
}

TEST_F(AudioEditFrmTest, PlaysWithoutASelection)
{
    Click("TestPlayBtn");
    EXPECT_EQ(play.PlayKind, PlayKind::Recording);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(display.status, "Playing Recorded");
}

TEST_F(AudioEditFrmTest, MovesThePlayMarkerWithItsOwnSoundAlone)
{
    const QWidget& marker = Part("PlayPosShp");
    play.PlayState = PlayState::Playing;
    play.PlayKind = PlayKind::Recording;
    play.PlayCursor = 8001;
    form.UpdatePlayPointer();
    EXPECT_NEAR(marker.x(), Right() / 2.0, 1);
    play.PlayKind = PlayKind::SongOrTrack;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
    play.PlayKind = PlayKind::Recording;
    play.PlayCursor = 100000;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
    play.PlayCursor = 8001;
    form.UpdatePlayPointer();
    play.PlayState = PlayState::Stopped;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
}

TEST_F(AudioEditFrmTest, FollowsThePlayersTimer)
{
    TransportCommands transport(nullptr);
    auto* timer = transport.findChild<QTimer*>(QStringLiteral("PlayPosTimer"));
    const QWidget& marker = Part("PlayPosShp");
    Click("TestPlayBtn");
    sound.place = {8000, true};
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_NEAR(marker.x(), Right() / 2.0, 1);
    Player().StopPlay();
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(marker.x(), -2);
}

TEST_F(AudioEditFrmTest, LetsTheTimerTickWithoutAnEditor)
{
    {
        const AudioEditFrm other(nullptr);
    }
    UpdatePlayPointer();
}

TEST_F(AudioEditFrmTest, ShowsTheHintsOfItsControls)
{
    EXPECT_EQ(Part<QLabel>("CaptionLbl").text(), QStringLiteral(" Tonquill Sprout Painter - Edit Audio"));
    const std::vector<std::pair<const char*, const char*>> hints{
        {"DeleteBtn", "Select the unwanted audio and use this button to delete it."},
        {"TestPlayBtn", "Play button, click on it to play this audio"},
        {"VolumeUpBtn", "Select an audio part and use this up arrow to increase the volume"},
        {"VolumeDnBtn", "Select an audio part and use this down arrow to reduce the volume"},
        {"ZoomInBtn", "Zoom In Button, click on it to zoom in the waveform display"},
        {"ZoomOutBtn", "Zoom Out Button, click on it to zoom out the waveform display"},
        {"WavePic", "Your recorded sound looks like this"},
        {"HScroll", "Slide this to see the other parts of your sound"},
        {"OkBtn", "Ok button, use it to keep the sound as it is now"},
        {"CancelBtn", "Cancel button, use it to leave the sound as it was"},
        {"HelpBtn", "Help button, use it to see help"},
        {"SelectOkLbl", ""},
        {"SelectedLbl", ""},
    };
    int at = 4;
    for (const auto& [name, hint] : hints) {
        statusLbl.setText(QStringLiteral("before"));
        QTest::mouseMove(&Part(name), {at++, 10});
        EXPECT_EQ(statusLbl.text(), QString::fromLatin1(hint)) << name;
        EXPECT_EQ(Part(name).accessibleDescription(), QString::fromLatin1(hint)) << name;
    }
}

TEST_F(AudioEditFrmTest, NamesEveryControlForScreenReaders)
{
    for (const char* name : {"WavePic", "HScroll", "OkBtn", "CancelBtn", "HelpBtn", "TestPlayBtn", "DeleteBtn",
                             "VolumeUpBtn", "VolumeDnBtn", "ZoomInBtn", "ZoomOutBtn"}) {
        EXPECT_FALSE(Part(name).accessibleName().isEmpty()) << name;
        EXPECT_FALSE(Part(name).accessibleDescription().isEmpty()) << name;
        EXPECT_NE(Part(name).focusPolicy() & Qt::TabFocus, 0) << name;
    }
}

TEST_F(AudioEditFrmTest, FitsSmallAndLargeScreens)
{
    for (const QSize room : {QSize(400, 300), QSize(800, 600), QSize(1920, 1080)}) {
        form.FitTo(room);
        EXPECT_LE(form.width(), room.width());
        EXPECT_LE(form.height(), room.height());
        QRegion taken;
        for (const char* name : {"WavePic", "HScroll", "SelectOkLbl", "OkBtn", "CancelBtn", "HelpBtn", "TestPlayBtn",
                                 "DeleteBtn", "VolumeUpBtn", "VolumeDnBtn", "ZoomInBtn", "ZoomOutBtn"}) {
            const QRect place = Part(name).geometry();
            EXPECT_FALSE(taken.intersects(place)) << name << " at " << room.width();
            EXPECT_TRUE(form.rect().contains(place)) << name << " at " << room.width();
            taken += place;
        }
        EXPECT_GE(Part("SelectOkLbl").width(), Part<QLabel>("SelectOkLbl").sizeHint().width());
    }
}

TEST_F(AudioEditFrmTest, OpensTheHelpBook)
{
    Click("HelpBtn");
    int books = 0;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<HelpFrm*>(window)) {
            ++books;
            help->close();
        }
    EXPECT_EQ(books, 1);
}

} // namespace
} // namespace sprout
