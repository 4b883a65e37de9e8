// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/ToolCursor.h"

#include <gtest/gtest.h>

#include <QPixmap>

namespace sprout {
namespace {

TEST(ToolCursor, HasItsHotSpotOnThePictureAtTheTip)
{
    for (const char* button : {"BrushBtn", "EraserBtn", "PlayToolBtn"}) {
        const QCursor cursor = ToolCursor(button, 1);
        const QImage picture = cursor.pixmap().toImage();
        EXPECT_EQ(picture.size(), QSize(32, 32));
        EXPECT_GT(qAlpha(picture.pixel(cursor.hotSpot())), 100) << button;
    }
}

TEST(ToolCursor, IsTheDefaultForWhatIsNoTool)
{
    EXPECT_EQ(ToolCursor("SaveBtn", 1).shape(), Qt::ArrowCursor);
}

} // namespace
} // namespace sprout
