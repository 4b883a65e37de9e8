// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixMachine.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kBytesPerKibibyte = 1024;

}

MemoryStatus ReadMemoryStatus(std::istream& facts)
{
    MemoryStatus status;
    std::string name;
    std::string rest;
    for (std::uint64_t kibibytes = 0; facts >> name >> kibibytes; std::getline(facts, rest)) {
        if (name == "MemTotal:")
            status.TotalBytes = kibibytes * kBytesPerKibibyte;
        else if (name == "MemAvailable:")
            status.AvailableBytes = kibibytes * kBytesPerKibibyte;
    }
    if (status.TotalBytes > 0)
        status.LoadPercent =
            100 - static_cast<int>(std::min(status.AvailableBytes, status.TotalBytes) * 100 / status.TotalBytes);
    return status;
}

MemoryStatus PosixMachine::GlobalMemoryStatus() const
{
    std::ifstream facts("/proc/meminfo");
    return ReadMemoryStatus(facts);
}

fs::path PosixMachine::TempPath() const
{
    // Safe in any thread: nothing in the program changes its environment.
    const char* named = std::getenv("TMPDIR");
    return named && *named ? fs::path(named) : CommonTempPath();
}

fs::path PosixMachine::ExecutablePath() const
{
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

std::uint64_t PosixMachine::FreeBytes(const fs::path& path) const
{
    std::error_code error;
    const fs::space_info space = fs::space(path, error);
    return error ? 0 : space.available;
}

} // namespace sprout
