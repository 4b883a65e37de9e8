// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainFrm.h"

#include <QAccessible>

#include "main_window/MainWindowTest.h"

namespace sprout {
namespace {

class MainFrmTest : public MainWindowTest {};

/// Returns true if a control's picture has a pixel of this colour.
bool HasPixel(QWidget& control, const QColor& colour)
{
    const QImage picture = control.grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) == colour)
                return true;
    return false;
}

TEST_F(MainFrmTest, TellsScreenReadersWhatItsPartsAre)
{
    const auto role = [](QWidget& part) { return QAccessible::queryAccessibleInterface(&part)->role(); };
    EXPECT_EQ(role(*window), QAccessible::Window);
    EXPECT_EQ(role(Control("TrackPic")), QAccessible::Canvas);
    EXPECT_EQ(role(Control("TrackTitlePic")), QAccessible::ToolBar);
    EXPECT_EQ(role(Control("TempoPrtImg")), QAccessible::Slider);
    EXPECT_EQ(role(Control("Label1")), QAccessible::Button);
}

TEST_F(MainFrmTest, PaintsWithTheToolThatIsOn)
{
    QWidget& pic = Control("TrackPic");
    QTest::mouseClick(&pic, Qt::LeftButton, {}, QPoint(30, 40));
    EXPECT_EQ(At(Song().Tracks, 1).Painted[11], 1);
    ClickButton("EraserBtn");
    QTest::mouseClick(&pic, Qt::LeftButton, {}, QPoint(30, 40));
    EXPECT_EQ(At(Song().Tracks, 1).Painted[11], 2);
}

TEST_F(MainFrmTest, PaintsWithAFinger)
{
    QWidget& pic = Control("TrackPic");
    static QPointingDevice* const screen = QTest::createTouchDevice();
    QTest::touchEvent(&pic, screen).press(1, QPoint(30, 40));
    QTest::touchEvent(&pic, screen).move(1, QPoint(36, 40));
    QTest::touchEvent(&pic, screen).release(1, QPoint(36, 40));
    EXPECT_EQ(At(Song().Tracks, 1).Painted[11], 1);
    EXPECT_EQ(At(Song().Tracks, 1).Painted[12], 1);
    EXPECT_EQ(At(Song().Tracks, 1).Painted[13], 1);
    EXPECT_EQ(At(Song().Tracks, 1).Painted[14], 0);
}

TEST_F(MainFrmTest, ShowsTheCellUnderThePointer)
{
    QWidget& pic = Control("TrackPic");
    Send(pic, QEvent::MouseMove, pic.mapToGlobal(QPointF(30, 40)), Qt::NoButton);
    EXPECT_EQ(TextOf("TrackMouPosLbl"), "11");
}

TEST_F(MainFrmTest, LabelsTheSecondsOfTheBandByTheNewTempo)
{
    const auto band = [this] { return Control("TrackPic").grab(QRect(20, 0, 400, 17)).toImage(); };
    const QImage before = band();
    QTest::keyClick(&Control("TempoPrtImg"), Qt::Key_Home);
    ASSERT_EQ(Song().Tempo, 160);
    const QImage after = band();
    EXPECT_NE(after, before);
    window->DrawTracksAll();
    EXPECT_EQ(band(), after);
}

TEST_F(MainFrmTest, ShowsTitleAndAuthor)
{
    Song().SongTitle = "Zumi";
    Song().SongCreatedBy = "Lina";
    window->UpdateSongTitle();
    EXPECT_EQ(TextOf("SngTitleLbl"), "Zumi");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
    EXPECT_EQ(TextOf("CaptionLbl"), "Tonquill Sprout Painter - [Zumi]");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tonquill Sprout Painter - [Zumi]"));
}

TEST_F(MainFrmTest, CutsATitleThatIsTooLongAndTellsItWholeToAScreenReader)
{
    Song().SongTitle = std::string(300, 'w');
    window->UpdateSongTitle();
    EXPECT_LT(TextOf("SngTitleLbl").size(), 200U);
    EXPECT_EQ(Control("SngTitleLbl").accessibleName().size(), 300);
}

TEST_F(MainFrmTest, KeepsTheControlBarInOneLineDownToAThousandPixels)
{
    Song().SongTitle = "Zumi";
    Song().SongCreatedBy = "Lina";
    window->resize(1000, 640);
    window->UpdateSongTitle();
    EXPECT_EQ(Control("PlayAllBtn").y(), Control("DemoBtn").y());
    EXPECT_EQ(TextOf("SngTitleLbl"), "Zumi");
    EXPECT_EQ(TextOf("SngCreateLbl"), "Lina");
}

TEST_F(MainFrmTest, ShowsTheAuthorAtEveryWidthAndADoubleClickOnItChangesIt)
{
    Song().SongTitle = "A song of a rather long title";
    Song().SongCreatedBy = "Lina from the house by the lake";
    for (int width = window->minimumWidth(); width <= 1300; width += 7) {
        window->resize(width, 640);
        window->UpdateSongTitle();
        ASSERT_TRUE(Control("SngCreateLbl").isVisible()) << width;
        ASSERT_GE(Control("SngCreateLbl").width(), 40) << width;
        ASSERT_NE(TextOf("SngCreateLbl").substr(0, 1), "\xE2") << width; // not only the dots
    }
    window->resize(1000, 640);
    QString asked;
    WithNextForm([&asked](BandedForm& form) {
        asked = form.objectName();
        Click(form, "CancelBtn");
    });
    QTest::mouseDClick(&Control("SngCreateLbl"), Qt::LeftButton);
    EXPECT_EQ(asked, QStringLiteral("SongTitleFrm"));
}

TEST_F(MainFrmTest, KeepsTenPixelsBehindItsLastButton)
{
    const QWidget& close = Control("CloseImgBtn");
    EXPECT_EQ(close.mapTo(window.get(), QPoint(close.width(), 0)).x(), window->width() - 10);
}

TEST_F(MainFrmTest, IsMovedByItsBand)
{
    Drag(Control("MainTitlePic"), QPoint(300, 20), QPoint(30, -20));
    EXPECT_EQ(window->geometry(), QRect(80, 40, 700, 500));
}

TEST_F(MainFrmTest, IsNotMovedByItsBandWhileItIsMaximized)
{
    window->showMaximized();
    const QRect before = window->geometry();
    Drag(Control("MainTitlePic"), QPoint(300, 20), QPoint(30, -20));
    EXPECT_EQ(window->geometry(), before);
}

TEST_F(MainFrmTest, MaximizesAndRestoresByADoubleClickOnItsBand)
{
    QTest::mouseDClick(&Control("MainTitlePic"), Qt::LeftButton, {}, QPoint(300, 20));
    EXPECT_TRUE(window->isMaximized());
    QTest::mouseDClick(&Control("MainTitlePic"), Qt::LeftButton, {}, QPoint(300, 20));
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
}

TEST_F(MainFrmTest, GetsNoSmallerThanItMay)
{
    EXPECT_EQ(window->minimumSize(), QSize(533, 200));
}

TEST_F(MainFrmTest, TellsWhetherThereIsASoundDevice)
{
    window->ShowSoundDevices(2);
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Ready");
    window->ShowSoundDevices(0);
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Device Failed:");
}

TEST_F(MainFrmTest, TellsInRedThatThereIsNoSoundDeviceAndInBarkWhatThePlayerDoes)
{
    QWidget& label = Control("SoundStatusLbl");
    const QColor red(255, 0, 0);
    window->ShowSoundDevices(0);
    EXPECT_TRUE(HasPixel(label, red));
    transport.ShowSoundStatus(Words::Text("Playing All"));
    EXPECT_FALSE(HasPixel(label, red));
    window->ShowSoundDevices(1);
    EXPECT_FALSE(HasPixel(label, red));
}

TEST_F(MainFrmTest, LivesWithASongOfNoTracks)
{
    Song().TrackCount = 0;
    window->DrawTracksAll();
    window->grab();
    QWidget& pic = Control("TrackPic");
    QTest::mouseClick(&pic, Qt::LeftButton, {}, QPoint(30, 40));
    ShownMessage message;
    NoteNextMessage(message);
    ClickButton("PlayAllBtn");
    EXPECT_EQ(message.line1, QStringLiteral("Please select tune for track using tune button."));
    ClickButton("NewBtn");
    EXPECT_EQ(Song().TrackCount, 2);
}

TEST_F(MainFrmTest, IsDrawnAtEverySizeItMayHave)
{
    for (const QSize size : {QSize(533, 200), QSize(680, 400), QSize(800, 600), QSize(1200, 700), QSize(1920, 1080)}) {
        window->resize(size);
        EXPECT_EQ(window->grab().toImage().size(), size);
        const QRect inside(QPoint(0, 0), size);
        for (const char* name : {"PlayAllBtn", "DemoBtn", "SongTitleChgBtn", "TempoPrtImg", "SngDurLbl", "StatusLbl"}) {
            const QWidget& control = Control(name);
            const QRect place(control.mapTo(window.get(), QPoint(0, 0)), control.size());
            EXPECT_TRUE(inside.contains(place)) << name << " at " << size.width();
        }
    }
}

} // namespace
} // namespace sprout
