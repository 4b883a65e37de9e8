// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Window.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <vector>

namespace sprout::stretch {
namespace {

std::vector<float> MakeHannWindow(Index size)
{
    std::vector<float> window(static_cast<std::size_t>(size));
    for (Index i = 0; i < size; ++i) {
        const double turn = static_cast<double>(i) / static_cast<double>(size);
        window[static_cast<std::size_t>(i)] = static_cast<float>(0.5 - 0.5 * std::cos(2 * std::numbers::pi * turn));
    }
    return window;
}

} // namespace

std::span<const float> HannWindow(Index size)
{
    thread_local std::map<Index, std::vector<float>> windows;
    const auto found = windows.find(size);
    return found != windows.end() ? found->second : windows.emplace(size, MakeHannWindow(size)).first->second;
}

void WindowBlock(std::span<const float> sound, Index first, std::span<const float> window, std::span<float> block)
{
    const Index width = std::ssize(window);
    const Index begin = std::clamp<Index>(-first, 0, width);
    const Index end = std::clamp<Index>(std::ssize(sound) - first, begin, width);
    std::fill(block.begin(), block.begin() + begin, 0.0F);
    const float* source = sound.data() + (begin < end ? first + begin : 0);
    for (Index i = begin; i < end; ++i)
        block[static_cast<std::size_t>(i)] = source[i - begin] * window[static_cast<std::size_t>(i)];
    std::fill(block.begin() + end, block.end(), 0.0F);
}

} // namespace sprout::stretch
