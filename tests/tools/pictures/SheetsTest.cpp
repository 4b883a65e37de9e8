// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QImage>

#include <set>

#include "pictures/ArtSheet.h"
#include "pictures/ButtonSheets.h"
#include "pictures/FormSheet.h"
#include "support/TestFolder.h"
#include "ui/look/Palette.h"

namespace sprout {
namespace {

class Sheets : public testing::Test {
protected:
    [[nodiscard]] QImage Sheet(const char* name) const
    {
        return QImage(QString::fromStdString(folder.Path() / name)).convertToFormat(QImage::Format_ARGB32);
    }

    /// Colours in a part of a sheet.
    static int Colours(const QImage& sheet, QRect part)
    {
        std::set<QRgb> colours;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                colours.insert(sheet.pixel(x, y));
        return static_cast<int>(colours.size());
    }

    TestFolder folder;
    const QString path = QString::fromStdString(folder.Path());
};

TEST_F(Sheets, EachButtonHasFourFacesThatDiffer)
{
    DrawButtonSheets(path);
    const QImage sheet = Sheet("buttons.png");
    ASSERT_EQ(sheet.width(), 16 * 76);
    const auto face = [&sheet](int column) { return sheet.copy(column * 76, 0, 76, 72); };
    for (int column = 1; column < 4; ++column)
        EXPECT_NE(face(column), face(column - 1)) << column;
    EXPECT_NE(face(0), face(4)); // another button
    EXPECT_GT(Colours(Sheet("words.png"), {10, 8, 100, 40}), 2);
}

TEST_F(Sheets, ArtworksAreOnOneSheet)
{
    DrawArtSheet(path);
    const QImage sheet = Sheet("art.png");
    ASSERT_EQ(sheet.size(), QSize(900, 560));
    for (int tile = 0; tile <= 10; ++tile)
        EXPECT_GT(Colours(sheet, {12, 10 + tile * 46, 40, 28}), 1) << tile;
    EXPECT_GT(Colours(sheet, {230, 8, 600, 80}), 10);
}

TEST_F(Sheets, FormsAreLaidInRowsOnOneSheet)
{
    DrawFormSheet(path);
    const QImage sheet = Sheet("forms.png");
    ASSERT_EQ(sheet.width(), 1000);
    EXPECT_EQ(sheet.pixelColor(2, 2), kStone);
    EXPECT_GT(sheet.height(), 500);                 // several rows
    EXPECT_EQ(sheet.pixelColor(60, 18), kDeepLeaf); // the band of the first form
}

} // namespace
} // namespace sprout
