// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "service/posix/PosixFolderCopies.h"
#include "support/TestFolder.h"

namespace sprout {

/// A folder "installed/Beats" with three files, one of them in a subfolder, and a place for its copy.
class InstalledBeats {
public:
    InstalledBeats()
    {
        std::filesystem::create_directories(Source() / "sub");
        std::filesystem::create_directories(User());
        WriteBytes(Source() / "a.wav", std::string(300'000, 'a')); // more than one block
        WriteBytes(Source() / "b.wav", "b");
        WriteBytes(Source() / "sub/c.wav", "c");
        SetWrittenIn2020(Source() / "b.wav", 1000);
    }

    [[nodiscard]] std::filesystem::path Source() const { return folder.Path() / "installed/Beats"; }
    [[nodiscard]] std::filesystem::path User() const { return folder.Path() / "user"; }
    [[nodiscard]] std::filesystem::path Target() const { return User() / "Beats"; }

    [[nodiscard]] std::vector<LeftOutFile> Fill() const
    {
        return PosixFolderCopies().FillFolder(Source(), Target(), [](std::size_t, std::size_t) {});
    }

    /// Adds the two files outside the subfolder.
    [[nodiscard]] std::vector<LeftOutFile> Add() const
    {
        const std::vector<std::filesystem::path> names{"a.wav", "b.wav"};
        return PosixFolderCopies().AddFiles(Source(), Target(), names, [](std::size_t, std::size_t) {});
    }

    /// All regular files of a folder and its subfolders, by their relative path.
    static std::map<std::string, std::string> FilesIn(const std::filesystem::path& root)
    {
        std::map<std::string, std::string> files;
        if (!std::filesystem::exists(root))
            return files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root))
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(root)] = ReadBytes(entry.path());
        return files;
    }
    [[nodiscard]] std::map<std::string, std::string> Installed() const { return FilesIn(Source()); }
    [[nodiscard]] std::map<std::string, std::string> Filled() const { return FilesIn(Target()); }

    /// The names in the user's folder, sorted.
    [[nodiscard]] std::vector<std::string> NamesOfUser() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(User()))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    TestFolder folder;
};

} // namespace sprout
