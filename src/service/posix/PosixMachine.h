// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/Machine.h"

namespace sprout {

/// `Machine` on Linux.
class PosixMachine : public Machine {
public:
    [[nodiscard]] MemoryStatus GlobalMemoryStatus() const override;
    [[nodiscard]] std::filesystem::path TempPath() const override;
    [[nodiscard]] std::filesystem::path ExecutablePath() const override;
    [[nodiscard]] std::uint64_t FreeBytes(const std::filesystem::path& path) const override;
    void PreferLargePages(void* memory, std::size_t bytes) const override;
};

} // namespace sprout
