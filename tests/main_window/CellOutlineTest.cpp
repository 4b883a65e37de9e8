// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/CellOutline.h"

#include "main_window/CanvasFixture.h"
#include "ui/ModalSteps.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

class CellOutlineTest : public CanvasFixture {
protected:
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&Pic(), key, modifiers); }
};

TEST_F(CellOutlineTest, TheCellCursorHasAnOutlineWhileTheTracksHaveTheFocus)
{
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(IsShown("CellOutline"));
    Key(Qt::Key_Right, Qt::ControlModifier);
    ASSERT_TRUE(IsShown("CellOutline"));
    EXPECT_EQ(Part("CellOutline").geometry(), Part("CellCursor").geometry().adjusted(-3, -3, 3, 3));
    Pic().clearFocus();
    EXPECT_FALSE(IsShown("CellOutline"));
    EXPECT_TRUE(IsShown("CellCursor"));
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(IsShown("CellOutline"));
    canvas->DrawTracksAll();
    EXPECT_FALSE(IsShown("CellOutline"));
}

TEST_F(CellOutlineTest, TheFocusIsFramedWhenItCameByKey)
{
    const QColor without = ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1);
    Strip().setFocus(Qt::MouseFocusReason);
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_NE(ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1), without);
    Press(InRow(CellX(10), 1));
    EXPECT_EQ(ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1), without);
}

TEST(CellOutline, LiesAroundTheCursorLightNextToDark)
{
    QWidget surface;
    CellOutline outline(&surface);
    EXPECT_TRUE(outline.isHidden());
    outline.PlaceAround(QPoint(30, 27));
    EXPECT_EQ(outline.geometry(), QRect(27, 24, 3 + 6, 32 + 6));
    const QImage shown = outline.grab().toImage();
    EXPECT_EQ(shown.pixelColor(0, 19), kLink);
    EXPECT_EQ(shown.pixelColor(1, 19), kLink);
    EXPECT_EQ(shown.pixelColor(2, 19), QColor(Qt::white));
}

} // namespace
} // namespace sprout
