// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/Artwork.h"

#include <gtest/gtest.h>

#include <QFontInfo>

#include <cmath>
#include <set>

#include "ui/look/Look.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

QPixmap Tile(int number)
{
    return Artwork(QStringLiteral("tiles/Tile%1").arg(number), QSize(64, 32), 1);
}

TEST(Artwork, IsDrawnForThePixelRatio)
{
    const QPixmap sharp = Artwork(QStringLiteral("buttons/PlayAllBtn"), QSize(56, 56), 1.5);
    EXPECT_EQ(sharp.size(), QSize(84, 84));
    EXPECT_EQ(sharp.devicePixelRatio(), 1.5);
}

TEST(Artwork, IsDrawnOnce)
{
    EXPECT_EQ(Tile(3).cacheKey(), Tile(3).cacheKey());
}

TEST(Artwork, IsTheSameWhereItIsDrawnAhead)
{
    const WantedArtwork ahead{QStringLiteral("buttons/PlayAllBtn"), QSize(57, 57), 2, QColor(Qt::red)};
    const WantedArtwork unknown{QStringLiteral("buttons/NoSuchBtn"), QSize(57, 57), 2};
    const WantedArtwork another{QStringLiteral("buttons/PlayStopBtn"), QSize(57, 57), 2};
    DrawArtworkAhead({ahead, unknown, another});
    EXPECT_TRUE(Artwork(unknown).isNull());
    const QPixmap taken = Artwork(ahead);
    EXPECT_EQ(taken.size(), QSize(114, 114));
    EXPECT_EQ(taken.devicePixelRatio(), 2);
    // At another ratio the key is different, so this one is drawn here.
    QImage drawnHere = Artwork(ahead.name, QSize(114, 114), 1, ahead.inPlaceOfDeepLeaf).toImage();
    drawnHere.setDevicePixelRatio(2);
    EXPECT_EQ(taken.toImage(), drawnHere);
    EXPECT_EQ(Artwork(ahead).cacheKey(), taken.cacheKey());
    EXPECT_FALSE(Artwork(another).isNull());
}

TEST(Artwork, IsDrawnAheadOneOrderAfterTheOther)
{
    std::vector<WantedArtwork> orders;
    for (int side = 100; side < 110; ++side)
        orders.push_back({QStringLiteral("buttons/BrushBtn"), QSize(side, side), 1});
    for (const WantedArtwork& order : orders)
        DrawArtworkAhead({order});
    for (const WantedArtwork& order : orders)
        EXPECT_EQ(Artwork(order).size(), order.size);
}

TEST(Artwork, IsEmptyForAnUnknownName)
{
    EXPECT_TRUE(Artwork(QStringLiteral("buttons/NoSuchBtn"), QSize(56, 56), 1).isNull());
}

TEST(Artwork, HasEveryPictureOfTheMainWindowsButtons)
{
    for (const char* name :
         {"PlayAllBtn",    "PlayStopBtn",    "BrushBtn",        "EraserBtn",      "PlayToolBtn",   "NewBtn",
          "OpenBtn",       "SaveBtn",        "SongTitleChgBtn", "EmailBtn",       "HelpBtn",       "AboutBtn",
          "DemoBtn",       "CloseImgBtn",    "MaximizeImgBtn",  "MinimizeImgBtn", "RestoreImgBtn", "TrackPlayBtn",
          "TrackAudioBtn", "TrackAddRecBtn", "TrackAddBtn",     "TrackDeleteBtn"})
        EXPECT_FALSE(Artwork(QStringLiteral("buttons/") + QLatin1String(name), QSize(32, 32), 1).isNull()) << name;
    for (const char* plate : {"Tool", "Word", "Title"})
        for (const char* face : {"Normal", "Raised", "Pressed", "PressedOn"})
            EXPECT_FALSE(
                Artwork(QStringLiteral("plates/%1%2").arg(QLatin1String(plate), QLatin1String(face)), QSize(64, 64), 1)
                    .isNull())
                << plate << face;
}

TEST(Artwork, TakesAnotherColourInPlaceOfDeepLeaf)
{
    const auto colour = [](const QColor& wanted) {
        return Artwork(QStringLiteral("plates/WordNormal"), QSize(64, 64), 1, wanted).toImage().pixelColor(32, 32);
    };
    EXPECT_EQ(colour({}), kDeepLeaf);
    EXPECT_EQ(colour(kStone), kStone);
}

TEST(TrackTiles, AreElevenOpaqueAndAllDifferent)
{
    std::set<QRgb> grounds;
    for (int number = 0; number <= 10; ++number) {
        const QImage tile = Tile(number).toImage();
        ASSERT_EQ(tile.size(), QSize(64, 32)) << number;
        for (const QPoint& corner : {QPoint(0, 0), QPoint(63, 31), QPoint(63, 0), QPoint(0, 31)})
            EXPECT_EQ(qAlpha(tile.pixel(corner)), 255) << number;
        grounds.insert(tile.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
    }
    EXPECT_EQ(grounds.size(), 11u);
}

TEST(TrackTiles, LeaveTheBlackMarksReadable)
{
    for (int number = 0; number <= 10; ++number) {
        const QImage tile = Tile(number).toImage();
        for (int y = 0; y < tile.height(); ++y)
            for (int x = 0; x < tile.width(); ++x)
                ASSERT_GT(qGray(tile.pixel(x, y)), 60) << number;
    }
}

TEST(ArtworkPicture, IsOpaqueAndA32BitPictureOfTheSong)
{
    const Picture blank = ArtworkPicture(QStringLiteral("pictures/BlankPic"));
    EXPECT_EQ(blank.Width(), 32);
    EXPECT_EQ(blank.Pixel(0, 0), 0xC4DCE6u);
    EXPECT_TRUE(ArtworkPicture(QStringLiteral("pictures/None")).IsNothing());
}

TEST(ToImage, TurnsTheColoursRound)
{
    const QImage image = ToImage(Picture(2, 1, {0x0000FF, 0xFF8000}));
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(1, 0), qRgb(0, 128, 255));
}

TEST(ApplyLook, LaysOutFromLeftToRightWhateverTheSystemDoes)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    ApplyLook(*qApp);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
}

TEST(ApplyLook, ShowsAllTextInTheFontThatIsCompiledIn)
{
    EXPECT_EQ(QFontInfo(HintFont()).family(), QStringLiteral("Andika"));
    EXPECT_EQ(HintFont().pixelSize(), 13);
    EXPECT_EQ(LabelFont().pixelSize(), 15);
    EXPECT_EQ(TitleFont().pixelSize(), 20);
    EXPECT_TRUE(QFontInfo(TitleFont()).bold());
}

/// The contrast of two colours by the formula of WCAG 2.1.
double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double light = std::max(luminance(a), luminance(b));
    const double dark = std::min(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

TEST(Palette, KeepsTextReadable)
{
    EXPECT_GE(Contrast(kBark, kPaper), 10);
    for (const QColor& plate : {kDeepLeaf, kStone, kCoral})
        EXPECT_GE(Contrast(Qt::white, plate), 4.5) << plate.name().toStdString();
    EXPECT_GE(Contrast(kPaper, kDeepLeaf), 4.5);
    EXPECT_GE(Contrast(kBark, kSand), 4.5);
    EXPECT_GE(Contrast(kLink, kPaper), 4.5);
}

TEST(Palette, KeepsTheWordsOfRaisedButtonsReadable)
{
    for (const QColor& plate : {kDeepLeaf, kStone, kCoral}) {
        const QImage raised = Artwork(QStringLiteral("plates/WordRaised"), QSize(64, 64), 1, plate).toImage();
        EXPECT_GE(Contrast(Qt::white, raised.pixelColor(32, 30)), 4.5) << plate.name().toStdString();
    }
}

} // namespace
} // namespace sprout
