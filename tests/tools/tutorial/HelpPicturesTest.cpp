// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HelpPictures.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <filesystem>
#include <string>

#include "base/Errors.h"
#include "support/TestFolder.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/HeldTimers.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

/// A red area that leaves a margin of 10 pixels.
class RedArea : public QWidget {
public:
    explicit RedArea(QSize size)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        resize(size);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(rect().adjusted(10, 10, -10, -10), Qt::red);
    }
};

TEST(HelpPicture, IsThePictureOfAWidgetOnThePagesWhite)
{
    RedArea area({300, 200});
    const QImage picture = HelpPicture(area, area.rect());
    EXPECT_EQ(picture.size(), QSize(300, 200) * area.devicePixelRatioF());
    EXPECT_EQ(picture.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(HelpPicture(area, {10, 10, 40, 30}).pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(HelpPicture(area, {10, 10, 40, 30}).size(), QSize(40, 30) * area.devicePixelRatioF());
}

TEST(HelpPicture, OfALargeWidgetIsMadeSmaller)
{
    RedArea wide({1760, 400});
    EXPECT_EQ(HelpPicture(wide, wide.rect()).size(), QSize(880, 200));
    RedArea high({300, 1040});
    EXPECT_EQ(HelpPicture(high, high.rect()).size(), QSize(150, 520));
}

class HelpPicturesTest : public testing::Test {
protected:
    void Make(const std::string& script)
    {
        HelpPictures(program, QStringLiteral("pictures.txt"), folder.Path()).Make(ReadPictureScript(script));
    }

    [[nodiscard]] QSize SizeOf(const std::string& name) const
    {
        return QImage(QString::fromStdString((folder.Path() / (name + ".png")).string())).size();
    }

    std::string ReasonAgainst(const std::string& script)
    {
        try {
            Make(script);
        } catch (const RunTimeError& error) {
            return error.what();
        }
        return {};
    }

    TestFolder folder;
    HeldTimers timers;
    DemoProgram program{SPROUT_INSTALLED, folder.Path(), Welcome::LeftOut, {600, 400}};
};

TEST_F(HelpPicturesTest, AreKeptOnTheWayThroughTheWindows)
{
    Make("keep window MainFrm\nclick row 1 tune\nkeep tunes TuneFrm2\nkeep steps TunFramPic 0 0 200 100\n"
         "click CancelBtn\nclick HelpBtn\nclick line Painting\nkeep book HelpFrm\n");
    EXPECT_EQ(SizeOf("window"), QSize(600, 400));
    EXPECT_FALSE(SizeOf("tunes").isEmpty());
    EXPECT_EQ(SizeOf("steps"), QSize(200, 100));
    EXPECT_FALSE(SizeOf("book").isEmpty());
}

TEST_F(HelpPicturesTest, NameTheLineThatCannotBePlayed)
{
    EXPECT_EQ(ReasonAgainst("keep tunes TuneFrm2\n"), "pictures.txt, line 1: There is no TuneFrm2.");
    EXPECT_EQ(ReasonAgainst("\nkeep a TrackPic 0 0 9000 10\n"), "pictures.txt, line 2: TrackPic has no such part.");
}

} // namespace
} // namespace sprout
