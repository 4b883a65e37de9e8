// SPDX-License-Identifier: GPL-3.0-or-later
#include "BenchFacts.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace sprout {

namespace {

/// A line "name: n kB" of /proc/self/status, in bytes.
std::int64_t StatusBytes(std::string_view name)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::int64_t kibibytes = 0;
        if (word == name && status >> kibibytes)
            return kibibytes * 1024;
    }
    return 0;
}

} // namespace

std::filesystem::path BenchSong()
{
    const char* named = std::getenv("SPROUT_BENCH_SONG");
    return named ? named : "bench.TqSng";
}

std::int64_t RestartMemoryPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
    return StatusBytes("VmRSS:");
}

std::int64_t MemoryPeak()
{
    return StatusBytes("VmHWM:");
}

} // namespace sprout
