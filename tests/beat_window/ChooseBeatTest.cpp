// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChooseBeat.h"

#include "beat_window/BeatWindowTest.h"

namespace sprout {
namespace {

using ChooseBeatTest = BeatWindowTest;

TEST_F(ChooseBeatTest, ReturnsTheChosenName)
{
    MakeBeat("Bell", 10);
    MakeBeat("drum", 10);
    std::string name = "BELL";
    WithNextForm([](BandedForm& form) {
        EXPECT_EQ(form.objectName(), QStringLiteral("BeatWindow"));
        auto* grid = form.findChild<PictureGridPic*>(QStringLiteral("ShowAllPic"));
        EXPECT_EQ(grid->Selected(), 1);
        QTest::mouseClick(grid, Qt::LeftButton, {}, QPoint(60, 20));
        Click(form, "OkBtn");
    });
    EXPECT_TRUE(ChooseBeat(name));
    EXPECT_EQ(name, "drum");
}

TEST_F(ChooseBeatTest, LeavesTheNameWhenItIsCancelled)
{
    MakeBeat("bell", 10);
    std::string name = "Other";
    WithNextForm([](BandedForm& form) { Click(form, "CancelBtn"); });
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(name, "Other");
}

TEST_F(ChooseBeatTest, ListsTheFolderAnewAtEveryOpening)
{
    MakeBeat("bell", 10);
    std::string name;
    int count = 0;
    const auto countAndLeave = [&count](BandedForm& form) {
        count = form.findChild<PictureGridPic*>(QStringLiteral("ShowAllPic"))->Count();
        Click(form, "CancelBtn");
    };
    WithNextForm(countAndLeave);
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(count, 1);
    MakeBeat("drum", 10);
    WithNextForm(countAndLeave);
    EXPECT_FALSE(ChooseBeat(name));
    EXPECT_EQ(count, 2);
}

} // namespace
} // namespace sprout
