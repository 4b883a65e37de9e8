// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/WaveData.h"

#include <algorithm>
#include <cassert>
#include <memory_resource>

namespace sprout {

namespace {

std::size_t ElementCount(std::int32_t upperBound)
{
    return static_cast<std::size_t>(upperBound) + 1;
}

using Block = std::shared_ptr<std::int16_t[]>;

// Loading a long sound spends most of its time on the first touch of one small page after the other. Blocks of several
// large pages come from the default memory resource; the program installs one that requests large pages.
constexpr std::size_t kLargePageBytes = std::size_t{1} << 21;
constexpr std::size_t kSmallestLargeBlock = 2 * kLargePageBytes;

Block LargeBlock(std::size_t bytes)
{
    std::pmr::memory_resource& source = *std::pmr::get_default_resource();
    const auto release = [&source, bytes](std::int16_t* memory) { source.deallocate(memory, bytes, kLargePageBytes); };
    return {static_cast<std::int16_t*>(source.allocate(bytes, kLargePageBytes)), release};
}

/// Elements 0 to `upperBound`, with arbitrary content.
Block UnfilledBlock(std::int32_t upperBound)
{
    const std::size_t count = ElementCount(upperBound);
    const std::size_t bytes = count * sizeof(std::int16_t);
    return bytes < kSmallestLargeBlock ? std::make_shared_for_overwrite<std::int16_t[]>(count) : LargeBlock(bytes);
}

Block ZeroBlock(std::int32_t upperBound)
{
    Block block = UnfilledBlock(upperBound);
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
        channel.block = UnfilledBlock(upperBound);
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
        auto copy = UnfilledBlock(upper);
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
