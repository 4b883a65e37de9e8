// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/AudioEditFrm.h"

#include "recording/AudioEditFixture.h"
#include "ui/help/OpenedHelp.h"

namespace sprout {
namespace {

class AudioEditFrmTest : public AudioEditFixture {};

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

TEST_F(AudioEditFrmTest, HasAFrameAroundThePictureThatIsWiderWithTheFocus)
{
    const auto frame = [this](const QColor& colour) {
        const QImage image = form.grab().toImage();
        const QRect picture = Pic().geometry();
        const auto depth = [&image, &colour](QPoint at, QPoint step) {
            int pixels = 0;
            for (at += step; image.rect().contains(at) && image.pixelColor(at) == colour; at += step)
                ++pixels;
            return pixels;
        };
        return QMargins(depth(picture.topLeft(), {-1, 0}), depth(picture.topLeft(), {0, -1}),
                        depth(picture.bottomRight(), {1, 0}), depth(picture.bottomRight(), {0, 1}));
    };
    EXPECT_EQ(frame(kLink), QMargins(4, 4, 4, 4));
    Part("OkBtn").setFocus();
    EXPECT_EQ(frame(kBark), QMargins(2, 2, 2, 2));
}

TEST_F(AudioEditFrmTest, OpensTheHelpBook)
{
    EXPECT_EQ(HelpPageOpenedBy(form, [this] { Click("HelpBtn"); }), "Changing a sound");
    EXPECT_EQ(HelpPageOpenedBy(form, [this] { QTest::keyClick(&form, Qt::Key_F1); }), "Changing a sound");
}

} // namespace
} // namespace sprout
