// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/FileLock.h"

#include <fcntl.h>

namespace sprout {

namespace {

constexpr int kMostTries = 100; // if others keep deleting the file

} // namespace

FileLock::~FileLock()
{
    if (file.Number() >= 0)
        ::unlink(path.c_str());
}

Lock FileLock::Try()
{
    for (int i = 0; i < kMostTries; ++i) {
        // Some file systems lock only files that are open for writing.
        Descriptor opened(Uninterrupted(
            [&] { return ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwnerOnly); }));
        if (opened.Number() < 0)
            return Lock::Unknown;
        const Lock lock = TakeLock(opened.Number());
        if (lock == Lock::Unknown)
            ::unlink(path.c_str());
        if (lock != Lock::Taken)
            return lock;
        if (NamingOf(path, opened.Number()) != Naming::Another) {
            file = std::move(opened);
            return lock;
        }
        // The previous holder deleted the file just before the lock.
    }
    return Lock::Unknown;
}

} // namespace sprout
