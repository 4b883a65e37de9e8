// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace sprout {

/// Folders that only the user can look into, with unguessable names, for files that the user's other programs read.
class PrivateFolders {
public:
    PrivateFolders() = default;
    PrivateFolders(const PrivateFolders&) = delete;
    PrivateFolders& operator=(const PrivateFolders&) = delete;
    virtual ~PrivateFolders() = default;

    /// Creates an empty folder in `parent`. The running program locks it, so other programs do not take it for a
    /// leftover. Throws `RunTimeError` with a plain sentence if it cannot be created.
    [[nodiscard]] virtual std::filesystem::path MakeFolder(const std::filesystem::path& parent) = 0;

    /// Deletes a folder that this object created, with the files in it. What cannot be deleted stays, silently.
    virtual void DeleteFolder(const std::filesystem::path& folder) = 0;

    /// Deletes the folders in `parent` that earlier runs left more than a day ago, with the files in them. May continue
    /// after the call returns. What cannot be deleted stays, silently.
    virtual void DeleteLeftFolders(const std::filesystem::path& parent) = 0;
};

} // namespace sprout
