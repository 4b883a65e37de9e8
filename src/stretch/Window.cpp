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

/// Four samples from `first` on; zeros outside the sound.
inline Float4 FourOf(std::span<const float> sound, Index first)
{
    if (first >= 0 && first + kLanes <= std::ssize(sound))
        return LoadFour(sound.data() + first);
    Float4 four{};
    for (Index i = std::max<Index>(first, 0); i < std::min<Index>(first + kLanes, std::ssize(sound)); ++i)
        four[i - first] = sound[static_cast<std::size_t>(i)];
    return four;
}

/// Windows four blocks at once; `fourFrom` gives four consecutive samples.
template <typename FourFrom>
void FillBlocks(FourFrom fourFrom, const FourPlaces& firsts, std::span<const float> window, std::span<Complex4> blocks)
{
    Complex4* pair = blocks.data();
    for (Index i = 0; i < std::ssize(window); i += 4, pair += 2) {
        const Float4 shape = LoadFour(window.data() + i);
        Float4 a = fourFrom(firsts[0] + i) * shape;
        Float4 b = fourFrom(firsts[1] + i) * shape;
        Float4 c = fourFrom(firsts[2] + i) * shape;
        Float4 d = fourFrom(firsts[3] + i) * shape;
        Transpose(a, b, c, d);
        pair[0] = {a, b};
        pair[1] = {c, d};
    }
}

} // namespace

std::span<const float> HannWindow(Index size)
{
    thread_local std::map<Index, std::vector<float>> windows;
    const auto found = windows.find(size);
    return found != windows.end() ? found->second : windows.emplace(size, MakeHannWindow(size)).first->second;
}

void WindowBlocks(std::span<const float> sound, const FourPlaces& firsts, std::span<const float> window,
                  std::span<Complex4> blocks)
{
    const Index width = std::ssize(window);
    const auto isInside = [&](Index first) { return first >= 0 && first + width <= std::ssize(sound); };
    if (std::all_of(firsts.begin(), firsts.end(), isInside))
        FillBlocks([sound](Index first) { return LoadFour(sound.data() + first); }, firsts, window, blocks);
    else
        FillBlocks([sound](Index first) { return FourOf(sound, first); }, firsts, window, blocks);
    std::fill(blocks.begin() + width / 2, blocks.end(), Complex4{});
}

void SplitBlocks(std::span<const Complex4> blocks, std::array<std::span<float>, kLanes> rows)
{
    const Complex4* pair = blocks.data();
    for (std::size_t i = 0; i < rows[0].size(); i += 4, pair += 2) {
        Float4 a = pair[0].re;
        Float4 b = pair[0].im;
        Float4 c = pair[1].re;
        Float4 d = pair[1].im;
        Transpose(a, b, c, d);
        StoreFour(a, rows[0].data() + i);
        StoreFour(b, rows[1].data() + i);
        StoreFour(c, rows[2].data() + i);
        StoreFour(d, rows[3].data() + i);
    }
}

} // namespace sprout::stretch
