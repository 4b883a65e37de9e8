// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

namespace sprout {

/// The song file that bench/compare names in `SPROUT_BENCH_SONG`; more files are beside it.
[[nodiscard]] std::filesystem::path BenchSong();

/// Resets the program's memory peak; returns the bytes of memory in use now.
[[nodiscard]] std::int64_t RestartMemoryPeak();
/// The memory peak since then, in bytes.
[[nodiscard]] std::int64_t MemoryPeak();

} // namespace sprout
