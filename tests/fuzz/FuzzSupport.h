// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "support/FakeServices.h"

namespace sprout {

/// The run of one input: a fresh shared state. All inputs share the fake services and folders, since making those takes
/// longer than reading a file. The user folder holds one beat, so names can be found.
class FuzzRun {
public:
    FuzzRun();

    /// Writes the input as a file and returns its path.
    std::filesystem::path Write(const std::filesystem::path& path, const std::uint8_t* data, std::size_t size) const;
};

/// Plays what was loaded: the mix, each track and each cycle, unless the result is longer than about a minute.
/// Whatever a file contains, a render must end.
void RenderLoadedSong();

} // namespace sprout
