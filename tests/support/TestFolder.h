// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// An empty folder for one test, removed with everything in it.
class TestFolder {
public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    [[nodiscard]] const std::filesystem::path& Path() const { return path; }

private:
    std::filesystem::path path;
};

[[nodiscard]] std::string ReadBytes(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

/// Sets a file's last-write time to `seconds` after the beginning of 2020.
void SetWrittenIn2020(const std::filesystem::path& path, int seconds);

} // namespace sprout
