// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainFrm.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>

#include <array>
#include <set>

#include "main_window/MainWindowTest.h"
#include "sound/PlayTest.h"
#include "support/Flags.h"
#include "ui/ModalSteps.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

class MainFrmTest : public MainWindowTest {
protected:
    /// Moves the mouse over the middle of a control and returns the hint shown then.
    [[nodiscard]] std::string HintOver(const char* name) const
    {
        QWidget& control = Control(name);
        Send(control, QEvent::MouseMove, control.mapToGlobal(QPointF(control.rect().center())), Qt::NoButton);
        return TextOf("StatusLbl");
    }

    /// Moves the mouse over an empty place of the control; in the window, that is above the status frame.
    static void MoveOverGround(QWidget& ground)
    {
        const QPoint place = ground.isWindow() ? QPoint(100, ground.height() - 41) : QPoint(3, ground.height() - 3);
        Send(ground, QEvent::MouseMove, ground.mapToGlobal(QPointF(place)), Qt::NoButton);
    }

    void MoveInStrip(QPoint at) const
    {
        QWidget& strip = Control("TrackTitlePic");
        Send(strip, QEvent::MouseMove, strip.mapToGlobal(QPointF(at)), Qt::NoButton);
    }
};

struct Hint {
    const char* control;
    const char* text;
};

/// Where the mouse must be in the title strip for a button to appear.
struct StripPoint {
    const char* control;
    int x;
};

constexpr std::array kHints{
    Hint{"AboutBtn", "About button, use it to read about Tonquill"},
    Hint{"BrushBtn", "Paint brush button, use this to choose paint brush for painting the tracks"},
    Hint{"CloseImgBtn", "Close button"},
    Hint{"EmailBtn", "Email Song button, use it to send this song to your friend by email"},
    Hint{"EraserBtn", "Eraser button, use this to choose eraser for painting the tracks"},
    Hint{"HelpBtn", "Help button, use it to see help"},
    Hint{"MaximizeImgBtn", "Maximize button"},
    Hint{"MinimizeImgBtn", "Minimize button"},
    Hint{"NewBtn", "New button, use it to start making your own new song"},
    Hint{"OpenBtn", "Open button, use it to open an existing song"},
    Hint{"PlayAllBtn", "Play all button, use it to play the full song (all tracks)"},
    Hint{"PlayStopBtn", "Stop play button, use it to stop any playing sound"},
    Hint{"PlayToolBtn", "Play Tool button, choose this button and click on track to play from there"},
    Hint{"RestoreImgBtn", "Restore button"},
    Hint{"SaveBtn", "Save button, use it to save the song you made"},
    Hint{"SngCreateLbl", "Song created by.., use the 'Change button' to enter your name there"},
    Hint{"SngCreate2Lbl", "Song created by.., use the 'Change button' to enter your name there"},
    Hint{"SngDurLbl", "Song duration in seconds"},
    Hint{"SngTitleLbl", "Song name, use the 'Change button' to change it"},
    Hint{"SngTitle2Lbl", "Song name, use the 'Change button' to change it"},
    Hint{"SongTitleChgBtn", "Change button, use it to change 'Song name' and 'Created by'"},
    Hint{"TempoLbl", "Tempo percentage, use the tempo slider to change"},
    Hint{"TempoPrtImg", "Slide this pointer to adjust tempo"},
    Hint{"TempoSliderImg", "Tempo slider, use it to change the speed of the song"},
    Hint{"TrackAddBtn", "Add Music track button. Use it to add a new music track"},
    Hint{"TrackAddRecBtn", "Add Audio track button. Use it to record your voice sound or choose a wav file to add as "
                           "an audio track"},
    Hint{"TrackAudioBtn", "Recorded button, Click to edit your recording on this track"},
    Hint{"TrackDeleteBtn", "Delete button, Click to delete this track"},
    Hint{"TrackPlayBtn", "Track play button, use it to test play this track"},
    Hint{"TrackTuneBtn", "Tune button, Click to choose a tune, keep mouse over it to play"},
};

TEST_F(MainFrmTest, HasItsButtonsInTheOrderOfTheTable)
{
    int number = 0;
    for (const char* name :
         {"PlayAllBtn",    "PlayStopBtn",    "BrushBtn",        "EraserBtn",      "PlayToolBtn",   "NewBtn",
          "OpenBtn",       "SaveBtn",        "SongTitleChgBtn", "EmailBtn",       "HelpBtn",       "AboutBtn",
          "DemoBtn",       "CloseImgBtn",    "MaximizeImgBtn",  "MinimizeImgBtn", "RestoreImgBtn", "TrackPlayBtn",
          "TrackAudioBtn", "TrackAddRecBtn", "TrackAddBtn",     "TrackDeleteBtn"})
        EXPECT_EQ(window->findChild<ImageButton*>(QString::fromLatin1(name))->Number(), ++number) << name;
}

TEST_F(MainFrmTest, TellsWhatEachControlIsFor)
{
    for (const Hint& hint : kHints) {
        // The buttons of a track appear under the mouse.
        for (const StripPoint& button :
             {StripPoint{"TrackTuneBtn", 30}, StripPoint{"TrackDeleteBtn", 76}, StripPoint{"TrackPlayBtn", 115}})
            if (std::string_view(hint.control) == button.control)
                MoveInStrip(QPoint(button.x, 40));
        if (std::string_view(hint.control) == "RestoreImgBtn")
            window->showMaximized();
        ShowHint(QStringLiteral("Before"));
        EXPECT_EQ(HintOver(hint.control), hint.text) << hint.control;
    }
}

TEST_F(MainFrmTest, HasNoHintForTheDemoButton)
{
    EXPECT_EQ(HintOver("DemoBtn"), "");
}

TEST_F(MainFrmTest, ClearsTheHintOverItsBackground)
{
    for (const char* name :
         {"Corner3Pic", "Corner4Pic", "Label1", "Label5", "TrackTopLbl", "SoundStatusLbl", "StatusLbl"}) {
        ShowHint(QStringLiteral("Before"));
        EXPECT_EQ(HintOver(name), "") << name;
    }
    QWidget& bar = Control("ControlFramePic");
    for (QWidget* ground : {static_cast<QWidget*>(window.get()), &bar}) {
        ShowHint(QStringLiteral("Before"));
        MoveOverGround(*ground);
        EXPECT_EQ(TextOf("StatusLbl"), "") << ground->objectName().toStdString();
    }
    QWidget& frame = Control("StatusFramePic");
    Send(frame, QEvent::MouseMove, frame.mapToGlobal(QPointF(3, 3)), Qt::NoButton);
    EXPECT_EQ(TextOf("StatusLbl"), "Move the mouse over any button to read help clue here");
}

TEST_F(MainFrmTest, ClearsTheHintOverTheGapsOfTheTempoBar)
{
    QWidget& seconds = Control("SngDurLbl");
    QWidget& bar = *seconds.parentWidget();
    EXPECT_NE(HintOver("SngDurLbl"), "");
    QPoint gap;
    while (gap.y() < bar.height() && bar.childAt(gap))
        gap = gap.x() < bar.width() - 1 ? gap + QPoint(1, 0) : QPoint(0, gap.y() + 1);
    ASSERT_LT(gap.y(), bar.height());
    Send(bar, QEvent::MouseMove, bar.mapToGlobal(QPointF(gap)), Qt::NoButton);
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(MainFrmTest, ClearsTheHintWhenAButtonIsClicked)
{
    for (const char* name :
         {"BrushBtn", "EraserBtn", "PlayToolBtn", "MaximizeImgBtn", "RestoreImgBtn", "MinimizeImgBtn"}) {
        ShowHint(QStringLiteral("An older hint"));
        static_cast<QAbstractButton&>(Control(name)).click();
        EXPECT_EQ(TextOf("StatusLbl"), "") << name;
    }
}

TEST_F(MainFrmTest, HidesTheButtonsOfATrackOverThreePartsOfItsBackground)
{
    QWidget& bar = Control("ControlFramePic");
    QWidget& corner = Control("Corner3Pic");
    for (QWidget* ground : {static_cast<QWidget*>(window.get()), &bar, &corner}) {
        MoveInStrip(QPoint(110, 40));
        ASSERT_TRUE(Control("TrackPlayBtn").isVisible());
        MoveOverGround(*ground);
        EXPECT_FALSE(Control("TrackPlayBtn").isVisible()) << ground->objectName().toStdString();
    }
    MoveInStrip(QPoint(110, 40));
    EXPECT_EQ(HintOver("Corner4Pic"), "");
    EXPECT_TRUE(Control("TrackPlayBtn").isVisible());
    EXPECT_EQ(HintOver("TrackPlayBtn"), "Track play button, use it to test play this track");
    EXPECT_TRUE(Control("TrackPlayBtn").isVisible());
}

TEST_F(MainFrmTest, HasJustOneToolOnAndStartsWithTheBrush)
{
    const auto faces = [this] { return std::array{FaceOf("BrushBtn"), FaceOf("EraserBtn"), FaceOf("PlayToolBtn")}; };
    using Faces = std::array<ButtonFace, 3>;
    constexpr ButtonFace on = ButtonFace::PressedOn;
    constexpr ButtonFace off = ButtonFace::Normal;
    EXPECT_EQ(faces(), (Faces{on, off, off}));
    ClickButton("EraserBtn");
    EXPECT_EQ(faces(), (Faces{off, on, off}));
    ClickButton("PlayToolBtn");
    EXPECT_EQ(faces(), (Faces{off, off, on}));
    ClickButton("BrushBtn");
    EXPECT_EQ(faces(), (Faces{on, off, off}));
}

TEST_F(MainFrmTest, TellsScreenReadersTheChosenTool)
{
    const auto chosen = [this](const char* name) {
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Control(name));
        EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
        return static_cast<bool>(spoken->state().checked);
    };
    EXPECT_TRUE(chosen("BrushBtn"));
    EXPECT_FALSE(chosen("EraserBtn"));
    ClickButton("EraserBtn");
    EXPECT_FALSE(chosen("BrushBtn"));
    EXPECT_TRUE(chosen("EraserBtn"));
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

TEST_F(MainFrmTest, PressesAButtonWithAFinger)
{
    QWidget& eraser = Control("EraserBtn");
    static QPointingDevice* const screen = QTest::createTouchDevice();
    QTest::touchEvent(&eraser, screen).press(1, QPoint(20, 20));
    QTest::touchEvent(&eraser, screen).release(1, QPoint(20, 20));
    EXPECT_EQ(FaceOf("EraserBtn"), ButtonFace::PressedOn);
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

TEST_F(MainFrmTest, MaximizesAndRestoresAndShowsTheButtonThatMakesSense)
{
    EXPECT_TRUE(Control("MaximizeImgBtn").isVisible());
    EXPECT_FALSE(Control("RestoreImgBtn").isVisible());
    ClickButton("MaximizeImgBtn");
    EXPECT_TRUE(window->isMaximized());
    EXPECT_FALSE(Control("MaximizeImgBtn").isVisible());
    EXPECT_TRUE(Control("RestoreImgBtn").isVisible());
    ClickButton("RestoreImgBtn");
    EXPECT_FALSE(window->isMaximized());
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
    EXPECT_TRUE(Control("MaximizeImgBtn").isVisible());
}

TEST_F(MainFrmTest, Minimizes)
{
    ClickButton("MinimizeImgBtn");
    EXPECT_TRUE(window->isMinimized());
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

TEST_F(MainFrmTest, IsResizedByItsEdgesAndCorners)
{
    Drag(Control("GripRight"), QPoint(3, 100), QPoint(20, 5));
    EXPECT_EQ(window->geometry(), QRect(50, 60, 720, 500));
    Drag(Control("GripTopLeft"), QPoint(3, 3), QPoint(-10, 12));
    EXPECT_EQ(window->geometry(), QRect(40, 72, 730, 488));
    Drag(Control("GripBottom"), QPoint(300, 3), QPoint(5, -400));
    EXPECT_EQ(window->geometry(), QRect(40, 72, 730, 200));
}

TEST_F(MainFrmTest, HasNoEdgesToDragWhileItIsMaximized)
{
    EXPECT_EQ(Control("GripLeft").cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(Control("GripTopRight").cursor().shape(), Qt::SizeBDiagCursor);
    window->showMaximized();
    EXPECT_FALSE(Control("GripLeft").isVisible());
}

TEST_F(MainFrmTest, GetsNoSmallerThanItMay)
{
    EXPECT_EQ(window->minimumSize(), QSize(533, 200));
}

TEST_F(MainFrmTest, StandsWhereTheSettingsTell)
{
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
    EXPECT_FALSE(window->isMaximized());
}

TEST_F(MainFrmTest, TakesEightTenthsOfTheScreenInPlaceOfASizeLargerThanIt)
{
    const QSize screen = window->screen()->size();
    PutSetting("MainWindow", "Size", "90000,90000");
    PutSetting("MainWindow", "Position", "-1,-1");
    Open();
    EXPECT_EQ(window->size(), QSize(screen.width() * 8 / 10, screen.height() * 8 / 10));
    EXPECT_EQ(window->pos(), QPoint(screen.width() / 10, screen.height() / 10));
}

TEST_F(MainFrmTest, OpensMaximizedAsLongAsNothingElseIsStored)
{
    std::filesystem::remove(Shared().SettingsFile);
    Open();
    EXPECT_TRUE(window->isMaximized());
    EXPECT_TRUE(Control("RestoreImgBtn").isVisible());
}

TEST_F(MainFrmTest, OpensAsNormalWhereItWasClosedMinimized)
{
    PutSetting("MainWindow", "WindowState", "1");
    Open();
    EXPECT_EQ(window->windowState(), Qt::WindowNoState);
    EXPECT_EQ(window->geometry(), QRect(50, 60, 700, 500));
}

TEST_F(MainFrmTest, StoresItsPlaceWhenItCloses)
{
    QSignalSpy unloaded(window.get(), &MainFrm::Unloaded);
    window->setGeometry(11, 22, 640, 333);
    ClickButton("CloseImgBtn");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(unloaded.count(), 1);
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "0");
    EXPECT_EQ(GetSetting("MainWindow", "Position", ""), "165,330");
    EXPECT_EQ(GetSetting("MainWindow", "Size", ""), "9600,4995");
}

TEST_F(MainFrmTest, StoresOnlyItsStateWhenItIsClosedMaximizedOrMinimized)
{
    window->showMaximized();
    window->close();
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "2");
    Open();
    window->showMinimized();
    window->close();
    EXPECT_EQ(GetSetting("MainWindow", "WindowState", ""), "1");
    EXPECT_EQ(GetSetting("MainWindow", "Position", ""), "750,900");
    EXPECT_EQ(GetSetting("MainWindow", "Size", ""), "10500,7500");
}

TEST_F(MainFrmTest, ShutsTheSoundWhenItCloses)
{
    SetSoundDriver(true);
    PlayWaveStatus(Shared().TestTone, "Playing", Loop::No);
    ASSERT_EQ(PlayShared().SoundDriver, 1);
    window->close();
    EXPECT_EQ(PlayShared().SoundDriver, 0);
    EXPECT_EQ(fake.sound.open, 0);
}

TEST_F(MainFrmTest, StaysWhereTheSaveQuestionIsCancelled)
{
    SetSongChanged(Song(), true);
    QSignalSpy unloaded(window.get(), &MainFrm::Unloaded);
    WithNextForm([](BandedForm& form) { Click(form, "Cancel_Btn"); });
    ClickButton("CloseImgBtn");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(unloaded.count(), 0);
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(Song().SongTitle, "Untitled");
}

TEST_F(MainFrmTest, ComesUpWithTheSaveQuestionWhereItIsClosedMinimized)
{
    SetSongChanged(Song(), true);
    window->showMinimized();
    WithNextForm([this](BandedForm& form) {
        EXPECT_FALSE(window->isMinimized());
        Click(form, "Cancel_Btn");
    });
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(MainFrmTest, HasTheTimerOfItsRaisedButtonsOffAtFirst)
{
    // Not shown yet: in a shown window the timer runs if the pointer rests on a button.
    window.reset();
    window = std::make_unique<MainFrm>(transport);
    const auto* timer = window->findChild<QTimer*>(QStringLiteral("ButtonAllOffTimer"));
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(timer->interval(), 5000);
}

TEST_F(MainFrmTest, ClosesWithoutSavingWhereTheSaveQuestionIsAnsweredNo)
{
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "NoBtn"); });
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(MainFrmTest, SavesTheSongAndClosesWhereTheSaveQuestionIsAnsweredYes)
{
    SetSongChanged(Song(), true);
    WithNextForm([](BandedForm& form) { Click(form, "YesBtn"); });
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(std::filesystem::exists(SongPath("Untitled")));
}

TEST_F(MainFrmTest, StaysWhereTheSongCannotBeSaved)
{
    SetSongChanged(Song(), true);
    std::filesystem::remove_all(Shared().UserSongs);
    WriteBytes(Shared().UserSongs.parent_path(), "no folder, and none can be made here");
    ShownMessage message;
    WithNextForm([&message](BandedForm& form) {
        NoteNextMessage(message);
        Click(form, "YesBtn");
    });
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_TRUE(message.line1.startsWith(QStringLiteral("Error Saving file\r\n"))) << qPrintable(message.line1);
}

TEST_F(MainFrmTest, TellsWhetherThereIsASoundDevice)
{
    window->ShowSoundDevices(2);
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Ready");
    window->ShowSoundDevices(0);
    EXPECT_EQ(TextOf("SoundStatusLbl"), "Device Failed:");
}

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

TEST_F(MainFrmTest, TellsInRedThatThereIsNoSoundDeviceAndInBarkWhatThePlayerDoes)
{
    QWidget& label = Control("SoundStatusLbl");
    const QColor red(255, 0, 0);
    window->ShowSoundDevices(0);
    EXPECT_TRUE(HasPixel(label, red));
    transport.ShowSoundStatus("Playing All");
    EXPECT_FALSE(HasPixel(label, red));
    window->ShowSoundDevices(1);
    EXPECT_FALSE(HasPixel(label, red));
}

TEST_F(MainFrmTest, TellsThatAButtonIsForLater)
{
    for (const char* name : {"DemoBtn"}) {
        ShowHint(QStringLiteral("Before"));
        ShownMessage message;
        NoteNextMessage(message);
        ClickButton(name);
        EXPECT_FALSE(message.line1.isEmpty()) << name;
        EXPECT_EQ(TextOf("StatusLbl"), "") << name;
    }
}

TEST_F(MainFrmTest, AsksWhereAnAudioTrackComesFrom)
{
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("Msg3BtnFrm"));
        Click(form, "CancelBtn");
    });
    ClickButton("TrackAddRecBtn");
    EXPECT_FALSE(Song().SongChanged);
}

TEST_F(MainFrmTest, MakesATrackOfARecordingThatIsFinishedAndOfNoOther)
{
    fake.capture.leftSamples = {1, 2, 3};
    fake.capture.rightSamples = {4, 5, 6};
    const std::int32_t before = Song().TrackCount;
    const auto record = [this](const char* button) {
        WithNextForm([this, button](BandedForm& question) {
            WithNextForm([button](BandedForm& form) {
                EXPECT_EQ(form.objectName(), QStringLiteral("Recd_Frm"));
                Click(form, button);
            });
            Click(question, "StartRecordingBtn");
        });
        ClickButton("TrackAddRecBtn");
        EXPECT_EQ(fake.capture.calls.back(), "Release");
    };
    record("Cancel_Btn");
    EXPECT_EQ(Song().TrackCount, before);
    EXPECT_FALSE(Song().SongChanged);
    record("RecFinishBtn");
    ASSERT_EQ(Song().TrackCount, before + 1);
    const Track& track = At(Song().Tracks, before + 1);
    EXPECT_TRUE(track.IsAudio());
    EXPECT_EQ(track.TrackAudio.Length, 2);
    EXPECT_EQ(track.TrackAudio.WavL[1], 2) << "the first sample is lost";
    EXPECT_EQ(track.TrackAudio.WavR[2], 6);
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_TRUE(std::filesystem::is_empty(Shared().TempFolder)) << "no voice is left";
}

TEST_F(MainFrmTest, RecordsNothingWhereTheMicrophoneCannotBeOpened)
{
    fake.capture.opening = CaptureOpening::NoMicrophone;
    const std::int32_t before = Song().TrackCount;
    std::string told;
    WithNextForm([&told](BandedForm& question) {
        WithNextForm([&told](BandedForm& form) {
            told = form.findChild<QLabel*>(QStringLiteral("NoteLbl2"))->text().toStdString();
            Click(form, "OkBtn");
        });
        Click(question, "StartRecordingBtn");
    });
    ClickButton("TrackAddRecBtn");
    EXPECT_EQ(told, "Please plug in a microphone.");
    EXPECT_EQ(Song().TrackCount, before);
    EXPECT_EQ(fake.capture.calls, (std::vector<std::string>{"ListSources", "Open", "Release"}));
}

TEST_F(MainFrmTest, EditsTheSoundOfAnAudioTrack)
{
    Track& track = At(Song().Tracks, 1);
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio = CountingWave(1000);
    window->DrawTracksAll();
    QTest::mouseMove(&Control("TrackTitlePic"), QPoint(1, 1));
    QTest::mouseMove(&Control("TrackTitlePic"), QPoint(30, 40));
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("AudioEditFrm"));
        Click(form, "CancelBtn");
    });
    ClickButton("TrackAudioBtn");
    EXPECT_FALSE(Song().SongChanged);
}

TEST_F(MainFrmTest, TakesADroppedSound)
{
    const std::filesystem::path file = Shared().TempFolder / "Voice.wav";
    SaveWaveFile(CountingWave(100), file);
    const std::int32_t before = Song().TrackCount;
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.native()))});
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(Song().TrackCount, before) << "not within the event";
    QApplication::processEvents();
    ASSERT_EQ(Song().TrackCount, before + 1);
    EXPECT_EQ(At(Song().Tracks, before + 1).TrackAudio.Length, 100);

    QMimeData text;
    text.setText(QStringLiteral("no file"));
    QDragEnterEvent other(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(window.get(), &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(MainFrmTest, MailsTheSong)
{
    ShowHint(QStringLiteral("Before"));
    ClickButton("EmailBtn");
    EXPECT_EQ(TextOf("StatusLbl"), "Please paint on the track.");
    Song().SongMix = CountingWave(1000);
    SetSongMixValid(Song(), true);
    ClickButton("EmailBtn");
    fake.mail.WaitForMessage();
    EXPECT_EQ(fake.mail.messages.front().Subject, "Song i composed myself - Untitled");
}

TEST_F(MainFrmTest, WaitsForNoMailProgramOnceItIsClosed)
{
    Song().SongMix = CountingWave(1000);
    SetSongMixValid(Song(), true);
    fake.mail.takesItsTime = true;
    ClickButton("EmailBtn");
    fake.mail.WaitForMessage();
    window->close();
    EXPECT_TRUE(fake.mail.wasStopped);
}

TEST_F(MainFrmTest, HasNoMailWhereItIsSwitchedOff)
{
    for (const char* value : {"1", "1.0", " 1x"}) {
        PutSetting("General", "HideEmail", value);
        Open();
        EXPECT_FALSE(Control("EmailBtn").isVisible()) << value;
    }
    const int gap = Control("HelpBtn").x() - Control("SaveBtn").geometry().right();
    Control("SongTitleChgBtn").setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Control("HelpBtn"));
    for (const char* value : {"0", "", "1.2", "yes"}) {
        PutSetting("General", "HideEmail", value);
        Open();
        EXPECT_TRUE(Control("EmailBtn").isVisible()) << value;
    }
    EXPECT_EQ(Control("HelpBtn").x() - Control("EmailBtn").geometry().right(), gap);
}

TEST_F(MainFrmTest, ReadsOnlyOnceWhetherMailIsSwitchedOff)
{
    PutSetting("General", "HideEmail", "1");
    window->resize(800, 600);
    window->showMaximized();
    EXPECT_TRUE(Control("EmailBtn").isVisible());
}

TEST_F(MainFrmTest, TellsWhatItIs)
{
    QString form;
    WithNextForm([&form](BandedForm& about) {
        form = about.objectName();
        Click(about, "CloseImgBtn");
    });
    ShowHint(QStringLiteral("Before"));
    ClickButton("AboutBtn");
    EXPECT_EQ(form, QStringLiteral("About_Frm"));
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

QWidget* OpenHelpWindow()
{
    for (QWidget* candidate : QApplication::topLevelWidgets())
        if (candidate->objectName() == QStringLiteral("HelpFrm") && candidate->isVisible())
            return candidate;
    return nullptr;
}

TEST_F(MainFrmTest, OpensTheHelpWithF1AndItsButton)
{
    window->activateWindow();
    QTest::keyClick(&Control("TrackPic"), Qt::Key_F1);
    QWidget* help = OpenHelpWindow();
    ASSERT_NE(help, nullptr);
    delete help;
    ClickButton("HelpBtn");
    help = OpenHelpWindow();
    ASSERT_NE(help, nullptr);
    delete help;
}

TEST_F(MainFrmTest, TakesItsCommandsFromKeysToo)
{
    struct Keys {
        Qt::Key key;
        const char* form;
    };
    for (const Keys& keys :
         {Keys{Qt::Key_O, "SongSelFrm"}, Keys{Qt::Key_S, "SongSelFrm"}, Keys{Qt::Key_N, "SaveConfirmFrm"}}) {
        Activate();
        SetSongChanged(Song(), keys.key == Qt::Key_N);
        QString form;
        WithNextForm([&form](BandedForm& next) {
            form = next.objectName();
            Click(next, "CloseImgBtn");
        });
        QTest::keyClick(window.get(), keys.key, Qt::ControlModifier);
        EXPECT_EQ(form, QString::fromLatin1(keys.form));
    }
}

TEST_F(MainFrmTest, BeginsWithTheFocusOnTheTracks)
{
    EXPECT_EQ(window->focusWidget(), &Control("TrackPic"));
}

TEST_F(MainFrmTest, ReachesEveryVisibleButtonOfItsBarByTab)
{
    std::set<QString> reached;
    for (int i = 0; i < 60; ++i) {
        reached.insert(window->focusWidget()->objectName());
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    }
    for (const char* name :
         {"PlayAllBtn",  "PlayStopBtn",    "BrushBtn",        "EraserBtn",      "PlayToolBtn", "NewBtn",
          "OpenBtn",     "SaveBtn",        "SongTitleChgBtn", "EmailBtn",       "HelpBtn",     "AboutBtn",
          "DemoBtn",     "CloseImgBtn",    "MaximizeImgBtn",  "MinimizeImgBtn", "TempoPrtImg", "TrackTitlePic",
          "TrackAddBtn", "TrackAddRecBtn", "TrackPic"})
        EXPECT_TRUE(reached.count(QString::fromLatin1(name))) << name;
}

TEST_F(MainFrmTest, GoesByTabFromTheToolsToTheTitlesToItsOwnButtonsAndToTheTracks)
{
    QStringList reached;
    Control("PlayAllBtn").setFocus();
    do {
        reached << window->focusWidget()->objectName();
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    } while (window->focusWidget() != &Control("PlayAllBtn") && reached.size() < 60);
    EXPECT_EQ(reached.join(QLatin1Char(' ')).toStdString(),
              "PlayAllBtn PlayStopBtn BrushBtn EraserBtn PlayToolBtn NewBtn OpenBtn SaveBtn SongTitleChgBtn EmailBtn "
              "HelpBtn AboutBtn DemoBtn TempoPrtImg Label5 Label1 TrackTitlePic TrackAddBtn TrackAddRecBtn "
              "CloseImgBtn MaximizeImgBtn MinimizeImgBtn TrackPic");
}

TEST_F(MainFrmTest, TheFirstTabStandsOnPlayAll)
{
    ASSERT_EQ(window->focusWidget(), &Control("TrackPic"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), &Control("PlayAllBtn"));
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

TEST_F(MainFrmTest, GivesTheRoomOfTheStatusLineToTheTracksInTheLowestWindow)
{
    window->resize(533, 200);
    EXPECT_FALSE(Control("StatusFramePic").isVisible());
    EXPECT_FALSE(Control("Corner4Pic").isVisible());
    EXPECT_EQ(Control("TrackFramePic").geometry().bottom(), 193);
    EXPECT_GT(Control("TrackPic").height(), 20 + 7);
    window->resize(533, 266);
    EXPECT_TRUE(Control("StatusFramePic").isVisible());
    EXPECT_TRUE(Control("Corner4Pic").isVisible());
    EXPECT_EQ(Control("TrackPic").height(), 20 + 46);
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
