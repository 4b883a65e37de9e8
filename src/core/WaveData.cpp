// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/WaveData.h"

#include <algorithm>
#include <cassert>

#include "core/MemoryBlock.h"

namespace sprout {

namespace {

std::size_t ElementCount(std::int32_t upperBound)
{
    return static_cast<std::size_t>(upperBound) + 1;
}

std::shared_ptr<std::int16_t[]> ZeroBlock(std::int32_t upperBound)
{
    auto block = MemoryBlock<std::int16_t>(ElementCount(upperBound));
    std::fill_n(block.get(), ElementCount(upperBound), std::int16_t{0});
    return block;
}

} // namespace

Channel::Channel(std::int32_t upperBound)
{
    assert(upperBound >= 0);
    if (upperBound > 0)
        block = ZeroBlock(upperBound);
    upper = upperBound;
}

Channel Channel::Unfilled(std::int32_t upperBound)
{
    assert(upperBound >= 0);
    Channel channel;
    if (upperBound > 0) {
        channel.block = MemoryBlock<std::int16_t>(ElementCount(upperBound));
        channel.block[0] = 0;
    }
    channel.upper = upperBound;
    return channel;
}

Channel Channel::FromSamples(std::span<const std::int16_t> samples)
{
    Channel channel = Unfilled(static_cast<std::int32_t>(samples.size()));
    std::copy(samples.begin(), samples.end(), channel.Change().begin() + 1);
    return channel;
}

std::span<std::int16_t> Channel::Change()
{
    if (!block) {
        block = ZeroBlock(upper);
    } else if (block.use_count() != 1) {
        auto copy = MemoryBlock<std::int16_t>(ElementCount(upper));
        std::copy_n(block.get(), ElementCount(upper), copy.get());
        block = std::move(copy);
    }
    return {block.get(), ElementCount(upper)};
}

void Channel::Resize(std::int32_t upperBound)
{
    assert(upperBound >= 0);
    if (upperBound == upper)
        return;
    Channel resized(upperBound);
    if (block && resized.block)
        std::copy_n(block.get(), ElementCount(std::min(upper, upperBound)), resized.block.get());
    *this = std::move(resized);
}

bool operator==(const Channel& a, const Channel& b)
{
    const auto left = a.Samples();
    const auto right = b.Samples();
    return left.data() == right.data() ? left.size() == right.size()
                                       : std::equal(left.begin(), left.end(), right.begin(), right.end());
}

} // namespace sprout
