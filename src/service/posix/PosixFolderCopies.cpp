// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixFolderCopies.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <span>
#include <system_error>
#include <thread>
#include <utility>

#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "posix/Descriptor.h"
#include "service/posix/FileLock.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kBlockBytes = 262'144;
constexpr std::chrono::milliseconds kBetweenTries(10);

[[noreturn]] void Fail(int error)
{
    throw std::system_error(error, std::generic_category());
}

/// The names beside a target that are used while filling it. Names that begin with a dot are not the user's files.
struct Places {
    explicit Places(const fs::path& wanted)
        : target(ThroughLinks(wanted.has_filename() ? wanted : wanted.parent_path())),
          parent(target.has_parent_path() ? target.parent_path() : fs::path(".")),
          copy(parent / (".TqkCopy-" + target.filename().native())),
          whole(parent / (".TqkWhole-" + target.filename().native())),
          lock(parent / ".TqkCopyLock")
    {
    }

    fs::path target;
    fs::path parent;
    fs::path copy;  ///< in progress; worthless once its program has ended
    fs::path whole; ///< a complete copy, whose entries move to the target one by one
    fs::path lock;
};

bool Exists(const fs::path& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// A file or folder within a folder, by its path relative to that folder.
struct TreeEntry {
    fs::path path;
    bool isFolder = false;
};

struct Tree {
    std::vector<TreeEntry> entries; ///< each folder before its contents
    std::size_t files = 0;
    std::vector<LeftOutFile> leftOut;
};

void ListTree(const fs::path& source, const fs::path& within, Tree& tree)
{
    std::error_code error;
    fs::directory_iterator entry(source / within, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path path = within / entry->path().filename();
        std::error_code vanished;
        if (entry->is_directory(vanished)) {
            tree.entries.push_back({path, true});
            ListTree(source, path, tree);
        } else if (entry->is_regular_file(vanished)) {
            tree.entries.push_back({path, false});
            ++tree.files;
        }
    }
    if (!error)
        return;
    if (within.empty())
        throw std::system_error(error);
    tree.leftOut.push_back({source / within, error.message()});
}

Tree TreeOf(const fs::path& source)
{
    Tree tree;
    ListTree(source, {}, tree);
    return tree;
}

Tree TreeOf(std::span<const fs::path> files)
{
    Tree tree;
    for (const fs::path& file : files)
        tree.entries.push_back({file, false});
    tree.files = files.size();
    return tree;
}

/// A name that this disk cannot hold affects only that file; any other failure would also hit the next files.
bool IsOfTheName(int error)
{
    return error == ENAMETOOLONG || error == EINVAL || error == EILSEQ;
}

bool IsOfTheProgram(int error)
{
    return error == EMFILE || error == ENFILE || error == ENOMEM;
}

void WriteAll(int file, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written == 0)
            Fail(EIO); // a disk that accepts nothing and gives no reason would cause an endless loop
        if (written < 0 && errno != EINTR)
            Fail(errno);
        if (written > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
}

/// Returns 0, or the error of reading the source. Throws the errors of writing the copy.
int CopyBytes(int source, int copy, std::span<std::byte> block)
{
    for (;;) {
        const ssize_t count = ::read(source, block.data(), block.size());
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0)
            WriteAll(copy, block.first(static_cast<std::size_t>(count)));
    }
}

/// Copies one file, without a flush. Returns 0, or the error for which it is left out.
int CopyFile(const fs::path& source, const fs::path& copy, std::span<std::byte> block)
{
    const Descriptor from(Uninterrupted([&] { return ::open(source.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    if (from.Number() < 0 && IsOfTheProgram(errno))
        Fail(errno);
    if (from.Number() < 0)
        return errno;
    Descriptor to(Uninterrupted(
        [&] { return ::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kAllButExecute); }));
    if (to.Number() < 0 && IsOfTheName(errno))
        return errno;
    if (to.Number() < 0)
        Fail(errno);
    if (const int error = CopyBytes(from.Number(), to.Number(), block); error != 0) {
        ::unlink(copy.c_str());
        return error;
    }
    // Tunes and songs identify their beats by these times. If the disk cannot keep them, the beats are still usable.
    struct stat facts {};
    if (::fstat(from.Number(), &facts) == 0) {
        const std::array times = {facts.st_atim, facts.st_mtim};
        ::futimens(to.Number(), times.data());
    }
    if (const int error = to.Close(); error != 0)
        Fail(error);
    return 0;
}

void FlushPath(const fs::path& path)
{
    const Descriptor opened(Uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
    if (opened.Number() < 0 || Uninterrupted([&] { return ::fsync(opened.Number()); }) != 0)
        Fail(errno);
}

/// Flushes the names in a folder to disk. Some file systems cannot.
void FlushNames(const fs::path& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.Number() >= 0)
        ::fsync(opened.Number());
}

void MakeFolder(const fs::path& folder)
{
    if (::mkdir(folder.c_str(), 0777) != 0)
        Fail(errno);
}

void Rename(const fs::path& from, const fs::path& to)
{
    if (Uninterrupted([&] { return ::rename(from.c_str(), to.c_str()); }) != 0)
        Fail(errno);
}

/// Moves the contents of `from` to `to`, unless the name already exists there, and deletes the rest with `from`. `from`
/// itself goes last, so an interrupted move can be resumed.
void MoveEntries(const fs::path& from, const fs::path& to)
{
    for (const fs::directory_entry& entry : EntriesOfFolder(from)) {
        const fs::path place = to / entry.path().filename();
        if (!Exists(place))
            Rename(entry.path(), place);
        else if (entry.is_directory() && fs::is_directory(place))
            MoveEntries(entry.path(), place);
    }
    fs::remove_all(from);
}

/// A copy in progress; deleted unless it was put in place.
class FolderCopy {
public:
    FolderCopy(const fs::path& from, Tree listed, const Places& ownPlaces, const FolderCopies::Progress& ownProgress)
        : source(from), places(ownPlaces), progress(ownProgress), tree(std::move(listed))
    {
    }
    FolderCopy(const FolderCopy&) = delete;
    FolderCopy& operator=(const FolderCopy&) = delete;
    ~FolderCopy()
    {
        std::error_code error;
        if (!placed)
            fs::remove_all(places.copy, error);
    }

    std::vector<LeftOutFile> Make()
    {
        MakeFolder(places.copy);
        CopyAll();
        if (copied == 0 && !tree.leftOut.empty())
            Fail(lastError);
        FlushAll();
        return std::move(tree.leftOut);
    }

    void PutInPlace()
    {
        // The rename works if the target is missing or an empty folder.
        if (::rename(places.copy.c_str(), places.target.c_str()) != 0) {
            if (errno != ENOTEMPTY && errno != EEXIST)
                Fail(errno);
            Rename(places.copy, places.whole);
            placed = true;
            MoveEntries(places.whole, places.target);
        }
        placed = true;
        FlushNames(places.parent);
    }

private:
    void CopyAll()
    {
        std::vector<std::byte> block(kBlockBytes);
        for (const TreeEntry& entry : tree.entries) {
            if (entry.isFolder) {
                MakeFolder(places.copy / entry.path);
                continue;
            }
            ShowOneMore();
            const int error = CopyFile(source / entry.path, places.copy / entry.path, block);
            if (error == 0) {
                ++copied;
                continue;
            }
            lastError = error;
            tree.leftOut.push_back({source / entry.path, std::generic_category().message(error)});
        }
    }

    /// After all copies: flushing many files together takes a fraction of the time of flushing each in turn.
    void FlushAll()
    {
        for (const TreeEntry& entry : tree.entries) {
            if (!entry.isFolder)
                ShowOneMore();
            if (entry.isFolder)
                FlushNames(places.copy / entry.path);
            else if (Exists(places.copy / entry.path))
                FlushPath(places.copy / entry.path);
        }
        FlushNames(places.copy);
    }

    void ShowOneMore()
    {
        progress(shown++, 2 * tree.files); // each file is copied, and flushed later
    }

    const fs::path& source;
    const Places& places;
    const FolderCopies::Progress& progress;
    Tree tree;
    std::size_t copied = 0;
    std::size_t shown = 0;
    int lastError = EACCES; // for what was left out
    bool placed = false;
};

/// If the file system has no locks, filling continues without one.
void WaitForOthers(FileLock& lock, const FolderCopies::Progress& progress)
{
    while (lock.Try() == Lock::Held) {
        progress(0, 1);
        std::this_thread::sleep_for(kBetweenTries);
    }
}

std::vector<LeftOutFile> CopyTo(const Places& places, const fs::path& source, Tree tree,
                                const FolderCopies::Progress& progress)
{
    FolderCopy copy(source, std::move(tree), places, progress);
    std::vector<LeftOutFile> leftOut = copy.Make();
    copy.PutInPlace();
    return leftOut;
}

} // namespace

std::vector<LeftOutFile> PosixFolderCopies::FillFolder(const fs::path& source, const fs::path& target,
                                                       const Progress& progress)
{
    const Places places(target);
    if (Exists(places.target) && !fs::is_directory(places.target))
        Fail(ENOTDIR);
    fs::create_directories(places.parent);
    FileLock lock(places.lock);
    WaitForOthers(lock, progress);
    fs::remove_all(places.copy);
    if (Exists(places.whole)) {
        MoveEntries(places.whole, places.target);
        return {};
    }
    if (HoldsFile(places.target))
        return {};
    return CopyTo(places, source, TreeOf(source), progress);
}

std::vector<LeftOutFile> PosixFolderCopies::AddFiles(const fs::path& source, const fs::path& target,
                                                     std::span<const fs::path> names, const Progress& progress)
{
    const Places places(target);
    FileLock lock(places.lock);
    WaitForOthers(lock, progress);
    fs::remove_all(places.copy);
    if (Exists(places.whole))
        MoveEntries(places.whole, places.target);
    return CopyTo(places, source, TreeOf(names), progress);
}

bool PosixFolderCopies::IsUnfinished(const fs::path& target) const
{
    const Places places(target);
    return Exists(places.copy) || Exists(places.whole) || Exists(places.lock);
}

} // namespace sprout
