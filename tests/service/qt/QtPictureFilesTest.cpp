// SPDX-License-Identifier: GPL-3.0-or-later
// Makes no application object and uses no display.
#include "service/qt/QtPictureFiles.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

namespace fs = std::filesystem;

// One red and one green pixel.
constexpr unsigned char kGif[] = {'G', 'I',  'F', '8', '9', 'a', 2, 0, 1, 0, 0x80, 0, 0, 255,  0,    0, 0,   255,
                                  0,   0x2C, 0,   0,   0,   0,   2, 0, 1, 0, 0,    2, 2, 0x44, 0x0A, 0, 0x3B};

class Pictures : public testing::Test {
protected:
    [[nodiscard]] fs::path In(const std::string& name) const { return folder.Path() / name; }

    /// 40 x 30, each pixel in a different colour.
    [[nodiscard]] static QImage Drawn()
    {
        QImage image(40, 30, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x * 6, y * 8, 100));
        return image;
    }

    fs::path Write(const std::string& name, const char* kind, const QImage& image = Drawn()) const
    {
        EXPECT_TRUE(image.save(QString::fromStdString(In(name).native()), kind, 95));
        return In(name);
    }

    [[nodiscard]] fs::path WriteGif() const
    {
        WriteBytes(In("a.gif"), std::string(reinterpret_cast<const char*>(kGif), sizeof kGif));
        return In("a.gif");
    }

    void ExpectNoPicture(const std::string& bytes, std::size_t place) const
    {
        WriteBytes(In("bad.bmp"), bytes);
        EXPECT_THROW(static_cast<void>(files.LoadPicture(In("bad.bmp"))), RunTimeError) << place;
    }

    TestFolder folder;
    QtPictureFiles files;
};

TEST_F(Pictures, ReadBmpInItsOwnSizeWithRedLowest)
{
    const Picture picture = files.LoadPicture(Write("a.bmp", "BMP"));
    EXPECT_EQ(picture.Width(), 40);
    EXPECT_EQ(picture.Height(), 30);
    EXPECT_EQ(picture.Pixel(10, 5), 100U << 16 | 40U << 8 | 60U);
}

TEST_F(Pictures, ReadBmpOfEveryDepth)
{
    for (const QImage::Format format : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB888}) {
        QImage image = Drawn().convertToFormat(format);
        const Picture picture = files.LoadPicture(Write("a.bmp", "BMP", image));
        const QRgb wanted = image.pixel(10, 5);
        EXPECT_EQ(picture.Pixel(10, 5),
                  static_cast<std::uint32_t>(qBlue(wanted) << 16 | qGreen(wanted) << 8 | qRed(wanted)));
    }
}

TEST_F(Pictures, ReadBmpThatStandsOnItsHead)
{
    std::string bytes = ReadBytes(Write("a.bmp", "BMP"));
    bytes.replace(22, 4, std::string("\xE2\xFF\xFF\xFF", 4)); // a height of -30: lines from the top
    WriteBytes(In("a.bmp"), bytes);
    const Picture picture = files.LoadPicture(In("a.bmp"));
    EXPECT_EQ(picture.Height(), 30);
    EXPECT_EQ(picture.Pixel(0, 0), 100U << 16 | 232U << 8); // this was the lowest line
}

TEST_F(Pictures, ReadJpgWhateverTheNameSays)
{
    const Picture picture = files.LoadPicture(Write("photo.bmp", "JPG"));
    EXPECT_EQ(picture.Width(), 40);
    EXPECT_NEAR(static_cast<int>(picture.Pixel(20, 15) & 0xFF), 120, 12);
    EXPECT_NEAR(static_cast<int>(picture.Pixel(20, 15) >> 16), 100, 12);
}

TEST_F(Pictures, ReadGif)
{
    const Picture picture = files.LoadPicture(WriteGif());
    ASSERT_EQ(picture.Width(), 2);
    ASSERT_EQ(picture.Height(), 1);
    EXPECT_EQ(picture.Pixel(0, 0), 0x0000FFU);
    EXPECT_EQ(picture.Pixel(1, 0), 0x00FF00U);
}

TEST_F(Pictures, ReadPngAndLayWhatIsSeenThroughOnWhite)
{
    QImage image = Drawn().convertToFormat(QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 100, 0, 0));
    const Picture picture = files.LoadPicture(Write("a.png", "PNG", image));
    EXPECT_EQ(picture.Width(), 40);
    EXPECT_EQ(picture.Height(), 30);
    EXPECT_EQ(picture.Pixel(10, 5), 100U << 16 | 40U << 8 | 60U);
    EXPECT_EQ(picture.Pixel(0, 0), 0xFFFFFFU);
}

TEST_F(Pictures, RefuseOtherKindsFoldersAndMissingFiles)
{
    EXPECT_THROW(static_cast<void>(files.LoadPicture(Write("a.ppm", "PPM"))), RunTimeError);
    EXPECT_THROW(static_cast<void>(files.LoadPicture(folder.Path())), RunTimeError);
    EXPECT_THROW(static_cast<void>(files.LoadPicture(In("missing.bmp"))), RunTimeError);
    ExpectNoPicture("", 0);
    ExpectNoPicture("This is no picture at all.", 0);
}

TEST_F(Pictures, RefuseAFileThatIsCutAnywhere)
{
    const std::string bmp = ReadBytes(Write("a.bmp", "BMP"));
    for (std::size_t size = 0; size < bmp.size(); size += size < 100 ? 1 : 50)
        ExpectNoPicture(bmp.substr(0, size), size);
    ExpectNoPicture(bmp.substr(0, bmp.size() - 1), bmp.size() - 1);
    const std::string jpg = ReadBytes(Write("a.jpg", "JPG"));
    for (std::size_t size = 0; size < jpg.size(); ++size)
        ExpectNoPicture(jpg.substr(0, size), size);
    const std::string png = ReadBytes(Write("a.png", "PNG"));
    constexpr std::size_t endMark = 12; // after the last line
    for (std::size_t size = 0; size < png.size() - endMark; ++size)
        ExpectNoPicture(png.substr(0, size), size);
    const std::string gif = ReadBytes(WriteGif());
    for (std::size_t size = 0; size < 31; ++size)
        ExpectNoPicture(gif.substr(0, size), size);
}

TEST_F(Pictures, RefuseAHugeClaimWithoutRoomForIt)
{
    std::string bmp = ReadBytes(Write("a.bmp", "BMP"));
    bmp.replace(18, 8, std::string("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F", 8));
    ExpectNoPicture(bmp, 0);
    bmp.replace(18, 8, std::string("\x01\x10\0\0\x01\0\0\0", 8)); // 4097 x 1
    ExpectNoPicture(bmp, 1);
    bmp.replace(18, 8, std::string("\0\x10\0\0\0\x10\0\0", 8)); // 4096 x 4096, more than the file holds
    ExpectNoPicture(bmp, 2);
    std::string gif = ReadBytes(WriteGif());
    gif.replace(6, 4, "\xFF\xFF\xFF\xFF");
    ExpectNoPicture(gif, 3);
}

TEST_F(Pictures, WriteBmpOf24BitsThatReadsBackEqual)
{
    std::vector<std::uint32_t> pixels;
    for (std::uint32_t i = 0; i < 33 * 5; ++i)
        pixels.push_back(i * 99991 & 0xFFFFFF);
    files.SavePicture(Picture(33, 5, pixels), In("out.bmp"));
    const std::string bytes = ReadBytes(In("out.bmp"));
    const std::vector<std::byte> encoded = files.EncodeBmp(Picture(33, 5, pixels));
    EXPECT_TRUE(std::ranges::equal(encoded, std::as_bytes(std::span(bytes))));
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(bytes[28], 24);
    EXPECT_EQ(bytes.size(), 54U + 100U * 5U);
    const Picture back = files.LoadPicture(In("out.bmp"));
    EXPECT_EQ(std::vector<std::uint32_t>(back.Pixels().begin(), back.Pixels().end()), pixels);
}

TEST_F(Pictures, TellWhatCannotBeWritten)
{
    EXPECT_THROW(files.SavePicture(Picture(1, 1, {0}), In("missing/out.bmp")), RunTimeError);
    EXPECT_THROW(files.SavePicture(Picture(), In("out.bmp")), RunTimeError);
    EXPECT_THROW(static_cast<void>(files.EncodeBmp(Picture())), RunTimeError);
}

} // namespace
} // namespace sprout
