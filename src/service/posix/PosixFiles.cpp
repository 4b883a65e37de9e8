// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>

#include "base/FilePaths.h"
#include "posix/Descriptor.h"
#include "service/posix/FileBeside.h"
#include "service/posix/FileLock.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// Flushes the folder's entry to disk. Some file systems cannot; the rename itself has succeeded.
void FlushFolder(const fs::path& target)
{
    const Descriptor opened(::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.Number() >= 0)
        ::fsync(opened.Number());
}

class PosixReplacement : public Replacement {
public:
    explicit PosixReplacement(const fs::path& target) : file(ThroughLinks(target)), beside(file) {}

    void Write(std::span<const std::byte> bytes) override { beside.Write({&bytes, 1}); }
    void MoveTo(std::uint64_t place) override { beside.MoveTo(place); }
    void PutInPlace(Flush flush) override
    {
        beside.RequireTarget();
        beside.TakeMode();
        if (flush == Flush::Yes)
            beside.FlushToDisk();
        beside.MoveOver();
        if (flush == Flush::Yes)
            FlushFolder(file);
    }

    void WriteAll(std::span<const std::span<const std::byte>> pieces) { beside.Write(pieces); }

private:
    fs::path file;
    FileBeside beside;
};

class PosixHold : public FileHold {
public:
    explicit PosixHold(const fs::path& lockFile) : lock(lockFile) {}

    Lock Try() { return lock.Try(); }

private:
    FileLock lock;
};

std::int64_t Nanoseconds(const timespec& time)
{
    constexpr std::int64_t inASecond = 1'000'000'000;
    return time.tv_sec * inASecond + time.tv_nsec;
}

} // namespace

void PosixFiles::ReplaceFile(const fs::path& target, std::span<const std::span<const std::byte>> pieces, Flush flush)
{
    std::error_code error; // if the folder cannot be created, nor can the file
    fs::create_directory(FolderOf(ThroughLinks(target)), error);
    PosixReplacement replacement(target);
    replacement.WriteAll(pieces);
    replacement.PutInPlace(flush);
}

std::unique_ptr<Replacement> PosixFiles::BeginReplacement(const fs::path& target)
{
    return std::make_unique<PosixReplacement>(target);
}

bool PosixFiles::MayBeReplaced(const fs::path& target) const
{
    const fs::path file = ThroughLinks(target);
    struct stat facts {};
    if (::stat(file.c_str(), &facts) != 0)
        return errno == ENOENT;
    return S_ISREG(facts.st_mode) && MayWrite(file) && MayWrite(FolderOf(file));
}

bool PosixFiles::MayChangeFolder(const fs::path& folder) const
{
    std::error_code error;
    return fs::is_directory(folder, error) && MayWrite(folder);
}

std::unique_ptr<FileHold> PosixFiles::HoldForChange(const fs::path& file)
{
    constexpr std::chrono::milliseconds betweenTries(2);
    constexpr int mostTries = 1000;
    auto hold = std::make_unique<PosixHold>(FolderOf(ThroughLinks(file)) / ".TqkLock");
    for (int i = 0; i < mostTries; ++i) {
        const Lock lock = hold->Try();
        if (lock == Lock::Taken)
            return hold;
        if (lock == Lock::Unknown)
            return nullptr;
        std::this_thread::sleep_for(betweenTries);
    }
    return nullptr;
}

std::optional<FileFacts> PosixFiles::FactsOf(const fs::path& file) const
{
    struct stat facts {};
    if (::stat(file.c_str(), &facts) != 0)
        return std::nullopt;
    return FileFacts{facts.st_dev, facts.st_ino, static_cast<std::uint64_t>(facts.st_size), Nanoseconds(facts.st_mtim),
                     Nanoseconds(facts.st_ctim)};
}

bool PosixFiles::WriteNewFile(const fs::path& path, std::span<const std::span<const std::byte>> pieces)
{
    FileBeside file(path);
    file.Write(pieces);
    file.TakeMode();
    file.FlushToDisk();
    if (!file.MoveToFreeName())
        return false;
    FlushFolder(path);
    return true;
}

void PosixFiles::DeleteStaleFile(const fs::path& path)
{
    DeleteUnlessHeld(path);
}

} // namespace sprout
