// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include "stretch/Float4.h"
#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Hann window of `size` samples that repeats seamlessly; belongs to the calling thread, valid until the thread ends.
[[nodiscard]] std::span<const float> HannWindow(Index size);

/// The first samples of four blocks of one sound.
using FourPlaces = std::array<Index, kLanes>;

/// Fills each lane of `blocks`, in pairs of samples, with the samples from its place on times `window`; the rest of the
/// blocks and samples outside the sound are zero.
///
/// window: a multiple of four samples. blocks: at least as long as the window.
void WindowBlocks(std::span<const float> sound, const FourPlaces& firsts, std::span<const float> window,
                  std::span<Complex4> blocks);

/// The samples of each lane, one row after the other, each as long as `rows` allows: a multiple of four, at most as
/// many as the blocks hold.
void SplitBlocks(std::span<const Complex4> blocks, std::array<std::span<float>, kLanes> rows);

} // namespace sprout::stretch
