// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

namespace sprout {

/// The song file that bench/compare names in `SPROUT_BENCH_SONG`; further files lie beside it.
[[nodiscard]] std::filesystem::path BenchSong();

/// Begins the peak of the program's memory anew; bytes of memory now.
[[nodiscard]] std::int64_t RestartMemoryPeak();
/// The peak since then, in bytes.
[[nodiscard]] std::int64_t MemoryPeak();

} // namespace sprout
