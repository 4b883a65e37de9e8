// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "posix/Descriptor.h"

namespace sprout {

/// The folder that a file is in; the current one for a bare name.
[[nodiscard]] std::filesystem::path FolderOf(const std::filesystem::path& file);

/// Whether this user may write to a file or into a folder.
[[nodiscard]] bool MayWrite(const std::filesystem::path& path);

/// Deletes a file that a program left behind, unless one that runs still holds its lock.
void DeleteUnlessHeld(const std::filesystem::path& path);

/// A new hidden file beside a target. It is locked while it is written, so no other running program takes it for a
/// stale one, and it is deleted unless it was moved over the target. Every failure throws `RunTimeError`.
class FileBeside {
public:
    explicit FileBeside(const std::filesystem::path& target) : wanted(target), file(Create()) {}
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside();

    /// Throws `NotReplaced` if the existing target must not be replaced.
    void RequireTarget() const;
    void Write(std::span<const std::span<const std::byte>> pieces);
    /// The next write goes there, in bytes from the start.
    void MoveTo(std::uint64_t place);
    /// Sets the mode of the replaced file, or the default mode of a new file. If that fails, the file is still good,
    /// but private to its user.
    void TakeMode();
    void FlushToDisk();
    /// Replaces the target. Throws `NotReplaced` if there is one that stays.
    void MoveOver();
    /// Takes the target's name. Returns false if the name is taken.
    [[nodiscard]] bool MoveToFreeName();

private:
    int Create();
    void CloseUnderLock();
    [[noreturn]] void FailToReplace() const;

    std::filesystem::path wanted;
    std::filesystem::path path;
    Descriptor file;
    Descriptor lock{-1}; // of the file while it is being closed and moved
    bool moved = false;
};

} // namespace sprout
