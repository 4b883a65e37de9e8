// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/FittingFont.h"

#include <QFontMetrics>

namespace sprout {

namespace {

constexpr int kLeastPixels = 9;

}

QFont FittingFont(const QFont& font, const QString& text, int width)
{
    QFont smaller = font;
    for (int pixels = font.pixelSize(); pixels >= kLeastPixels; --pixels) {
        smaller.setPixelSize(pixels);
        if (QFontMetrics(smaller).horizontalAdvance(text) <= width)
            return smaller;
    }
    return font;
}

} // namespace sprout
