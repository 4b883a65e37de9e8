// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/UserFolders.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Product.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/FolderCopies.h"
#include "service/Services.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

fs::path PlaceOf(const UserFolder& folder)
{
    return Shared().UserRoot / folder.Name;
}

bool MayChange(const fs::path& folder)
{
    return TheServices().files->MayChangeFolder(folder);
}

bool Exists(const fs::path& path)
{
    std::error_code error;
    return fs::exists(path, error);
}

/// Whether a copy is worth a try. What only looks like a folder is tried, so that the user learns what is in the way.
bool MayBeFilled(const fs::path& target)
{
    std::error_code error;
    return MayChange(Shared().UserRoot) && (!fs::is_directory(target, error) || MayChange(target));
}

bool NeedsFiles(const fs::path& target)
{
    return !HoldsFile(target) || TheServices().folderCopies->IsUnfinished(target);
}

/// Fills one folder, unless a setting forbids it, or replaces it by the installed one. Returns why a whole folder was
/// not copied; blank if it was, or if a copy was not worth a try. Shows what was left out of a copy. Throws
/// `WorkStopped`.
Words Fill(const UserFolder& folder)
{
    SharedState& shared = Shared();
    const fs::path target = PlaceOf(folder);
    Words failure;
    if (MayBeFilled(target)) {
        if (IsSetToOne("SkipFirstCopy"))
            return {};
        failure = CopyFolder(shared.InstallRoot / folder.Name, shared.UserRoot);
        if (failure.IsBlank())
            return {};
    }
    if (!HoldsFile(target)) {
        if (HoldsFile(shared.*folder.Installed))
            shared.*folder.User = shared.*folder.Installed;
        return failure;
    }
    if (!failure.IsBlank())
        TellFailedCopy(shared.InstallRoot / folder.Name, failure);
    return {};
}

} // namespace

/// Without a documents folder, the user root is in the root of the file system, not in the current folder.
void SetUserFolders()
{
    const fs::path::string_type separator(1, fs::path::preferred_separator);
    SetUserRoot(Shared().DocumentsFolder.native() + separator + std::string(kProductName));
    std::error_code error;
    if (!fs::is_directory(Shared().UserRoot, error))
        fs::create_directory(Shared().UserRoot, error);
}

void FillUserFolders()
{
    bool isTold = false;
    try {
        for (const UserFolder& folder : kUserFolders) {
            if (!NeedsFiles(PlaceOf(folder)))
                continue;
            const Words failure = Fill(folder);
            if (!failure.IsBlank() && !std::exchange(isTold, true))
                TellFailedCopy(Shared().InstallRoot / folder.Name, failure);
        }
    } catch (const WorkStopped&) {
        return;
    }
}

Words FoldersThatKeepNothing()
{
    const SharedState& shared = Shared();
    std::vector<Words> folders;
    for (const UserFolder& folder : kUserFolders) {
        const fs::path place = PlaceOf(folder);
        const bool isRead = shared.*folder.User == AsFolder(place);
        if (!isRead || !MayChange(Exists(place) ? place : shared.UserRoot))
            folders.push_back(Words::AsIs(PathText(place)));
    }
    if (folders.size() == kUserFolders.size())
        return Words::AsIs(PathText(shared.UserRoot));
    return Words::Joined(std::move(folders), ", ");
}

} // namespace sprout
