// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/WindowPlace.h"

#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sprout {

namespace {

constexpr double kNotSet = -1;
constexpr double kShareOfScreen = 0.8;
constexpr double kLeastWidth = 8000;
constexpr double kLeastHeight = 3000;

struct Pair {
    double first = 0;
    double second = 0;
};

Pair PairOf(std::string_view setting)
{
    std::vector<std::string> parts = Split(setting, ',');
    parts.resize(2);
    return {NumberPrefix(parts[0]), NumberPrefix(parts[1])};
}

double Extent(double setting, double least, double screen)
{
    double extent = setting;
    if (extent == kNotSet)
        extent = screen * kShareOfScreen;
    else if (extent < least)
        extent = least;
    return extent > screen ? screen * kShareOfScreen : extent;
}

double Offset(double setting, double extent, double screen)
{
    if (setting == kNotSet)
        return (screen - extent) / 2;
    if (setting < 0)
        return 0;
    return setting > screen ? screen * kShareOfScreen : setting;
}

/// An offset that leaves at least half of the extent visible; else one that shows all of it. The screen may be smaller
/// than in the last run.
double InSight(double offset, double extent, double screen)
{
    return screen - offset < extent / 2 ? screen - extent : offset;
}

std::int32_t Pixels(double twips)
{
    return RoundHalfEven(twips / kTwipsOfAPixel);
}

} // namespace

Box PlaceFromSettings(std::string_view size, std::string_view position, std::int32_t screenWidth,
                      std::int32_t screenHeight)
{
    const double screenX = static_cast<double>(screenWidth) * kTwipsOfAPixel;
    const double screenY = static_cast<double>(screenHeight) * kTwipsOfAPixel;
    const Pair extent = PairOf(size);
    const double width = Extent(extent.first, kLeastWidth, screenX);
    const double height = Extent(extent.second, kLeastHeight, screenY);
    const Pair offset = PairOf(position);
    const double left = InSight(Offset(offset.first, width, screenX), width, screenX);
    const double top = InSight(Offset(offset.second, height, screenY), height, screenY);
    return {Pixels(left), Pixels(top), Pixels(width), Pixels(height)};
}

bool IsMaximizedSetting(std::string_view windowState)
{
    constexpr double maximized = 2;
    return NumberPrefix(windowState) == maximized;
}

std::string PairOfTwips(std::int32_t firstPx, std::int32_t secondPx)
{
    return std::to_string(firstPx * kTwipsOfAPixel) + "," + std::to_string(secondPx * kTwipsOfAPixel);
}

} // namespace sprout
