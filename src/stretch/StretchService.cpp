// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/StretchService.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "stretch/StretchEngine.h"

namespace sprout {
namespace {

constexpr double kLeastFactor = 0.5;
constexpr double kLargestFactor = 2;

double Clamped(float factor)
{
    return std::clamp(static_cast<double>(factor), kLeastFactor, kLargestFactor);
}

class StretchService : public Stretch {
public:
    [[nodiscard]] std::vector<std::int16_t> Change(std::span<const std::int16_t> samples, std::int32_t rate,
                                                   float pitchFactor, float durationFactor) const override
    {
        if (samples.empty() || rate <= 0 || std::isnan(pitchFactor) || std::isnan(durationFactor))
            return {};
        const double duration = Clamped(durationFactor);
        const stretch::Index count = stretch::ResultLength(std::ssize(samples), duration);
        if (count < 1 || count > std::numeric_limits<std::int32_t>::max())
            return {};
        return stretch::StretchSamples(samples, rate, Clamped(pitchFactor), duration);
    }
};

} // namespace

std::unique_ptr<Stretch> MakeStretch()
{
    return std::make_unique<StretchService>();
}

} // namespace sprout
