// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <istream>

#include "service/Machine.h"

namespace sprout {

/// What the lines of `/proc/meminfo` tell: `MemAvailable` is what programs can get, more than what lies free.
[[nodiscard]] MemoryStatus ReadMemoryStatus(std::istream& facts);

/// `Machine` on Linux.
class PosixMachine : public Machine {
public:
    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override;
    [[nodiscard]] std::filesystem::path TempPath() const override;
    [[nodiscard]] std::filesystem::path ExecutablePath() const override;
    [[nodiscard]] std::uint64_t FreeBytes(const std::filesystem::path& path) const override;
};

} // namespace sprout
