// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Makes all demos, each in a process of its own: arguments SCRIPTS, SPROUT and DEMOS. Returns the exit status; throws
/// `RunTimeError`.
[[nodiscard]] int MakeAllDemos(int argc, char** argv);

/// Makes a demo: arguments --one, its number, its SCRIPT, SPROUT and a folder, which gets what is made in "made".
[[nodiscard]] int MakeOneDemo(int argc, char** argv);

} // namespace sprout
