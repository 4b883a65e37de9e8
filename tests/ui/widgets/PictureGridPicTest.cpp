// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PictureGridPic.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <string>
#include <vector>

#include "ui/ModalSteps.h"

namespace sprout {
namespace {

constexpr std::uint32_t kGreen = 0x00A000;

Picture OneColour(std::uint32_t colour, int side = kPictureSide)
{
    return {side, side, std::vector<std::uint32_t>(static_cast<std::size_t>(side * side), colour)};
}

std::vector<GridEntry> Entries(int count)
{
    std::vector<GridEntry> entries;
    for (int i = 1; i <= count; ++i)
        entries.push_back({OneColour(kGreen), "beat " + std::to_string(i), i % 2 == 1});
    return entries;
}

/// A window with a grid of 12 columns and five visible rows.
class PictureGridPicTest : public testing::Test {
protected:
    explicit PictureGridPicTest(int count = 100)
    {
        grid.setObjectName(QStringLiteral("ShowAllPic"));
        const QRect place = grid.PlaceAt({10, 10}, 5);
        window.resize(place.width() + 20, place.height() + 20);
        Fill(count);
        window.show();
    }

    void Fill(int count)
    {
        grid.SetEntries(Entries(count));
        grid.RefreshShowAllPic();
    }

    void Choose(int index)
    {
        grid.SetSelected(index);
        grid.RefreshShowAllPic();
    }

    QColor PixelAt(int x, int y) { return grid.grab().toImage().pixelColor(x, y); }

    QWidget window;
    PictureGridPic grid{12, &window};
    QSignalSpy pressed{&grid, &PictureGridPic::Pressed};
    QSignalSpy scrolled{&grid, &PictureGridPic::Scrolled};

    int LastPressed() { return pressed.isEmpty() ? -1 : pressed.last().at(0).toInt(); }
};

TEST_F(PictureGridPicTest, DrawsABorderOfOnePixelAroundEveryPicture)
{
    const QColor original(0x00, 0x00, 0xFF);
    const QColor users(0xC0, 0x00, 0x00);
    const QImage image = grid.grab().toImage();
    for (const QPoint corner : {QPoint(4, 4), QPoint(37, 4), QPoint(4, 37), QPoint(37, 37)}) {
        EXPECT_EQ(image.pixelColor(corner), original);
        EXPECT_EQ(image.pixelColor(corner + QPoint(40, 0)), users);
    }
    EXPECT_EQ(image.pixelColor(5, 5), QColor(0x00, 0xA0, 0x00));
    EXPECT_EQ(image.pixelColor(36, 36), QColor(0x00, 0xA0, 0x00));
    EXPECT_EQ(image.pixelColor(3, 20), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(38, 20), QColor(Qt::white));
}

TEST_F(PictureGridPicTest, FitsItsRowsAndColumnsExactly)
{
    EXPECT_EQ(grid.size(), QSize(12 * 40 + 2, 5 * 40 + 2));
    EXPECT_GT(grid.VScroll1().x(), grid.geometry().right());
    EXPECT_EQ(grid.VScroll1().height(), grid.height());
}

TEST_F(PictureGridPicTest, PutsTheSelectionFrameInPlaceOfTheBorder)
{
    Choose(14);
    EXPECT_EQ(grid.BlinkSelectImg().pos(), QPoint(40, 40));
    EXPECT_EQ(grid.BlinkSelectImg().toolTip(), QStringLiteral("beat 14"));
    EXPECT_TRUE(grid.BlinkSelectedTimer().isActive());
    EXPECT_EQ(grid.BlinkSelectedTimer().interval(), 400);
    grid.BlinkSelectImg().hide();
    EXPECT_EQ(PixelAt(44, 60), QColor(Qt::white));
    EXPECT_EQ(PixelAt(45, 60), QColor(0x00, 0xA0, 0x00));
}

TEST_F(PictureGridPicTest, BeginsWithTheFirstFrameAtEveryChoice)
{
    Choose(3);
    grid.BlinkSelectImg().Blink();
    grid.BlinkSelectImg().Blink();
    ASSERT_EQ(grid.BlinkSelectImg().Phase(), 1);
    Choose(4);
    EXPECT_EQ(grid.BlinkSelectImg().Phase(), 0);
}

TEST_F(PictureGridPicTest, ShowsTheTwoFramesInTurn)
{
    Choose(1);
    std::vector<int> phases;
    std::vector<QColor> colours;
    for (int tick = 0; tick < 4; ++tick) {
        ASSERT_TRUE(QMetaObject::invokeMethod(&grid.BlinkSelectImg(), "Blink"));
        phases.push_back(grid.BlinkSelectImg().Phase());
        colours.push_back(PixelAt(10, 2));
    }
    EXPECT_EQ(phases, (std::vector{0, 1, 0, 1}));
    EXPECT_NE(colours[0], colours[1]);
    EXPECT_EQ(colours[0], colours[2]);
    EXPECT_EQ(PixelAt(20, 20), QColor(0x00, 0xA0, 0x00)) << "the picture shows through the frame";
}

TEST_F(PictureGridPicTest, TakesTheFrameOutOfSightWithItsPictureAndBringsItBack)
{
    Choose(1);
    grid.VScroll1().setValue(2);
    EXPECT_EQ(grid.TopRow(), 2);
    EXPECT_EQ(grid.BlinkSelectImg().pos(), QPoint(-47, -47));
    EXPECT_FALSE(grid.BlinkSelectedTimer().isActive());
    grid.VScroll1().setValue(1);
    EXPECT_EQ(grid.BlinkSelectImg().pos(), QPoint(0, 0));
    EXPECT_TRUE(grid.BlinkSelectedTimer().isActive());
    EXPECT_EQ(scrolled.count(), 2);
}

TEST_F(PictureGridPicTest, HasNoFrameWithoutAChoice)
{
    for (const int none : {0, -1, 101}) {
        Choose(none);
        EXPECT_EQ(grid.BlinkSelectImg().pos(), QPoint(-47, -47));
        EXPECT_FALSE(grid.BlinkSelectedTimer().isActive());
        EXPECT_EQ(grid.BlinkSelectImg().toolTip(), QString());
    }
}

TEST_F(PictureGridPicTest, ScrollsOverTheRowsThatDoNotFit)
{
    EXPECT_TRUE(grid.VScroll1().isEnabled()); // 9 rows
    EXPECT_EQ(grid.VScroll1().minimum(), 1);
    EXPECT_EQ(grid.VScroll1().maximum(), 5);
    Fill(12);
    EXPECT_FALSE(grid.VScroll1().isEnabled());
    EXPECT_EQ(grid.VScroll1().maximum(), 1);
}

TEST_F(PictureGridPicTest, ComesBackIntoItsRangeSilentlyWhenPicturesGo)
{
    grid.VScroll1().setValue(5);
    scrolled.clear();
    Fill(70);
    EXPECT_EQ(grid.TopRow(), 2);
    EXPECT_EQ(grid.VScroll1().value(), 2);
    EXPECT_EQ(scrolled.count(), 0);
}

TEST_F(PictureGridPicTest, TellsThePressedPictureAndButton)
{
    QTest::mouseClick(&grid, Qt::LeftButton, {}, QPoint(45, 5));
    EXPECT_EQ(LastPressed(), 2);
    EXPECT_EQ(pressed.last().at(1).value<Qt::MouseButton>(), Qt::LeftButton);
    QTest::mouseClick(&grid, Qt::RightButton, {}, QPoint(45, 45));
    EXPECT_EQ(LastPressed(), 14);
    EXPECT_EQ(pressed.last().at(1).value<Qt::MouseButton>(), Qt::RightButton);
    QTest::mouseClick(&grid, Qt::LeftButton, {}, QPoint(40, 20));
    EXPECT_EQ(LastPressed(), 0);
    grid.VScroll1().setValue(3);
    QTest::mouseClick(&grid, Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(LastPressed(), 25);
}

TEST_F(PictureGridPicTest, TakesAPressOnTheEdgeOfTheFrameForOneOnItsMiddle)
{
    Choose(14);
    QTest::mouseClick(&grid.BlinkSelectImg(), Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(LastPressed(), 14);
    EXPECT_EQ(pressed.count(), 1);
}

TEST_F(PictureGridPicTest, NamesThePictureUnderThePointer)
{
    QSignalSpy hovered(&grid, &PictureGridPic::Hovered);
    QTest::mouseMove(&grid, QPoint(50, 10));
    EXPECT_EQ(grid.toolTip(), QStringLiteral("beat 2"));
    EXPECT_EQ(hovered.last().at(0).toInt(), 2);
    QTest::mouseMove(&grid, QPoint(40, 10));
    EXPECT_EQ(grid.toolTip(), QString());
    EXPECT_EQ(hovered.last().at(0).toInt(), 0);
}

TEST_F(PictureGridPicTest, ShowsANameThatLooksLikeRichTextAsItIsWritten)
{
    grid.SetEntries({{OneColour(kGreen), "<i>one</i>", true}, {OneColour(kGreen), "<b>two</b> & 3 < 4", true}});
    Choose(1);
    EXPECT_EQ(grid.BlinkSelectImg().toolTip(), QStringLiteral("<p>&lt;i&gt;one&lt;/i&gt;</p>"));
    QTest::mouseMove(&grid, QPoint(50, 10));
    EXPECT_EQ(grid.toolTip(), QStringLiteral("<p>&lt;b&gt;two&lt;/b&gt; &amp; 3 &lt; 4</p>"));
}

TEST_F(PictureGridPicTest, PressesTheNeighbourWithAnArrowKey)
{
    Choose(14);
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(LastPressed(), 15);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(LastPressed(), 13);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(LastPressed(), 2);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(LastPressed(), 26);
    EXPECT_EQ(pressed.last().at(1).value<Qt::MouseButton>(), Qt::LeftButton);
    Choose(0);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(LastPressed(), 1);
}

TEST_F(PictureGridPicTest, PressesNothingWhereTheGridEnds)
{
    Choose(1);
    QTest::keyClick(&grid, Qt::Key_Left);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(pressed.count(), 0);
}

TEST_F(PictureGridPicTest, ScrollsTheNeighbourIntoView)
{
    Choose(5 * 12);
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(LastPressed(), 61);
    EXPECT_EQ(grid.TopRow(), 2);
    Choose(61);
    QTest::keyClick(&grid, Qt::Key_End);
    EXPECT_EQ(LastPressed(), 100);
    EXPECT_EQ(grid.TopRow(), 5);
    Choose(100);
    QTest::keyClick(&grid, Qt::Key_Home);
    EXPECT_EQ(LastPressed(), 1);
    EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(PictureGridPicTest, PressesTheChoiceWithTheBlankAndOpensItsMenuWithTheMenuKeys)
{
    Choose(14);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(LastPressed(), 14);
    EXPECT_EQ(pressed.last().at(1).value<Qt::MouseButton>(), Qt::LeftButton);
    RepeatKey(grid, Qt::Key_Space);
    RepeatKey(grid, Qt::Key_Menu);
    EXPECT_EQ(pressed.count(), 1);
    QTest::keyClick(&grid, Qt::Key_Menu);
    EXPECT_EQ(pressed.last().at(1).value<Qt::MouseButton>(), Qt::RightButton);
    EXPECT_EQ(pressed.last().at(2).toPoint(), grid.mapToGlobal(QPoint(45 + 16, 45 + 16)));
    QTest::keyClick(&grid, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(pressed.count(), 3);
    Choose(0);
    QTest::keyClick(&grid, Qt::Key_Menu);
    EXPECT_EQ(pressed.count(), 3);
}

TEST_F(PictureGridPicTest, LeavesEnterToTheWindow)
{
    struct Window : QWidget {
        void keyPressEvent(QKeyEvent* event) override { key = event->key(); }
        int key = 0;
    } owner;
    PictureGridPic own(12, &owner);
    owner.show();
    QTest::keyClick(&own, Qt::Key_Return);
    EXPECT_EQ(owner.key, Qt::Key_Return);
}

TEST_F(PictureGridPicTest, ScrollsWithTheWheel)
{
    QWheelEvent turn(QPointF(20, 20), grid.mapToGlobal(QPointF(20, 20)), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&grid, &turn);
    EXPECT_GT(grid.TopRow(), 1);
}

TEST_F(PictureGridPicTest, PrintsItsLinesOnlyWhenItIsEmpty)
{
    const QImage full = grid.grab().toImage();
    grid.SetLines({Words::Text(" No beat file found to show here."), Words::AsIs(" Please reinstall.")});
    EXPECT_EQ(grid.grab().toImage(), full);
    Fill(0);
    const QImage lines = grid.grab().toImage();
    grid.SetLines({});
    const QImage blank = grid.grab().toImage();
    EXPECT_NE(lines, blank);
    EXPECT_EQ(lines.copy(0, 100, 400, 100), blank.copy(0, 100, 400, 100));
}

TEST_F(PictureGridPicTest, ShowsPicturesOfOtherSizesAs32Pixels)
{
    grid.SetEntries({{OneColour(kGreen, 300), "large", true}, {OneColour(kGreen, 16), "small", true}, {{}, "", true}});
    grid.RefreshShowAllPic();
    for (const int left : {5, 45}) {
        EXPECT_EQ(PixelAt(left, 5), QColor(0x00, 0xA0, 0x00));
        EXPECT_EQ(PixelAt(left + 31, 36), QColor(0x00, 0xA0, 0x00));
        EXPECT_EQ(PixelAt(left + 32, 36), QColor(0x00, 0x00, 0xFF));
    }
    EXPECT_EQ(PixelAt(85, 5), QColor(Qt::white)) << "no picture is a blank one";
}

TEST_F(PictureGridPicTest, ReachesTheLastOfFiveThousandPictures)
{
    std::vector<GridEntry> entries = Entries(5000);
    entries.back().Picture = OneColour(0x0000C8);
    grid.SetEntries(entries);
    grid.RefreshShowAllPic();
    Choose(4999);
    QTest::keyClick(&grid, Qt::Key_Right);
    EXPECT_EQ(LastPressed(), 5000);
    EXPECT_EQ(grid.TopRow(), 413);
    const GridPlace place = PlaceInGrid(grid.Grid(), 5000);
    EXPECT_EQ(PixelAt(place.x, place.y), QColor(0xC8, 0, 0));
}

TEST_F(PictureGridPicTest, IsAListOfNamedPicturesForAScreenReader)
{
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&grid);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->childCount(), 100);
    Choose(14);
    QAccessibleInterface* picture = list->child(13);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->text(QAccessible::Name), QStringLiteral("beat 14"));
    EXPECT_EQ(picture->text(QAccessible::Description), QStringLiteral("your own"));
    EXPECT_EQ(picture->rect(), QRect(grid.mapToGlobal(QPoint(45, 45)), QSize(32, 32)));
    EXPECT_TRUE(picture->state().selected);
    EXPECT_FALSE(picture->state().offscreen);
    EXPECT_EQ(picture->parent(), list);
    EXPECT_EQ(list->indexOfChild(picture), 13);
    EXPECT_EQ(list->focusChild(), picture);
    const QPoint at = picture->rect().center();
    EXPECT_EQ(list->childAt(at.x(), at.y()), picture);
    EXPECT_EQ(list->child(0)->text(QAccessible::Description), QStringLiteral("original"));
    EXPECT_TRUE(list->child(99)->state().offscreen);
    EXPECT_EQ(list->child(100), nullptr);
    EXPECT_EQ(list->child(-1), nullptr);
}

TEST_F(PictureGridPicTest, LetsAScreenReaderSeeThatAPictureIsGone)
{
    QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(&grid)->child(50);
    EXPECT_TRUE(picture->isValid());
    Fill(12);
    EXPECT_FALSE(picture->isValid());
    EXPECT_TRUE(picture->state().invalid);
    EXPECT_EQ(picture->text(QAccessible::Name), QString());
    EXPECT_EQ(picture->rect(), QRect());
}

} // namespace
} // namespace sprout
