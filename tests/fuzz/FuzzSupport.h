// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "support/FakeServices.h"

namespace sprout {

/// One input's run: a fresh shared state over fake services and folders that all inputs share, since making them takes
/// longer than reading a file. The user folder holds one beat, so that names can find something.
class FuzzRun {
public:
    FuzzRun();

    /// Writes the input as a file and returns its path.
    std::filesystem::path Write(const std::filesystem::path& path, const std::uint8_t* data, std::size_t size) const;
};

/// Plays what was loaded: the mix, each track and each cycle, as far as the result stays within a minute or so.
/// Whatever a file says, a render must end.
void RenderLoadedSong();

} // namespace sprout
