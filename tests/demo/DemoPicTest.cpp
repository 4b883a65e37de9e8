// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoPic.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <string>
#include <vector>

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DemoPicTest : public testing::Test {
protected:
    DemoPicTest()
    {
        pic.setGeometry(0, 0, 100, 50);
        const auto note = [this](const char* what) {
            return [this, what](DemoPoint point) {
                seen.push_back(what + std::to_string(point.x) + " " + std::to_string(point.y));
            };
        };
        QObject::connect(&pic, &DemoPic::Pressed, &pic, note("pressed "));
        QObject::connect(&pic, &DemoPic::Moved, &pic, note("moved "));
        QObject::connect(&pic, &DemoPic::Released, &pic, [this] { seen.emplace_back("released"); });
        window.resize(120, 80);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    void Send(QEvent::Type type, QPointF at, Qt::MouseButtons held)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, pic.mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&pic, &event);
    }

    static Picture OfColour(int width, int height, std::uint32_t colour)
    {
        return {width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), colour)};
    }

    QWidget window;
    DemoPic pic{&window};
    std::vector<std::string> seen;
};

TEST_F(DemoPicTest, ReportsPixelsOfThePicture)
{
    pic.Show(OfColour(200, 100, 0));
    Send(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton);
    Send(QEvent::MouseMove, {99.5, 49.5}, Qt::LeftButton);
    Send(QEvent::MouseMove, {-3, 60}, Qt::LeftButton);
    Send(QEvent::MouseButtonRelease, {0, 0}, Qt::NoButton);
    EXPECT_THAT(seen, ElementsAre("pressed 20 40", "moved 198 98", "moved -6 120", "released"));
}

TEST_F(DemoPicTest, ShowsTheSharpPictureInThePlaceOfTheOther)
{
    constexpr std::uint32_t blue = 0xFF0000;
    pic.Show(OfColour(200, 100, 0), OfColour(400, 200, blue));
    EXPECT_EQ(pic.PictureSize(), (BoxSize{200, 100})) << "of which the rectangles tell";
    EXPECT_EQ(pic.grab().toImage().pixelColor(20, 20), QColor(Qt::blue));
    pic.Show(OfColour(200, 100, 0), OfColour(401, 200, blue));
    EXPECT_EQ(pic.grab().toImage().pixelColor(20, 20), QColor(Qt::black)) << "another picture";
}

TEST_F(DemoPicTest, ReportsPointsWithoutAPictureToo)
{
    Send(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton);
    EXPECT_THAT(seen, ElementsAre("pressed 10 20"));
}

TEST_F(DemoPicTest, KnowsOnlyTheLeftButton)
{
    QTest::mouseClick(&pic, Qt::RightButton);
    QTest::mouseClick(&pic, Qt::MiddleButton);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(DemoPicTest, ReleasesAButtonThatItHasLost)
{
    Send(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton);
    Send(QEvent::MouseMove, {11, 20}, Qt::NoButton);
    Send(QEvent::MouseMove, {12, 20}, Qt::LeftButton);
    EXPECT_THAT(seen, ElementsAre("pressed 10 20", "released"));
    Send(QEvent::MouseButtonPress, {10, 20}, Qt::LeftButton);
    pic.hide();
    EXPECT_EQ(seen.back(), "released");
}

TEST_F(DemoPicTest, FillsItsPlaceWithThePicture)
{
    EXPECT_EQ(pic.grab().toImage().pixelColor(50, 25), QColor(0xF1, 0xE3, 0xC4));
    pic.Show(OfColour(200, 100, 0x00FF00));
    EXPECT_EQ(pic.PictureSize(), (BoxSize{200, 100}));
    const QImage shown = pic.grab().toImage();
    for (const QPoint at : {QPoint(0, 0), QPoint(99, 49), QPoint(50, 25)})
        EXPECT_EQ(shown.pixelColor(at), QColor(Qt::green));
}

TEST_F(DemoPicTest, ShowsTheFocusOnceTheKeyboardHasBroughtIt)
{
    pic.Show(OfColour(200, 100, 0x00FF00));
    pic.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(pic.grab().toImage().pixelColor(50, 0), QColor(Qt::green));
    pic.clearFocus();
    pic.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(pic.grab().toImage().pixelColor(50, 0), QColor(0x1F, 0x6F, 0xA8));
    pic.clearFocus();
    EXPECT_EQ(pic.grab().toImage().pixelColor(50, 0), QColor(Qt::green));
}

TEST_F(DemoPicTest, HasTheInstructionAsItsSpokenName)
{
    pic.Speak(Words::AsIs("Click the flower."));
    EXPECT_EQ(pic.accessibleName(), QStringLiteral("Click the flower."));
}

} // namespace
} // namespace sprout
