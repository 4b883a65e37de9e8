// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePic.h"

#include <QAccessible>

#include "recording/WavePicFixture.h"

namespace sprout {
namespace {

using testing::ElementsAre;

class WavePicTest : public WavePicFixture {};

TEST_F(WavePicTest, LetsBandAndMarkerLieOverTheWave)
{
    Show(SilenceOf(100));
    auto* band = pic.findChild<QWidget*>(QStringLiteral("SelectBandShp"));
    auto* marker = pic.findChild<QWidget*>(QStringLiteral("PlayPosShp"));
    EXPECT_FALSE(band->isVisible());
    EXPECT_EQ(marker->geometry(), QRect(-2, 0, 2, 65));
    pic.ShowBand({20, 30});
    EXPECT_TRUE(band->isVisible());
    EXPECT_EQ(band->geometry(), QRect(20, 1, 30, 63));
    pic.MovePlayMarker(7);
    EXPECT_EQ(marker->geometry(), QRect(7, 0, 2, 65));
    EXPECT_EQ(Pixel(7, 5), ColourOf(Shared().WaveColours.PlayPosIndiColor));
    EXPECT_EQ(Pixel(8, 5), ColourOf(Shared().WaveColours.PlayPosIndiColor));
    EXPECT_EQ(Pixel(9, 5), Back());
    pic.HideBand();
    EXPECT_FALSE(band->isVisible());
}

TEST_F(WavePicTest, ReportsTheLeftButtonAlone)
{
    QTest::mousePress(&pic, Qt::RightButton, {}, {20, 20});
    QTest::mouseMove(&pic, {25, 20});
    QTest::mouseRelease(&pic, Qt::RightButton, {}, {30, 20});
    EXPECT_THAT(noted, ElementsAre());
    QTest::mousePress(&pic, Qt::LeftButton, {}, {20, 20});
    QTest::mouseMove(&pic, {25, 20});
    QTest::mouseRelease(&pic, Qt::RightButton, {}, {28, 20});
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {30, 20});
    QTest::mouseMove(&pic, {35, 20});
    EXPECT_THAT(noted, ElementsAre("press 20", "move 25", "release 30"));
}

TEST_F(WavePicTest, CountsAButtonThatIsLetGoOutsideAsUp)
{
    QTest::mousePress(&pic, Qt::LeftButton, {}, {20, 20});
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {500, 400});
    EXPECT_THAT(noted, ElementsAre("press 20", "release 500"));
}

TEST_F(WavePicTest, CountsAButtonThatAMessageTakesAwayAsUp)
{
    QTest::mousePress(&pic, Qt::LeftButton, {}, {20, 20});
    QTest::mouseMove(&pic, {40, 20});
    QEvent blocked(QEvent::WindowBlocked);
    QApplication::sendEvent(&window, &blocked);
    EXPECT_THAT(noted, ElementsAre("press 20", "move 40", "release 40"));
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {50, 20});
    EXPECT_THAT(noted, testing::SizeIs(3));
}

TEST_F(WavePicTest, CountsAButtonAsUpWhereThePictureIsHidden)
{
    QTest::mousePress(&pic, Qt::LeftButton, {}, {20, 20});
    window.hide();
    EXPECT_THAT(noted, ElementsAre("press 20", "release 20"));
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {20, 20}); // or the next tests would begin with it down
}

TEST_F(WavePicTest, ReportsTheKeysOfTheCursor)
{
    QTest::keyClick(&pic, Qt::Key_Left);
    QTest::keyClick(&pic, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&pic, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&pic, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&pic, Qt::Key_Home, Qt::ShiftModifier);
    QTest::keyClick(&pic, Qt::Key_End);
    QTest::keyClick(&pic, Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(noted, ElementsAre("0", "1 selects", "2", "3 selects", "4 selects", "5", "all"));
}

TEST_F(WavePicTest, LeavesTheSelectionToTheMouseWhileItIsDown)
{
    QTest::mousePress(&pic, Qt::LeftButton, {}, {20, 20});
    QTest::keyClick(&pic, Qt::Key_Left);
    QTest::keyClick(&pic, Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(noted, ElementsAre("press 20"));
    QTest::mouseRelease(&pic, Qt::LeftButton, {}, {20, 20});
}

TEST_F(WavePicTest, TellsScreenReadersWhatIsSelected)
{
    pic.Speak(Words::AsIs("1.2 to 3.4 seconds"));
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&pic);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Your recorded sound: 1.2 to 3.4 seconds"));
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
}

} // namespace
} // namespace sprout
