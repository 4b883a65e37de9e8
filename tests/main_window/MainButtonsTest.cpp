// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/MainButtons.h"

#include <QAccessible>

#include <array>

#include "main_window/MainWindowTest.h"
#include "support/Flags.h"
#include "ui/help/OpenedHelp.h"

namespace sprout {
namespace {

class MainButtonsTest : public MainWindowTest {};

TEST_F(MainButtonsTest, HasItsButtonsInTheOrderOfTheTable)
{
    int number = 0;
    for (const char* name :
         {"PlayAllBtn",    "PlayStopBtn",    "BrushBtn",        "EraserBtn",      "PlayToolBtn",   "NewBtn",
          "OpenBtn",       "SaveBtn",        "SongTitleChgBtn", "EmailBtn",       "HelpBtn",       "AboutBtn",
          "DemoBtn",       "CloseImgBtn",    "MaximizeImgBtn",  "MinimizeImgBtn", "RestoreImgBtn", "TrackPlayBtn",
          "TrackAudioBtn", "TrackAddRecBtn", "TrackAddBtn",     "TrackDeleteBtn"})
        EXPECT_EQ(window->findChild<ImageButton*>(QString::fromLatin1(name))->Number(), ++number) << name;
}

TEST_F(MainButtonsTest, HasJustOneToolOnAndStartsWithTheBrush)
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

TEST_F(MainButtonsTest, TellsScreenReadersTheChosenTool)
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

TEST_F(MainButtonsTest, PressesAButtonWithAFinger)
{
    QWidget& eraser = Control("EraserBtn");
    static QPointingDevice* const screen = QTest::createTouchDevice();
    QTest::touchEvent(&eraser, screen).press(1, QPoint(20, 20));
    QTest::touchEvent(&eraser, screen).release(1, QPoint(20, 20));
    EXPECT_EQ(FaceOf("EraserBtn"), ButtonFace::PressedOn);
}

TEST_F(MainButtonsTest, MaximizesAndRestoresAndShowsTheButtonThatMakesSense)
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

TEST_F(MainButtonsTest, Minimizes)
{
    ClickButton("MinimizeImgBtn");
    EXPECT_TRUE(window->isMinimized());
}

TEST_F(MainButtonsTest, HasTheTimerOfItsRaisedButtonsOffAtFirst)
{
    // Not shown yet: in a shown window the timer runs if the pointer rests on a button.
    window.reset();
    window = std::make_unique<MainFrm>(transport);
    const auto* timer = window->findChild<QTimer*>(QStringLiteral("ButtonAllOffTimer"));
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(timer->interval(), 5000);
}

TEST_F(MainButtonsTest, TellsThatThereIsNoDemo)
{
    for (const char* name : {"DemoBtn"}) {
        ShowHint(Words::AsIs("Before"));
        ShownMessage message;
        NoteNextMessage(message);
        ClickButton(name);
        EXPECT_FALSE(message.line1.isEmpty()) << name;
        EXPECT_EQ(TextOf("StatusLbl"), "") << name;
    }
}

TEST_F(MainButtonsTest, TellsWhatItIs)
{
    QString form;
    WithNextForm([&form](BandedForm& about) {
        form = about.objectName();
        Click(about, "CloseImgBtn");
    });
    ShowHint(Words::AsIs("Before"));
    ClickButton("AboutBtn");
    EXPECT_EQ(form, QStringLiteral("About_Frm"));
    EXPECT_EQ(TextOf("StatusLbl"), "");
}

TEST_F(MainButtonsTest, OpensTheHelpWithF1AndItsButton)
{
    window->activateWindow();
    EXPECT_EQ(HelpPageOpenedBy(*window, [this] { QTest::keyClick(&Control("TrackPic"), Qt::Key_F1); }),
              "The big window");
    EXPECT_EQ(HelpPageOpenedBy(*window, [this] { ClickButton("HelpBtn"); }), "The big window");
}

TEST_F(MainButtonsTest, TakesItsCommandsFromKeysToo)
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

} // namespace
} // namespace sprout
