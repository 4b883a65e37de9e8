// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "posix/Descriptor.h"

namespace sprout {

/// Opens a file; nothing if it cannot be.
[[nodiscard]] std::optional<Descriptor> OpenForReading(const std::filesystem::path& path);

/// How many bytes an open file has; nothing if it has no end.
[[nodiscard]] std::optional<std::uint64_t> SizeOf(const Descriptor& file);

/// Fills `bytes` from place `offset` of an open file on. Returns false if that fails or the file ends before. Several
/// threads may call it.
[[nodiscard]] bool ReadAt(const Descriptor& file, std::uint64_t offset, std::span<std::byte> bytes);

} // namespace sprout
