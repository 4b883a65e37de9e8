// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace sprout {

/// A file, or a folder of files, that could not be copied, and the reason in the system's own words.
struct LeftOutFile {
    std::filesystem::path Path;
    std::string Reason;
};

/// Copies whole folders; nobody ever sees a partial copy.
class FolderCopies {
public:
    /// Called during a copy: pieces done, of all. If it throws, the copy ends.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    FolderCopies() = default;
    FolderCopies(const FolderCopies&) = delete;
    FolderCopies& operator=(const FolderCopies&) = delete;
    virtual ~FolderCopies() = default;

    /// Fills a folder that holds no plain file with a copy of `source` and its subfolders, with the files' times;
    /// creates it if missing. Existing content of `target` stays.
    ///
    /// The copy is made in a hidden folder beside `target`, flushed, and put in place when it is complete. If the
    /// program ends earlier, the next call clears or finishes what is left. The call waits while another running
    /// program fills a folder beside `target`. Source files that cannot be read, or whose names cannot be, are left out
    /// and returned. Throws `std::system_error` if nothing can be copied or the disk refuses the copy; `target` is then
    /// unchanged.
    [[nodiscard]] virtual std::vector<LeftOutFile>
    FillFolder(const std::filesystem::path& source, const std::filesystem::path& target, const Progress& progress) = 0;

    /// Adds files of `source` to a folder in the same way; `names` have no folders. What `target` holds under such a
    /// name stays as it is. Whatever an earlier program left is cleared or finished first.
    [[nodiscard]] virtual std::vector<LeftOutFile> AddFiles(const std::filesystem::path& source,
                                                            const std::filesystem::path& target,
                                                            std::span<const std::filesystem::path> names,
                                                            const Progress& progress) = 0;

    /// True if an unfinished copy left something beside `target`.
    [[nodiscard]] virtual bool IsUnfinished(const std::filesystem::path& target) const = 0;
};

} // namespace sprout
