// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/FewColours.h"

#include <QColor>
#include <QList>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace sprout {

namespace {

constexpr qsizetype kMostColours = 256;
constexpr std::array kLeastDistances{40, 28, 20, 14, 10, 7, 5, 3, 1, 0}; ///< between two colours, tried in turn

int Distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// All colours, the most frequent first; equally frequent ones by their value.
std::vector<QRgb> ColoursOf(const QImage& picture)
{
    std::unordered_map<QRgb, std::int32_t> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    std::vector<std::pair<std::int32_t, QRgb>> order;
    for (const auto& [colour, count] : counts)
        order.emplace_back(-count, colour);
    std::sort(order.begin(), order.end());
    std::vector<QRgb> colours;
    for (const auto& [count, colour] : order)
        colours.push_back(colour);
    return colours;
}

qsizetype ClosestOf(const QList<QRgb>& palette, QRgb colour)
{
    qsizetype closest = 0;
    int least = std::numeric_limits<int>::max();
    for (qsizetype i = 0; i < palette.size() && least > 0; ++i)
        if (const int distance = Distance(palette[i], colour); distance < least) {
            least = distance;
            closest = i;
        }
    return closest;
}

QList<QRgb> PaletteOf(const std::vector<QRgb>& colours)
{
    QList<QRgb> palette;
    for (const int least : kLeastDistances)
        for (const QRgb colour : colours) {
            if (palette.size() == kMostColours)
                return palette;
            if (palette.isEmpty() || Distance(palette[ClosestOf(palette, colour)], colour) > least * least)
                palette.append(colour);
        }
    return palette;
}

} // namespace

QImage WithFewColours(const QImage& picture)
{
    const QList<QRgb> palette = PaletteOf(ColoursOf(picture));
    QImage few(picture.size(), QImage::Format_Indexed8);
    few.setColorTable(palette);
    std::unordered_map<QRgb, uint> known;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            const auto [found, isNew] = known.try_emplace(colour, 0U);
            if (isNew)
                found->second = static_cast<uint>(ClosestOf(palette, colour));
            few.setPixel(x, y, found->second);
        }
    return few;
}

} // namespace sprout
