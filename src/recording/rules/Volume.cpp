// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/Volume.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sprout {

namespace {

constexpr std::int32_t kFullPercent = 100;
constexpr std::size_t kMostLines = 50;
constexpr std::size_t kMostNameBytes = 3200; ///< counting one extra byte per name

} // namespace

std::int32_t VolumePercent(std::int32_t value)
{
    return std::clamp(RoundHalfEven(static_cast<double>(value) / kFullVolume * kFullPercent), 0, kFullPercent);
}

std::int32_t VolumeOfPercent(std::int32_t percent)
{
    return RoundHalfEven(static_cast<double>(percent) * kFullVolume / kFullPercent);
}

SourceLines LinesOfSources(const std::optional<SoundSources>& sources)
{
    if (!sources)
        return {};
    const auto count = static_cast<std::int32_t>(sources->Sources.size());
    if (sources->Selected < 0 || sources->Selected >= count)
        return {};
    SourceLines shown;
    std::size_t nameBytes = 0;
    for (std::int32_t index = 0; index < count && shown.Lines.size() < kMostLines; ++index) {
        const SoundSource& source = sources->Sources[static_cast<std::size_t>(index)];
        if (Trim(source.Name).empty())
            continue;
        nameBytes += source.Name.size() + 1;
        if (nameBytes > kMostNameBytes)
            break;
        if (index == sources->Selected)
            shown.Selected = static_cast<std::int32_t>(shown.Lines.size());
        shown.Lines.push_back({std::string(Trim(source.Name)), index});
    }
    if (shown.Lines.empty())
        return {};
    shown.SourceIndex = sources->Selected;
    shown.Volume = sources->Sources[static_cast<std::size_t>(sources->Selected)].Volume;
    return shown;
}

} // namespace sprout
