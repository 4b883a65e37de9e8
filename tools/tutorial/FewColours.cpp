// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/FewColours.h"

#include <QColor>
#include <QList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace sprout {

namespace {

// A plain colour fills at least this part of the picture, as each of the two of the ruler does.
constexpr int kPlainShare = 250;
constexpr std::array kLeastDistances{40, 28, 20, 14, 10, 7, 5, 3, 1, 0}; ///< between two colours, tried in turn

int Distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

std::span<const QRgb> LineOf(const QImage& picture, int y)
{
    return {reinterpret_cast<const QRgb*>(picture.constScanLine(y)), static_cast<std::size_t>(picture.width())};
}

/// The colours of a picture, the most frequent first; equally frequent ones by their value.
struct Colours {
    std::vector<QRgb> all;
    std::size_t plain = 0; ///< the first ones, which fill whole areas
};

Colours ColoursOf(const QImage& picture)
{
    std::unordered_map<QRgb, std::int32_t> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const std::span<const QRgb> line = LineOf(picture, y);
        for (auto begin = line.begin(); begin != line.end();) { // most neighbours are equal
            const auto end = std::find_if(begin, line.end(), [begin](QRgb colour) { return colour != *begin; });
            counts[*begin] += static_cast<std::int32_t>(end - begin);
            begin = end;
        }
    }
    std::vector<std::pair<std::int32_t, QRgb>> order;
    for (const auto& [colour, count] : counts)
        order.emplace_back(-count, colour);
    std::sort(order.begin(), order.end());
    Colours colours;
    for (const auto& [count, colour] : order) {
        colours.all.push_back(colour);
        if (std::int64_t{-count} * kPlainShare >= std::int64_t{picture.width()} * picture.height())
            ++colours.plain;
    }
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

QList<QRgb> DifferentColours(const std::vector<QRgb>& colours, int most)
{
    QList<QRgb> palette;
    for (const int least : kLeastDistances)
        for (const QRgb colour : colours) {
            if (palette.size() == most)
                return palette;
            if (palette.isEmpty() || Distance(palette[ClosestOf(palette, colour)], colour) > least * least)
                palette.append(colour);
        }
    return palette;
}

/// A plain colour that is close to a more frequent one takes the place of a rare one.
QList<QRgb> PaletteOf(const Colours& colours, int most)
{
    QList<QRgb> palette = DifferentColours(colours.all, most);
    qsizetype rarest = palette.size();
    for (std::size_t i = 0; i < colours.plain && rarest > 0; ++i)
        if (!palette.contains(colours.all[i]))
            palette[--rarest] = colours.all[i];
    return palette;
}

} // namespace

QImage WithFewColours(const QImage& picture, int most)
{
    const QImage opaque = picture.convertToFormat(QImage::Format_ARGB32);
    const QList<QRgb> palette = PaletteOf(ColoursOf(opaque), most);
    QImage few(picture.size(), QImage::Format_Indexed8);
    few.setColorTable(palette);
    std::unordered_map<QRgb, uchar> known;
    for (int y = 0; y < opaque.height(); ++y) {
        const std::span<const QRgb> line = LineOf(opaque, y);
        uchar* to = few.scanLine(y);
        for (std::size_t x = 0; x < line.size(); ++x) {
            if (x > 0 && line[x] == line[x - 1]) {
                to[x] = to[x - 1];
                continue;
            }
            const auto [found, isNew] = known.try_emplace(line[x], uchar{0});
            if (isNew)
                found->second = static_cast<uchar>(ClosestOf(palette, line[x]));
            to[x] = found->second;
        }
    }
    return few;
}

} // namespace sprout
