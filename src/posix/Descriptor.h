// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

namespace sprout {

// Modes of new files.
inline constexpr mode_t kOwnerOnly = 0600;
inline constexpr mode_t kAllButExecute = 0666;

/// An open file descriptor.
class Descriptor {
public:
    explicit Descriptor(int opened) : number(opened) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number, other.number);
        return *this;
    }
    ~Descriptor()
    {
        if (number >= 0)
            ::close(number);
    }

    [[nodiscard]] int Number() const { return number; }
    /// Closes now; returns 0 or the error. Either way the descriptor is gone.
    int Close() { return ::close(std::exchange(number, -1)) == 0 ? 0 : errno; }
    /// Leaves closing it to someone else.
    int Release() { return std::exchange(number, -1); }

private:
    int number;
};

/// Repeats a call that a signal interrupted.
template <class Call>
int Uninterrupted(Call call)
{
    int result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

enum class Lock { Taken, Held, Unknown };

/// Locks an open file or folder without waiting. `Unknown`: the file system has no locks.
inline Lock TakeLock(int descriptor)
{
    if (Uninterrupted([&] { return ::flock(descriptor, LOCK_EX | LOCK_NB); }) == 0)
        return Lock::Taken;
    return errno == EWOULDBLOCK ? Lock::Held : Lock::Unknown;
}

enum class Naming { This, Another, Unknown };

/// Whether `path` names the open file. `Unknown`: the system does not report it.
inline Naming NamingOf(const std::filesystem::path& path, int descriptor)
{
    struct stat open {};
    struct stat named {};
    if (::fstat(descriptor, &open) != 0)
        return Naming::Unknown;
    if (::lstat(path.c_str(), &named) != 0)
        return errno == ENOENT ? Naming::Another : Naming::Unknown;
    return open.st_dev == named.st_dev && open.st_ino == named.st_ino ? Naming::This : Naming::Another;
}

/// True while `path` is known to name the open file. Only the holder of the lock may delete or move it, so the answer
/// stays true under the lock.
inline bool Names(const std::filesystem::path& path, int descriptor)
{
    return NamingOf(path, descriptor) == Naming::This;
}

} // namespace sprout
