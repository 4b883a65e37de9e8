// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/help/HelpBook.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "core/Shared.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

/// A book with an installed picture of a window of 200 x 100 logical pixels.
class HelpBookTest : public testing::Test {
protected:
    HelpBookTest()
    {
        Shared().InstallRoot = folder.Path();
        std::filesystem::create_directory(folder.Path() / "HelpImages");
        QImage picture(400, 200, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(QFile::decodeName((folder.Path() / "HelpImages" / "tunes.png").c_str()));
        book.resize(494, 450);
    }
    ~HelpBookTest() override { Shared().InstallRoot.clear(); }

    [[nodiscard]] QPixmap Picture(const char* name)
    {
        return book.loadResource(QTextDocument::ImageResource, QUrl(QString::fromLatin1(name))).value<QPixmap>();
    }

    TestFolder folder;
    HelpBook book{nullptr};
};

TEST_F(HelpBookTest, ShowsAPictureOfAWindowAtHalfItsSize)
{
    const QPixmap picture = Picture("window:tunes");
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(200, 100));
    EXPECT_EQ(picture.devicePixelRatio(), book.devicePixelRatioF());
    EXPECT_EQ(picture.toImage().pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(HelpBookTest, MakesAPictureSmallerThatHasNoRoom)
{
    book.resize(152, 450);
    EXPECT_EQ(Picture("window:tunes").deviceIndependentSize(), QSizeF(100, 50));
    book.resize(494, 240);
    EXPECT_EQ(Picture("window:tunes").deviceIndependentSize(), QSizeF(100, 50));
}

TEST_F(HelpBookTest, LeavesOutAPictureThatIsNotInstalled)
{
    EXPECT_EQ(Picture("window:songs").size(), QSize(1, 1));
    EXPECT_EQ(Picture("window:songs").toImage().pixelColor(0, 0).alpha(), 0);
}

TEST_F(HelpBookTest, TellsScreenReadersWhatThePicturesShow)
{
    book.setSource(QUrl(QStringLiteral("qrc:/help/tunes.html")));
    const QString spoken = book.accessibleDescription();
    EXPECT_TRUE(spoken.startsWith(QStringLiteral("Picture: The window of the tunes."))) << spoken.toStdString();
    EXPECT_FALSE(spoken.contains(u'\n'));
    book.setSource(QUrl(QStringLiteral("qrc:/help/keys.html")));
    EXPECT_EQ(book.accessibleDescription(), QString());
}

TEST_F(HelpBookTest, ShowsItsArtworkSharp)
{
    EXPECT_EQ(Picture("tool:BrushBtn?44").size(), QSize(44, 44) * book.devicePixelRatioF());
    EXPECT_TRUE(Picture("art:buttons/None?44").isNull());
}

} // namespace
} // namespace sprout
