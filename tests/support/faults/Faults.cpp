// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Faults.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

namespace sprout {

namespace {

/// Counts a call. Returns true, with errno set, if it must fail.
bool Fails(SystemCall call)
{
    Faults& faults = TheFaults();
    const int count = ++faults.calls[static_cast<std::size_t>(call)];
    if (call != faults.call)
        return false;
    if (faults.fault == Fault::KillBefore && count == faults.nth)
        ::_exit(kKilled);
    const bool fails = (faults.fault == Fault::FailOnce && count == faults.nth) ||
                       (faults.fault == Fault::FailForGood && count >= faults.nth);
    if (fails)
        errno = faults.error;
    return fails;
}

template <class Result>
Result Behind(SystemCall call, Result result)
{
    const Faults& faults = TheFaults();
    if (call == faults.call && faults.fault == Fault::KillAfter &&
        faults.calls[static_cast<std::size_t>(call)] == faults.nth)
        ::_exit(kKilled);
    return result;
}

bool WritesAre(Fault fault)
{
    return TheFaults().call == SystemCall::Writev && TheFaults().fault == fault;
}

} // namespace

Faults& TheFaults()
{
    static Faults faults;
    return faults;
}

} // namespace sprout

using sprout::Behind;
using sprout::Fails;
using sprout::SystemCall;

// The linker redirects the calls to these and names the real ones __real_.
extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_writev(int descriptor, const iovec* blocks, int count);
off_t __real_lseek(int descriptor, off_t offset, int whence);
int __real_fchmod(int descriptor, mode_t mode);
int __real_fsync(int descriptor);
int __real_close(int descriptor);
int __real_rename(const char* from, const char* to);
int __real_fstat(int descriptor, struct stat* facts);
ssize_t __real_read(int descriptor, void* bytes, size_t count);
ssize_t __real_write(int descriptor, const void* bytes, size_t count);
int __real_mkdir(const char* path, mode_t mode);
int __real_futimens(int descriptor, const timespec* times);

int __wrap_open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return Fails(SystemCall::Open) ? -1 : Behind(SystemCall::Open, __real_open(path, flags, mode));
}

ssize_t __wrap_writev(int descriptor, const iovec* blocks, int count)
{
    if (Fails(SystemCall::Writev))
        return -1;
    if (sprout::WritesAre(sprout::Fault::Nothing))
        return 0;
    if (sprout::WritesAre(sprout::Fault::Short)) {
        constexpr std::size_t most = 1000;
        const iovec part = {blocks->iov_base, blocks->iov_len < most ? blocks->iov_len : most};
        return __real_writev(descriptor, &part, 1);
    }
    return Behind(SystemCall::Writev, __real_writev(descriptor, blocks, count));
}

off_t __wrap_lseek(int descriptor, off_t offset, int whence)
{
    return Fails(SystemCall::Lseek) ? -1 : Behind(SystemCall::Lseek, __real_lseek(descriptor, offset, whence));
}

int __wrap_fchmod(int descriptor, mode_t mode)
{
    return Fails(SystemCall::Fchmod) ? -1 : Behind(SystemCall::Fchmod, __real_fchmod(descriptor, mode));
}

int __wrap_fsync(int descriptor)
{
    return Fails(SystemCall::Fsync) ? -1 : Behind(SystemCall::Fsync, __real_fsync(descriptor));
}

// A failed close still releases its descriptor.
int __wrap_close(int descriptor)
{
    if (!Fails(SystemCall::Close))
        return Behind(SystemCall::Close, __real_close(descriptor));
    const int error = errno;
    __real_close(descriptor);
    errno = error;
    return -1;
}

int __wrap_rename(const char* from, const char* to)
{
    return Fails(SystemCall::Rename) ? -1 : Behind(SystemCall::Rename, __real_rename(from, to));
}

int __wrap_fstat(int descriptor, struct stat* facts)
{
    return Fails(SystemCall::Fstat) ? -1 : Behind(SystemCall::Fstat, __real_fstat(descriptor, facts));
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t count)
{
    return Fails(SystemCall::Read) ? -1 : Behind(SystemCall::Read, __real_read(descriptor, bytes, count));
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t count)
{
    return Fails(SystemCall::Write) ? -1 : Behind(SystemCall::Write, __real_write(descriptor, bytes, count));
}

int __wrap_mkdir(const char* path, mode_t mode)
{
    return Fails(SystemCall::Mkdir) ? -1 : Behind(SystemCall::Mkdir, __real_mkdir(path, mode));
}

int __wrap_futimens(int descriptor, const timespec* times)
{
    return Fails(SystemCall::Futimens) ? -1 : Behind(SystemCall::Futimens, __real_futimens(descriptor, times));
}
}
