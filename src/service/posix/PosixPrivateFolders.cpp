// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/PosixPrivateFolders.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "base/Errors.h"
#include "base/Guarded.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPrivateFolder = "TqkMail-";
constexpr std::time_t kDaySeconds = 86400;

struct CloseListing {
    void operator()(DIR* listing) const { ::closedir(listing); }
};

/// Opens a real folder, never a link to one.
Descriptor OpenFolder(int parent, const char* name)
{
    return Descriptor(Uninterrupted(
        [&] { return ::openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC); }));
}

/// The names in an open folder that begin with `prefix`.
std::vector<std::string> NamesIn(int folder, std::string_view prefix, const std::stop_token& stop)
{
    std::vector<std::string> names;
    Descriptor again = OpenFolder(folder, "."); // reading moves the position of the descriptor
    const std::unique_ptr<DIR, CloseListing> listing(again.Number() < 0 ? nullptr : ::fdopendir(again.Number()));
    if (!listing)
        return names;
    again.Release(); // the listing closes it
    while (const dirent* const entry = stop.stop_requested() ? nullptr : ::readdir(listing.get())) {
        const std::string_view name = &entry->d_name[0];
        if (name.starts_with(prefix) && name != "." && name != "..")
            names.emplace_back(name);
    }
    return names;
}

/// Deletes a folder and everything in it except folders. If something stays, the folder stays.
void DeleteWithFiles(int parent, const char* name, int folder)
{
    for (const std::string& file : NamesIn(folder, "", {}))
        ::unlinkat(folder, file.c_str(), 0); // refuses folders, and deletes a link itself
    ::unlinkat(parent, name, AT_REMOVEDIR);
}

/// True if it is the user's own folder and was last changed more than a day ago. A time in the future means that the
/// clock was set.
bool IsLeft(int folder)
{
    struct stat facts {};
    return ::fstat(folder, &facts) == 0 && facts.st_uid == ::geteuid() &&
           facts.st_mtime < std::time(nullptr) - kDaySeconds;
}

} // namespace

fs::path PosixPrivateFolders::MakeFolder(const fs::path& parent)
{
    std::string pattern = (parent / (std::string(kPrivateFolder) + "XXXXXX")).native();
    if (!::mkdtemp(pattern.data()))
        throw RunTimeError(
            Words::Text("No folder could be made in %1: %2.", parent.native(), std::generic_category().message(errno)));
    Descriptor lock = OpenFolder(AT_FDCWD, pattern.c_str());
    // Without locks in the file system, leftover folders are not deleted either.
    static_cast<void>(TakeLock(lock.Number()));
    held.push_back({pattern, std::move(lock)});
    return pattern;
}

void PosixPrivateFolders::DeleteFolder(const fs::path& folder)
{
    const auto own = std::find_if(held.begin(), held.end(), [&](const Held& one) { return one.folder == folder; });
    if (own == held.end())
        return;
    DeleteWithFiles(AT_FDCWD, folder.c_str(), own->lock.Number());
    held.erase(own);
}

void PosixPrivateFolders::DeleteLeftFolders(const fs::path& parent)
{
    cleaner = std::jthread([parent](const std::stop_token& stop) {
        // After a failure the next start tries again.
        GuardedQuietly("Deleting old private folders", [&] { DeleteLeftPrivateFolders(parent, stop); });
    });
}

void DeleteLeftPrivateFolders(const fs::path& parent, const std::stop_token& stop)
{
    // The parent may be a link, as /tmp is on some machines.
    const Descriptor folder(Uninterrupted([&] { return ::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (folder.Number() < 0)
        return;
    for (const std::string& name : NamesIn(folder.Number(), kPrivateFolder, stop)) {
        const Descriptor left = OpenFolder(folder.Number(), name.c_str());
        if (left.Number() >= 0 && IsLeft(left.Number()) && TakeLock(left.Number()) == Lock::Taken)
            DeleteWithFiles(folder.Number(), name.c_str(), left.Number());
    }
}

} // namespace sprout
