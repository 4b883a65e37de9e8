// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <span>

namespace sprout {

/// The song that the desktop, or somebody at a terminal, wants to be opened: the first of a program's arguments that is
/// no option, as an absolute path; empty if there is none. arguments: the program's name and what Qt left of the rest.
[[nodiscard]] std::filesystem::path GivenSong(std::span<const char* const> arguments);

} // namespace sprout
