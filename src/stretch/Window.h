// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Hann window of `size` samples that repeats seamlessly; belongs to the calling thread, valid until the thread ends.
[[nodiscard]] std::span<const float> HannWindow(Index size);

/// Fills `block` with the samples from `first` on times `window`; the rest of the block and samples outside the sound
/// are zero. block: at least as long as the window.
void WindowBlock(std::span<const float> sound, Index first, std::span<const float> window, std::span<float> block);

} // namespace sprout::stretch
