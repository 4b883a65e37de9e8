// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ButtonScheme.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>

#include "ui/ModalSteps.h"
#include "ui/widgets/Hints.h"

namespace sprout {
namespace {

/// Three buttons, with the first one's clicks counted in `clicks`, and a status line.
class ButtonSchemeTest : public testing::Test {
protected:
    ButtonSchemeTest()
    {
        SetStatusLbl(&statusLbl);
        window.resize(200, 80);
        stop.move(70, 0);
        brush.move(140, 0);
        window.show();
    }

    QTimer& Timer() { return *scheme.findChild<QTimer*>(QStringLiteral("ButtonAllOffTimer")); }

    QLabel statusLbl;
    QWidget window;
    int clicks = 0;
    ButtonScheme scheme{window, AllOffTimer::OffAtFirst};
    ImageButton& play = scheme.AddButton({"PlayAllBtn", Words::Later("Play all"),
                                          Words::Later("Play all button, use it to play the full song (all tracks)")},
                                         [this] { ++clicks; });
    ImageButton& stop = scheme.AddButton(
        {"PlayStopBtn", Words::Later("Stop"), Words::Later("Stop play button, use it to stop any playing sound")},
        [] {});
    ImageButton& brush = scheme.AddButton({"BrushBtn", Words::Later("Paint brush"), {}}, [] {});
};

TEST_F(ButtonSchemeTest, NamesTheButtonAndSaysWhatItIs)
{
    EXPECT_EQ(window.findChild<ImageButton*>(QStringLiteral("PlayAllBtn")), &play);
    EXPECT_EQ(&scheme.Button("PlayStopBtn"), &stop);
    EXPECT_EQ(play.accessibleName(), QStringLiteral("Play all"));
    EXPECT_EQ(play.accessibleDescription(),
              QStringLiteral("Play all button, use it to play the full song (all tracks)"));
}

TEST_F(ButtonSchemeTest, AMoveRaisesTheButtonShowsItsHintAndStartsFiveSeconds)
{
    EXPECT_FALSE(Timer().isActive());
    QTest::mouseMove(&play, QPoint(20, 20));
    EXPECT_EQ(play.Face(), ButtonFace::Raised);
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Play all button, use it to play the full song (all tracks)"));
    EXPECT_TRUE(Timer().isActive());
    EXPECT_EQ(Timer().interval(), 5000);
    QTest::mouseMove(&stop, QPoint(20, 20));
    EXPECT_EQ(play.Face(), ButtonFace::Normal);
    EXPECT_EQ(stop.Face(), ButtonFace::Raised);
    EXPECT_EQ(statusLbl.text(), QStringLiteral("Stop play button, use it to stop any playing sound"));
}

TEST_F(ButtonSchemeTest, TheTimerLowersTheRaisedButtonAndLeavesTheOneThatIsOn)
{
    scheme.ButtonSetOn(brush);
    QTest::mouseMove(&play, QPoint(20, 20));
    Timer().setInterval(0); // the five seconds are over
    QTest::qWait(1);
    EXPECT_FALSE(Timer().isActive());
    EXPECT_EQ(play.Face(), ButtonFace::Normal);
    EXPECT_EQ(brush.Face(), ButtonFace::PressedOn);
}

TEST_F(ButtonSchemeTest, AFormThatOpensOverAHeldButtonLetsItGo)
{
    QTest::mousePress(&play, Qt::LeftButton);
    QDialog form(&window);
    form.open();
    EXPECT_FALSE(play.isDown());
    EXPECT_EQ(play.Face(), ButtonFace::Raised);
    EXPECT_TRUE(Timer().isActive());
    form.reject();
    QTest::mouseMove(&stop, QPoint(20, 20));
    EXPECT_EQ(stop.Face(), ButtonFace::Raised);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ButtonSchemeTest, PressAndReleaseShowTheirFacesAndClick)
{
    QTest::mousePress(&play, Qt::LeftButton);
    EXPECT_EQ(play.Face(), ButtonFace::Pressed);
    EXPECT_EQ(clicks, 0);
    QTest::mouseRelease(&play, Qt::LeftButton);
    EXPECT_EQ(play.Face(), ButtonFace::Raised);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonSchemeTest, PressingAButtonThatIsOnKeepsItsFace)
{
    scheme.ButtonSetOn(brush);
    QTest::mousePress(&brush, Qt::LeftButton);
    EXPECT_EQ(brush.Face(), ButtonFace::PressedOn);
    QTest::mouseRelease(&brush, Qt::LeftButton);
    EXPECT_EQ(brush.Face(), ButtonFace::PressedOn);
    scheme.ButtonSetNormal(brush);
    EXPECT_EQ(brush.Face(), ButtonFace::Normal);
}

TEST_F(ButtonSchemeTest, EnterAndSpaceClickTheButtonWithTheFocus)
{
    QTest::keyClick(&play, Qt::Key_Return);
    QTest::keyClick(&play, Qt::Key_Space);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ButtonSchemeTest, AKeyHeldDownClicksOnce)
{
    QTest::keyPress(&play, Qt::Key_Return);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        RepeatKey(play, key);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonSchemeTest, AReleaseStartsTheFiveSeconds)
{
    QTest::mousePress(&play, Qt::LeftButton);
    scheme.ButtonHover(stop); // has no effect while a button is held
    EXPECT_FALSE(Timer().isActive());
    QTest::mouseRelease(&play, Qt::LeftButton);
    EXPECT_TRUE(Timer().isActive());
}

TEST_F(ButtonSchemeTest, TheButtonWithTheFocusLooksDifferent)
{
    QApplication::setActiveWindow(&window);
    play.setFocus();
    const QImage without = stop.grab().toImage();
    QTest::keyClick(&play, Qt::Key_Tab);
    ASSERT_TRUE(stop.hasFocus());
    EXPECT_NE(stop.grab().toImage(), without);
    EXPECT_EQ(statusLbl.text(), stop.accessibleDescription());
}

TEST_F(ButtonSchemeTest, TheFourFacesLookDifferentInGrey)
{
    const auto grey = [this](ButtonFace face) {
        play.SetFace(face);
        return play.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    };
    const QList<QImage> faces{grey(ButtonFace::Normal), grey(ButtonFace::Raised), grey(ButtonFace::Pressed),
                              grey(ButtonFace::PressedOn)};
    for (int a = 0; a < faces.size(); ++a) {
        for (int b = a + 1; b < faces.size(); ++b) {
            int differing = 0;
            for (int y = 0; y < faces[a].height(); ++y)
                for (int x = 0; x < faces[a].width(); ++x)
                    differing += qAbs(qGray(faces[a].pixel(x, y)) - qGray(faces[b].pixel(x, y))) > 40;
            EXPECT_GT(differing, 150) << a << " and " << b;
        }
    }
}

} // namespace
} // namespace sprout
