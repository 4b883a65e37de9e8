// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/LibraryCommandsTest.h"

#include <QFile>
#include <QImage>

#include "service/qt/QtPictureFiles.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;
using testing::IsEmpty;

using AddBeatTest = LibraryCommandsTest;

/// A .gif of one red pixel.
const QByteArray& GifBytes()
{
    static const QByteArray bytes =
        QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
    return bytes;
}

TEST_F(AddBeatTest, TellsOfADamagedPictureAndAddsNothing)
{
    WriteBytes(Chosen("Picture.bmp"), "bad");
    Open();
    Add(Chosen("Bell.wav"), Chosen("Picture.bmp"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].title, "");
    EXPECT_EQ(services.messages.shown[0].text,
              "Error adding beat\r\nThe picture " + Chosen("Picture.bmp").native() + " cannot be read.");
    EXPECT_EQ(FilesOfUserBeats(), "original.bmp original.wav ");
    EXPECT_TRUE(window->isVisible());
    ClickBeat(1);
    EXPECT_EQ(play.PlayLength, 10);
}

TEST_F(AddBeatTest, StoresEveryKindAndSizeOfPictureAsASmallBmp)
{
    QtPictureFiles pictures;
    TheServices().pictures = &pictures;
    QImage photo(200, 100, QImage::Format_RGB32);
    photo.fill(Qt::green);
    ASSERT_TRUE(photo.save(QFile::decodeName(Chosen("photo.jpg").c_str()), "JPG"));
    WriteBytes(Chosen("dot.GIF"), GifBytes().toStdString());
    ASSERT_TRUE(photo.save(QFile::decodeName(Chosen("flag.png").c_str()), "PNG"));
    fs::remove(Shared().UserBeats / "original.bmp");
    Open();
    BeatLibraryCommands::AddHelpShown = true;
    Add(Chosen("Bell.wav"), Chosen("photo.jpg"));
    Add(Chosen("Bell.wav"), Chosen("dot.GIF"));
    Add(Chosen("Bell.wav"), Chosen("flag.png"));
    EXPECT_THAT(services.messages.shown, IsEmpty());
    const QImage fromPng(QFile::decodeName((Shared().UserBeats / "New2Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromPng.size(), QSize(32, 32));
    EXPECT_EQ(fromPng.pixelColor(0, 8), QColor(Qt::green));
    EXPECT_EQ(fromPng.pixelColor(0, 7), QColor(Qt::white)) << "it is twice as wide as high";
    const QImage fromJpg(QFile::decodeName((Shared().UserBeats / "Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromJpg.size(), QSize(32, 32));
    EXPECT_GT(fromJpg.pixelColor(16, 16).green(), 250);
    const QImage fromGif(QFile::decodeName((Shared().UserBeats / "New1Bell.bmp").c_str()), "BMP");
    EXPECT_EQ(fromGif.size(), QSize(32, 32));
    EXPECT_EQ(fromGif.pixelColor(0, 0), QColor(Qt::red));
    const QImage grid = Grid().grab().toImage();
    EXPECT_GT(grid.pixelColor(20, 20).green(), 250);
    EXPECT_LT(grid.pixelColor(20, 20).red(), 5);
    EXPECT_EQ(grid.pixelColor(60, 20), QColor(Qt::red));
}

} // namespace
} // namespace sprout
