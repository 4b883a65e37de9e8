// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace sprout {

/// Folders that nobody but the user can look into, with names that nobody can guess, for files that other programs of
/// the user read.
class PrivateFolders {
public:
    PrivateFolders() = default;
    PrivateFolders(const PrivateFolders&) = delete;
    PrivateFolders& operator=(const PrivateFolders&) = delete;
    virtual ~PrivateFolders() = default;

    /// Makes an empty folder in `parent`. The running program holds it, so that no other one takes it for a left one.
    /// Throws `RunTimeError` with a plain sentence where it cannot be made.
    [[nodiscard]] virtual std::filesystem::path MakeFolder(const std::filesystem::path& parent) = 0;

    /// Deletes a folder that this object made, with the files in it. What cannot be deleted stays, without a word.
    virtual void DeleteFolder(const std::filesystem::path& folder) = 0;

    /// Deletes the folders in `parent` that earlier runs left more than a day ago, with the files in them. May go on
    /// behind the call. What cannot be deleted stays, without a word.
    virtual void DeleteLeftFolders(const std::filesystem::path& parent) = 0;
};

} // namespace sprout
