// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace sprout {

enum class Flush { No, Yes };

/// File operations that need more of the machine than the standard library gives.
class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    /// Replaces `target` by the concatenated `pieces`, or makes it.
    ///
    /// The bytes are written beside the target under a hidden name and renamed over it, so that at any moment the
    /// target holds the old bytes or the new ones, never a part. With `Flush::Yes` they are on the disk before the
    /// rename, and the rename before the return. Throws `RunTimeError` with a plain sentence on any failure; the
    /// target then stands as before and nothing is left beside it.
    virtual void ReplaceFile(const std::filesystem::path& target, std::span<const std::span<const std::byte>> pieces,
                             Flush flush) = 0;

    /// Deletes a temporary file, unless a running program still holds it. Follows no link.
    virtual void DeleteStaleFile(const std::filesystem::path& path) = 0;
};

} // namespace sprout
