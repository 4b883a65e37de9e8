// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePic.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QTest>

#include <set>

#include "core/Shared.h"
#include "recording/rules/WaveMaker.h"
#include "support/FakeServices.h"
#include "ui/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;

constexpr QSize kSize{101, 65};

/// A picture of 101 x 65 pixels: the samples of a wave of 100 are one pixel apart, the zero line is row 32.
class WavePicTest : public testing::Test {
protected:
    WavePicTest()
    {
        window.resize(200, 100);
        pic.setGeometry(10, 10, kSize.width(), kSize.height());
        window.show();
        QApplication::setActiveWindow(&window);
        pic.setFocus();
        QObject::connect(&pic, &WavePic::Pressed, [this](double x) { Note("press", x); });
        QObject::connect(&pic, &WavePic::Moved, [this](double x) { Note("move", x); });
        QObject::connect(&pic, &WavePic::Released, [this](double x) { Note("release", x); });
        QObject::connect(&pic, &WavePic::AllWanted, [this] { noted.emplace_back("all"); });
        QObject::connect(&pic, &WavePic::CursorMoved, [this](WaveMove move, WaveKeep keep) {
            noted.push_back(std::to_string(static_cast<int>(move)) + (keep == WaveKeep::Selection ? " selects" : ""));
        });
    }

    void Note(const char* what, double x) { noted.push_back(what + (" " + std::to_string(static_cast<int>(x)))); }

    void Show(const WaveData& wave)
    {
        view.FitAll = true;
        pic.Show(DrawWaveform(wave, pic.ScaleSize(), view));
    }

    /// The pixel as it appears on the screen.
    [[nodiscard]] QColor Pixel(int x, int y) { return pic.grab().toImage().pixelColor(x, y); }

    static QColor Back() { return ColourOf(Shared().WaveColours.NormalBackColor); }
    static QColor Selected() { return ColourOf(Shared().WaveColours.SelectBackColor); }
    static QColor Centre() { return ColourOf(Shared().WaveColours.CenterLineColor); }
    static QColor LeftColour() { return ColourOf(Shared().WaveColours.WaveFormNormalColorL); }
    static QColor RightColour() { return ColourOf(Shared().WaveColours.WaveFormNormalColorR); }

    FakeServices services;
    QWidget window;
    WavePic pic{&window};
    WaveView view;
    std::vector<std::string> noted;
};

std::vector<std::int16_t> Peaks(std::initializer_list<std::pair<int, int>> peaks)
{
    std::vector<std::int16_t> samples(100);
    for (const auto& [sample, value] : peaks)
        samples[static_cast<std::size_t>(sample - 1)] = static_cast<std::int16_t>(value);
    return samples;
}

TEST_F(WavePicTest, IsBackgroundAloneForAnEmptyWave)
{
    Show(WaveData());
    const QImage image = pic.Draw(1);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(image.pixelColor(x, y), Back()) << x << ", " << y;
}

TEST_F(WavePicTest, DrawsAPointForASingleSample)
{
    Show(SilenceOf(1));
    EXPECT_EQ(Pixel(0, 32), LeftColour());
    EXPECT_EQ(Pixel(1, 32), Centre());
    EXPECT_EQ(Pixel(100, 32), Centre());
    EXPECT_EQ(Pixel(0, 31), Back());
    EXPECT_EQ(Pixel(0, 33), Back());
}

TEST_F(WavePicTest, DrawsLinesWithBothEnds)
{
    Show(MonoOf(Peaks({{51, 16384}, {61, -16384}}))); // x 50 and 60, 16 rows from the middle
    EXPECT_EQ(Pixel(50, 16), LeftColour());
    EXPECT_EQ(Pixel(50, 15), Back());
    EXPECT_EQ(Pixel(60, 48), LeftColour());
    EXPECT_EQ(Pixel(60, 49), Back());
    EXPECT_EQ(Pixel(0, 32), LeftColour());
    EXPECT_EQ(Pixel(99, 32), LeftColour());
    EXPECT_EQ(Pixel(100, 32), Centre());
}

TEST_F(WavePicTest, DrawsTheRightChannelOverTheLeft)
{
    Show(StereoOf(Peaks({{51, 16384}}), Peaks({{51, 8192}})));
    EXPECT_EQ(Pixel(50, 16), LeftColour());
    EXPECT_EQ(Pixel(50, 24), RightColour());
    EXPECT_EQ(Pixel(50, 23), LeftColour());
    EXPECT_EQ(Pixel(0, 32), RightColour());
}

TEST_F(WavePicTest, DrawsASelectedPlaceAsDashes)
{
    view.SelectionStart = view.SelectionEnd = 21;
    Show(SilenceOf(100));
    EXPECT_EQ(Pixel(20, 1), Back());
    for (const int y : {2, 5, 10, 13, 58, 61})
        EXPECT_EQ(Pixel(20, y), Selected()) << y;
    for (const int y : {6, 9, 14, 62, 63, 64})
        EXPECT_EQ(Pixel(20, y), Back()) << y;
    EXPECT_EQ(Pixel(19, 2), Back());
    EXPECT_EQ(Pixel(21, 2), Back());
}

TEST_F(WavePicTest, FillsASelectedPartWithBothItsEdgesBehindTheWave)
{
    view.SelectionStart = 21;
    view.SelectionEnd = 41;
    Show(SilenceOf(100));
    for (const int y : {0, 64})
        for (const int x : {20, 40})
            EXPECT_EQ(Pixel(x, y), Selected()) << x << ", " << y;
    EXPECT_EQ(Pixel(19, 0), Back());
    EXPECT_EQ(Pixel(41, 0), Back());
    EXPECT_EQ(Pixel(30, 32), LeftColour());
}

TEST_F(WavePicTest, TakesItsColoursFromTheSettings)
{
    Shared().WaveColours.NormalBackColor = 0x123456;
    Show(WaveData());
    EXPECT_EQ(Pixel(5, 5), QColor(0x56, 0x34, 0x12));
}

TEST_F(WavePicTest, IsSharpOnEveryScreen)
{
    view.SelectionStart = 21;
    view.SelectionEnd = 41;
    Show(StereoOf(Peaks({{51, 16384}, {61, -9000}}), Peaks({{71, 12345}})));
    const std::set<QRgb> told{Back().rgb(), Selected().rgb(), Centre().rgb(), LeftColour().rgb(), RightColour().rgb()};
    for (const double ratio : {1.25, 1.5, 2.0, 3.0}) {
        const QImage image = pic.Draw(ratio);
        EXPECT_EQ(image.size(), (QSizeF(kSize) * ratio).toSize());
        std::set<QRgb> seen;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                seen.insert(image.pixel(x, y));
        EXPECT_EQ(seen, told) << ratio;
    }
}

TEST_F(WavePicTest, DrawsThePixelsOfAPointOnAFineScreen)
{
    Show(SilenceOf(100));
    const QImage image = pic.Draw(2);
    for (const int y : {65, 66}) // the middle is row 32.5
        for (const int x : {0, 100, 199})
            EXPECT_EQ(image.pixelColor(x, y), LeftColour()) << x << ", " << y;
    for (const int y : {64, 67})
        EXPECT_EQ(image.pixelColor(100, y), Back()) << y;
}

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
    pic.Speak(QStringLiteral("1.2 to 3.4 seconds"));
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&pic);
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Your recorded sound: 1.2 to 3.4 seconds"));
    EXPECT_EQ(spoken->role(), QAccessible::Graphic);
}

} // namespace
} // namespace sprout
