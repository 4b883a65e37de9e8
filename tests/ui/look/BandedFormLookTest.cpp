// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/BandedFormLook.h"

#include <gtest/gtest.h>

#include <QImage>

#include "ui/look/Palette.h"

namespace sprout {
namespace {

/// A window that looks like a form.
class Form : public QWidget {
public:
    Form() { resize(200, 120); }

    [[nodiscard]] QImage Look() { return grab().toImage(); }
    /// Whether something is drawn where the vine grows.
    [[nodiscard]] bool HasVine()
    {
        const QImage look = Look();
        for (int y = 76; y < 116; ++y)
            for (int x = 160; x < 190; ++x)
                if (look.pixelColor(x, y) != kPaper)
                    return true;
        return false;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { PaintBandedForm(*this); }
};

TEST(BandedFormLook, ABandOverPaperWithALineBetweenAndAround)
{
    const QImage look = Form().Look();
    EXPECT_EQ(look.pixelColor(100, 12), kDeepLeaf);
    EXPECT_EQ(look.pixelColor(100, 24), kBark);
    EXPECT_EQ(look.pixelColor(100, 25), kBark);
    EXPECT_EQ(look.pixelColor(100, kBandHeight), kPaper);
    EXPECT_EQ(look.pixelColor(1, 60), kBark);
    EXPECT_EQ(look.pixelColor(198, 60), kBark);
    EXPECT_EQ(look.pixelColor(100, 118), kBark);
}

TEST(BandedFormLook, TheLogoIsBeforeTheCaption)
{
    const QImage look = Form().Look();
    bool hasLogo = false;
    for (int x = 9; x < CaptionLeft(); ++x)
        hasLogo = hasLogo || look.pixelColor(x, 13) != kDeepLeaf;
    EXPECT_TRUE(hasLogo);
    EXPECT_EQ(look.pixelColor(CaptionLeft(), 13), kDeepLeaf);
}

TEST(BandedFormLook, TheVineGrowsWhereNothingLies)
{
    Form form;
    EXPECT_TRUE(form.HasVine());
    QWidget part(&form);
    part.setAttribute(Qt::WA_TransparentForMouseEvents);
    part.setGeometry(170, 90, 1, 1);
    part.show();
    EXPECT_FALSE(form.HasVine());
    part.hide();
    EXPECT_TRUE(form.HasVine());
    part.setGeometry(0, 30, 100, 30);
    part.show();
    EXPECT_TRUE(form.HasVine());
}

TEST(BandedFormLook, TheMaskLacksOnlyTheCorners)
{
    const QRegion mask = FormMask(QRect(0, 0, 200, 120));
    for (const QPoint corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 119), QPoint(199, 119)})
        EXPECT_FALSE(mask.contains(corner));
    for (const QPoint edge : {QPoint(kFormCorner, 0), QPoint(0, kFormCorner), QPoint(100, 60)})
        EXPECT_TRUE(mask.contains(edge));
}

} // namespace
} // namespace sprout
