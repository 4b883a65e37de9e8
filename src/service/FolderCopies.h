// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace sprout {

/// A file, or a folder of files, that could not be copied, and why: the system's own words.
struct LeftOutFile {
    std::filesystem::path Path;
    std::string Reason;
};

/// Copies of whole folders, of which nobody ever sees a part.
class FolderCopies {
public:
    /// Told while a copy goes on: pieces done, of all. What it throws ends the copy.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    FolderCopies() = default;
    FolderCopies(const FolderCopies&) = delete;
    FolderCopies& operator=(const FolderCopies&) = delete;
    virtual ~FolderCopies() = default;

    /// Fills a folder that holds no plain file with a copy of `source` and its folders, with the files' times; makes it
    /// where it is missing. What lies in `target` stays.
    ///
    /// The copy is made in a hidden folder beside `target`, flushed, and put in place when it is whole; a program that
    /// ends before leaves what the next call clears or finishes. While another running program fills a folder beside
    /// `target` the call waits. Source files that cannot be read, or whose names cannot be, are left out and returned.
    /// Throws `std::system_error` where nothing can be copied or the disk refuses the copy; `target` is then as it was.
    [[nodiscard]] virtual std::vector<LeftOutFile>
    FillFolder(const std::filesystem::path& source, const std::filesystem::path& target, const Progress& progress) = 0;

    /// True where something of a `FillFolder` that did not come to its end lies beside `target`.
    [[nodiscard]] virtual bool IsUnfinished(const std::filesystem::path& target) const = 0;
};

} // namespace sprout
