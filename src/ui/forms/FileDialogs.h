// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "base/Words.h"

namespace sprout {

/// What the desktop's file dialog should show.
struct FileQuestion {
    Words Title;
    std::filesystem::path Folder; ///< shown at first; empty: the last one shown
    std::string FileName;         ///< offered at first
    std::string DefaultExtension; ///< without the dot
    Words Filter;                 ///< name|patterns|name|patterns, patterns separated by semicolons
    int FilterIndex = 1;          ///< the filter selected at first, counted from 1
};

/// Asks for an existing file; nothing if cancelled.
[[nodiscard]] std::optional<std::filesystem::path> ChooseFileToOpen(const FileQuestion& question);

/// Asks where to save a file, in an existing folder; nothing if cancelled. The caller must ask before overwriting.
/// Starts in the requested folder, else in the last one shown, else in the user's music folder.
[[nodiscard]] std::optional<std::filesystem::path> ChooseFileToSave(const FileQuestion& question);

/// Replaces the desktop's dialog while it lives, for callers that cannot click a desktop dialog.
class FileChooserStandIn {
public:
    using Answer = std::function<std::optional<std::filesystem::path>(const FileQuestion&)>;
    explicit FileChooserStandIn(Answer answer);
    FileChooserStandIn(const FileChooserStandIn&) = delete;
    FileChooserStandIn& operator=(const FileChooserStandIn&) = delete;
    ~FileChooserStandIn();
};

} // namespace sprout
