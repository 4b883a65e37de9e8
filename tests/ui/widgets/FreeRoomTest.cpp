// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FreeRoom.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QScreen>

namespace sprout {
namespace {

class FreeRoomTest : public testing::Test {
protected:
    FreeRoomTest()
    {
        base.resize(base.screen()->size() - QSize(0, 32));
        base.setWindowState(Qt::WindowMaximized); // a resize would end it
    }

    QWidget base;
    QDialog form{&base};
    QDialog formOfForm{&form};
};

TEST_F(FreeRoomTest, IsWhatTheDesktopTells)
{
    EXPECT_EQ(FreeRoom(formOfForm, false), form.screen()->availableGeometry().size());
}

TEST_F(FreeRoomTest, IsThatOfTheMaximisedWindowWhereTheDesktopPlacesWindows)
{
    EXPECT_EQ(FreeRoom(form, true), base.size());
    EXPECT_EQ(FreeRoom(formOfForm, true), base.size());
}

TEST_F(FreeRoomTest, IsTheWholeScreenAsLongAsNoWindowIsMaximised)
{
    base.setWindowState(Qt::WindowNoState);
    EXPECT_EQ(FreeRoom(formOfForm, true), form.screen()->availableGeometry().size());
    EXPECT_EQ(FreeRoom(base, true), base.screen()->availableGeometry().size());
}

} // namespace
} // namespace sprout
