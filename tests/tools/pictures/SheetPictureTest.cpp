// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/SheetPicture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>

#include "support/TestFolder.h"

namespace sprout {
namespace {

class SheetPictureTest : public testing::Test {
protected:
    SheetPictureTest()
    {
        widget.resize(30, 20);
        widget.setStyleSheet(QStringLiteral("background: #ff0000"));
    }

    [[nodiscard]] QString In(const char* name) const
    {
        return QString::fromStdString(folder.Path()) + QString::fromLatin1(name);
    }

    TestFolder folder;
    QLabel widget;
};

TEST_F(SheetPictureTest, SavesWhatTheWidgetLooksLike)
{
    EXPECT_TRUE(SavePicture(widget, In("/one.png")));
    const QImage saved(In("/one.png"));
    EXPECT_EQ(saved.size(), QSize(30, 20));
    EXPECT_EQ(saved.pixelColor(15, 10), QColor(Qt::red));
    EXPECT_FALSE(widget.isVisible());
}

TEST_F(SheetPictureTest, ReportsWhatCannotBeWritten)
{
    testing::internal::CaptureStderr();
    EXPECT_FALSE(SavePicture(widget, In("/none/one.png")));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("none/one.png cannot be written."), std::string::npos);
}

TEST_F(SheetPictureTest, ASheetIsDrawnOnceAllThatWaitsHasHappened)
{
    QMetaObject::invokeMethod(
        &widget, [this] { widget.resize(60, 20); }, Qt::QueuedConnection);
    SaveSheet(widget, In(""), QStringLiteral("late"));
    EXPECT_EQ(QImage(In("/late.png")).size(), QSize(60, 20));
    EXPECT_FALSE(widget.isVisible());
    ShowAndSaveSheet(widget, In(""), QStringLiteral("shown"));
    EXPECT_TRUE(widget.isVisible());
    EXPECT_EQ(QImage(In("/shown.png")).size(), QSize(60, 20));
}

} // namespace
} // namespace sprout
