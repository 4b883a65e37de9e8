// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace sprout {

/// What the desktop's dialog for choosing a file is asked for.
struct FileQuestion {
    std::string Title;
    std::filesystem::path Folder; ///< shown at first; empty: the one last shown
    std::string FileName;         ///< offered at first
    std::string DefaultExtension; ///< without its dot
    std::string Filter;           ///< name|patterns|name|patterns, the patterns joined by semicolons
    int FilterIndex = 1;          ///< of the filter selected at first, counted from 1
};

/// Asks for a file that exists; nothing if the question was cancelled.
[[nodiscard]] std::optional<std::filesystem::path> ChooseFileToOpen(const FileQuestion& question);

/// Asks where a file is to be saved, in a folder that is there; nothing if the question was cancelled. What stands
/// there already is the caller's to ask about. Begins in the folder asked for, else in the one last shown, else in the
/// user's music folder.
[[nodiscard]] std::optional<std::filesystem::path> ChooseFileToSave(const FileQuestion& question);

/// Takes the place of the desktop's dialog, as long as it lives: who cannot click a dialog of the desktop answers here.
class FileChooserStandIn {
public:
    using Answer = std::function<std::optional<std::filesystem::path>(const FileQuestion&)>;
    explicit FileChooserStandIn(Answer answer);
    FileChooserStandIn(const FileChooserStandIn&) = delete;
    FileChooserStandIn& operator=(const FileChooserStandIn&) = delete;
    ~FileChooserStandIn();
};

} // namespace sprout
