// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "posix/Descriptor.h"

namespace sprout {

/// A hidden file that running programs hold in turn. Its holder deletes it at the end.
class FileLock {
public:
    explicit FileLock(std::filesystem::path lockFile) : path(std::move(lockFile)) {}
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    /// Takes the lock for this object's lifetime if no other program holds it. `Unknown`: the file cannot be created,
    /// or the file system has no locks.
    Lock Try();

private:
    std::filesystem::path path;
    Descriptor file{-1};
};

} // namespace sprout
