// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/stretch/StretchService.h"

#include "service/stretch/StretchEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace sprout {
namespace {

constexpr double kLeastFactor = 0.5;
constexpr double kLargestFactor = 2;

class FinishedBlock : public StretchedBlock {
public:
    explicit FinishedBlock(std::vector<std::int16_t> finished) : samples(std::move(finished)) {}

    const std::vector<std::int16_t> samples;
};

double Clamped(float factor)
{
    return std::clamp(static_cast<double>(factor), kLeastFactor, kLargestFactor);
}

class StretchService : public Stretch {
public:
    bool Tq5Service02(StretchHandle& handle, float pitchFactor, float durationFactor, std::int32_t rate,
                      std::span<const std::int16_t> samples, std::int32_t& size) const override
    {
        handle.reset();
        const std::int32_t room = std::exchange(size, 0);
        if (samples.empty() || rate <= 0 || std::isnan(pitchFactor) || std::isnan(durationFactor)) {
            return false;
        }
        const double duration = Clamped(durationFactor);
        const stretch::Index count = stretch::ResultLength(std::ssize(samples), duration);
        if (count < 1 || count > room) {
            return false;
        }
        handle =
            std::make_unique<FinishedBlock>(stretch::StretchSamples(samples, rate, Clamped(pitchFactor), duration));
        size = static_cast<std::int32_t>(count);
        return true;
    }

    bool Tq5Service02a(StretchHandle handle, std::int32_t& size, std::span<std::int16_t> samples) const override
    {
        const std::int32_t room = std::exchange(size, 0);
        const auto* block = dynamic_cast<const FinishedBlock*>(handle.get());
        if (block == nullptr || std::ssize(block->samples) > std::min<std::ptrdiff_t>(room, std::ssize(samples))) {
            return false;
        }
        std::copy(block->samples.begin(), block->samples.end(), samples.begin());
        size = static_cast<std::int32_t>(block->samples.size());
        return true;
    }
};

} // namespace

std::unique_ptr<Stretch> MakeStretch()
{
    return std::make_unique<StretchService>();
}

} // namespace sprout
