// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "service/posix/Descriptor.h"

namespace sprout {

/// A hidden file that running programs hold one after the other. Its holder deletes it at the end.
class FileLock {
public:
    explicit FileLock(std::filesystem::path lockFile) : path(std::move(lockFile)) {}
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    /// Takes the lock, if no other program holds it, for as long as the object lives. `Unknown`: the file cannot be
    /// made, or the file system has no locks.
    Lock Try();

private:
    std::filesystem::path path;
    Descriptor file{-1};
};

} // namespace sprout
