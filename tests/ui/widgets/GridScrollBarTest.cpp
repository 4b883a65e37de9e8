// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridScrollBar.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace sprout {
namespace {

class GridScrollBarTest : public testing::Test {
protected:
    static PictureGrid Grid(int count, int topRow) { return {12, count, topRow, 5 * kGridCell}; }

    QWidget window;
    GridScrollBar bar{&window};
    QSignalSpy scrolled{&bar, &GridScrollBar::Scrolled};
};

TEST_F(GridScrollBarTest, TakesItsRangeFromTheGridAndReportsOnlyTheUser)
{
    EXPECT_EQ(bar.Fit(Grid(100, 3)), 3);
    EXPECT_EQ(bar.minimum(), 1);
    EXPECT_EQ(bar.maximum(), 5);
    EXPECT_EQ(bar.pageStep(), 5);
    EXPECT_EQ(bar.value(), 3);
    EXPECT_TRUE(bar.isEnabled());
    EXPECT_EQ(scrolled.count(), 0);
    bar.setValue(4);
    ASSERT_EQ(scrolled.count(), 1);
    EXPECT_EQ(scrolled.first().first().toInt(), 4);
}

TEST_F(GridScrollBarTest, BringsTheTopRowIntoTheRange)
{
    EXPECT_EQ(bar.Fit(Grid(100, 9)), 5);
    EXPECT_EQ(bar.Fit(Grid(100, -1)), 1);
    EXPECT_EQ(bar.value(), 1);
    EXPECT_EQ(scrolled.count(), 0);
}

TEST_F(GridScrollBarTest, IsHiddenWithoutAnythingToScroll)
{
    EXPECT_EQ(bar.Fit(Grid(12, 1)), 1);
    EXPECT_TRUE(bar.isHidden());
    EXPECT_FALSE(bar.isEnabled());
    EXPECT_EQ(bar.Fit(Grid(100, 1)), 1);
    EXPECT_FALSE(bar.isHidden());
}

} // namespace
} // namespace sprout
