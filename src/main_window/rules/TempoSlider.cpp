// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoSlider.h"

#include <algorithm>

#include "core/Errors.h"
#include "core/Numbers.h"
#include "core/Shared.h"
#include "core/SongModel.h"

namespace sprout {

namespace {

constexpr std::int32_t kSlowest = 50;
constexpr std::int32_t kFastest = 200;

std::int32_t SecondsOrZero(std::int32_t tempo)
{
    try {
        return SongSeconds(tempo);
    } catch (const RunTimeError&) {
        return 0;
    }
}

} // namespace

double TempoSlider::LeftOf(std::int32_t percent) const
{
    return (slotWidth - pointerWidth) * (percent - kSlowest) / (kFastest - kSlowest) + slotLeft;
}

std::int32_t TempoSlider::PercentAt(double left) const
{
    const double percent = (left - slotLeft) * (kFastest - kSlowest) / (slotWidth - pointerWidth) + kSlowest;
    return std::clamp(RoundHalfEven(percent), kSlowest, kFastest);
}

double TempoSlider::Dragged(double left, double x, std::int32_t downX) const
{
    return std::clamp(left + x - downX, slotLeft, slotLeft + slotWidth - pointerWidth);
}

std::string TempoLabel(std::int32_t percent)
{
    return std::to_string(percent) + "%";
}

std::string DurationLabel(std::int32_t tempo)
{
    return std::to_string(SecondsOrZero(tempo)) + " sec";
}

bool SetTempoPercent(std::int32_t percent)
{
    const std::int32_t tempo = TempoOfPercent(percent);
    if (tempo == Shared().Song.Tempo)
        return false;
    Shared().Song.Tempo = tempo;
    InvalidateForTempo();
    return true;
}

} // namespace sprout
