// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/FileBeside.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <vector>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "service/Files.h"
#include "service/posix/FileLock.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr int kMostSavesAtOnce = 100; // hidden files of other running programs in one folder

template <class Error = RunTimeError>
[[noreturn]] void Fail(const fs::path& path, int error)
{
    throw Error(
        Words::Text("The file %1 could not be written: %2.", path.native(), std::generic_category().message(error)));
}

/// Drops `count` written bytes from the front of `blocks`.
void DropFront(std::vector<iovec>& blocks, std::size_t& first, std::size_t count)
{
    while (count > 0) {
        iovec& block = blocks[first];
        const std::size_t part = std::min(count, block.iov_len);
        block.iov_base = static_cast<char*>(block.iov_base) + part;
        block.iov_len -= part;
        count -= part;
        if (block.iov_len == 0)
            ++first;
    }
}

} // namespace

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

bool MayWrite(const fs::path& path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

void DeleteUnlessHeld(const fs::path& path)
{
    const Descriptor file(
        Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); }));
    if (file.Number() >= 0 && TakeLock(file.Number()) == Lock::Taken && Names(path, file.Number()))
        ::unlink(path.c_str());
}

FileBeside::~FileBeside()
{
    if (!moved)
        ::unlink(path.c_str());
}

int FileBeside::Create()
{
    const fs::path folder = FolderOf(wanted);
    for (int n = 1; n <= kMostSavesAtOnce; ++n) {
        path = folder / (".TqkSave" + std::to_string(n));
        DeleteUnlessHeld(path);
        const int opened = Uninterrupted(
            [&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly); });
        if (opened < 0 && errno != EEXIST)
            Fail(wanted, errno);
        if (opened < 0)
            continue;
        // A system that does not report the names of open files has still created it.
        if (TakeLock(opened) != Lock::Held && NamingOf(path, opened) != Naming::Another)
            return opened;
        ::close(opened); // just before the lock another program took it for a stale one
    }
    Fail(wanted, EEXIST);
}

void FileBeside::Write(std::span<const std::span<const std::byte>> pieces)
{
    std::vector<iovec> blocks;
    for (const std::span<const std::byte> piece : pieces)
        if (!piece.empty()) // writev takes pointers to non-const data, but does not change it
            blocks.push_back({const_cast<std::byte*>(piece.data()), piece.size()});
    constexpr std::size_t mostBlocks = 512;
    for (std::size_t first = 0; first < blocks.size();) {
        const auto count = static_cast<int>(std::min(blocks.size() - first, mostBlocks));
        const ssize_t written = ::writev(file.Number(), &blocks[first], count);
        if (written == 0)
            Fail(wanted, EIO); // a disk that accepts nothing and gives no reason would cause an endless loop
        if (written < 0 && errno != EINTR)
            Fail(wanted, errno);
        if (written > 0)
            DropFront(blocks, first, static_cast<std::size_t>(written));
    }
}

void FileBeside::MoveTo(std::uint64_t place)
{
    if (::lseek(file.Number(), static_cast<off_t>(place), SEEK_SET) < 0)
        Fail(wanted, errno);
}

void FileBeside::RequireTarget() const
{
    struct stat facts {};
    if (::stat(wanted.c_str(), &facts) != 0)
        return;
    if (!S_ISREG(facts.st_mode))
        throw NotReplaced(
            Words::Text("The file %1 could not be written: it is not an ordinary file.", wanted.native()));
    if (!MayWrite(wanted))
        Fail<NotReplaced>(wanted, errno);
}

void FileBeside::TakeMode()
{
    struct stat facts {};
    mode_t mode = 0;
    if (::stat(wanted.c_str(), &facts) == 0) {
        mode = facts.st_mode & 07777;
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        mode = kAllButExecute & ~mask;
    }
    Uninterrupted([&] { return ::fchmod(file.Number(), mode); });
}

void FileBeside::FlushToDisk()
{
    if (Uninterrupted([&] { return ::fsync(file.Number()); }) != 0)
        Fail(wanted, errno);
}

/// Closing reports errors that the writes could not; the lock stays until the rename.
void FileBeside::CloseUnderLock()
{
    lock = Descriptor(::dup(file.Number()));
    if (lock.Number() < 0)
        Fail(wanted, errno);
    if (const int error = file.Close(); error != 0)
        Fail(wanted, error);
}

void FileBeside::MoveOver()
{
    CloseUnderLock();
    if (Uninterrupted([&] { return ::rename(path.c_str(), wanted.c_str()); }) != 0)
        FailToReplace();
    moved = true;
}

bool FileBeside::MoveToFreeName()
{
    CloseUnderLock();
    const auto rename = [&] { return ::renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, wanted.c_str(), RENAME_NOREPLACE); };
    if (Uninterrupted(rename) == 0) {
        moved = true;
        return true;
    }
    // Not every file system supports such a rename. A second name does the same; the first goes with this object.
    if (errno == EINVAL && Uninterrupted([&] { return ::link(path.c_str(), wanted.c_str()); }) == 0)
        return true;
    if (errno != EEXIST)
        Fail(wanted, errno);
    return false;
}

void FileBeside::FailToReplace() const
{
    const int error = errno;
    struct stat facts {};
    if (::lstat(wanted.c_str(), &facts) == 0)
        Fail<NotReplaced>(wanted, error);
    Fail(wanted, error);
}

} // namespace sprout
