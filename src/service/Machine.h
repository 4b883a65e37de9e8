// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

namespace sprout {

/// The machine's memory in bytes, and its load in percent.
struct MemoryStatus {
    std::uint64_t TotalBytes = 0;
    std::uint64_t AvailableBytes = 0;
    int LoadPercent = 0;
};

/// Facts about the machine that start-up needs. Nothing here throws; a fact that is unavailable is 0 or empty.
class Machine {
public:
    Machine() = default;
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;
    virtual ~Machine() = default;

    [[nodiscard]] virtual MemoryStatus GlobalMemoryStatus() const = 0;
    /// The machine's folder for temporary files; may be missing.
    [[nodiscard]] virtual std::filesystem::path TempPath() const = 0;
    /// The folder for temporary files that every machine of this kind has, whatever `TempPath` names.
    [[nodiscard]] virtual std::filesystem::path CommonTempPath() const = 0;
    /// The folder in which the machine's administrator keeps settings for all users; may be missing.
    [[nodiscard]] virtual std::filesystem::path ConfigFolder() const = 0;
    /// The running program's file, through links.
    [[nodiscard]] virtual std::filesystem::path ExecutablePath() const = 0;
    /// Bytes that the user may still fill on the volume of `path`; 0 if this is unknown.
    [[nodiscard]] virtual std::uint64_t FreeBytes(const std::filesystem::path& path) const = 0;
};

} // namespace sprout
