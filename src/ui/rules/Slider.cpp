// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/Slider.h"

#include <algorithm>

#include "base/Numbers.h"

namespace sprout {

double Slider::LeftOf(std::int32_t percent) const
{
    return (slotWidth - pointerWidth) * (percent - lowest) / (highest - lowest) + slotLeft;
}

std::int32_t Slider::PercentAt(double left) const
{
    const double percent = (left - slotLeft) * (highest - lowest) / (slotWidth - pointerWidth) + lowest;
    return std::clamp(RoundHalfEven(percent), lowest, highest);
}

double Slider::Dragged(double left, double x, std::int32_t downX) const
{
    return std::clamp(left + x - downX, slotLeft, slotLeft + slotWidth - pointerWidth);
}

} // namespace sprout
