// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoSlider.h"

#include "base/Errors.h"
#include "core/SongTime.h"

namespace sprout {

namespace {

std::int32_t SecondsOrZero(std::int32_t tempo)
{
    try {
        return SongSeconds(tempo);
    } catch (const RunTimeError&) {
        return 0;
    }
}

} // namespace

Words TempoLabel(std::int32_t percent)
{
    return Words::Text("%1%", percent);
}

Words DurationLabel(std::int32_t tempo)
{
    return Words::Text("%1 sec", SecondsOrZero(tempo));
}

} // namespace sprout
