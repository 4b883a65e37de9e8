// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <istream>

#include "service/Machine.h"

namespace sprout {

/// Reads the lines of `/proc/meminfo`. `MemAvailable` is what programs can get, which is more than what is free.
[[nodiscard]] MemoryStatus ReadMemoryStatus(std::istream& facts);

/// `Machine` on Linux.
class PosixMachine : public Machine {
public:
    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override;
    [[nodiscard]] std::filesystem::path TempPath() const override;
    [[nodiscard]] std::filesystem::path CommonTempPath() const override { return "/tmp"; }
    [[nodiscard]] std::filesystem::path ConfigFolder() const override { return "/etc"; }
    [[nodiscard]] std::filesystem::path ExecutablePath() const override;
    [[nodiscard]] std::uint64_t FreeBytes(const std::filesystem::path& path) const override;
};

} // namespace sprout
