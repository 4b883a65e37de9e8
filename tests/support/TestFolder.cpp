// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/TestFolder.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace sprout {

namespace fs = std::filesystem;

TestFolder::TestFolder()
{
    std::string pattern = (fs::temp_directory_path() / "sprout-test-XXXXXX").native();
    if (!::mkdtemp(pattern.data()))
        throw std::runtime_error("No folder for the test could be made.");
    path = pattern;
}

TestFolder::~TestFolder()
{
    std::error_code error;
    fs::remove_all(path, error);
}

std::string ReadBytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteBytes(const fs::path& path, std::string_view bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        throw std::runtime_error("The test's file could not be written.");
}

void SetWrittenIn2020(const fs::path& path, int seconds)
{
    using namespace std::chrono;
    const sys_seconds moment = sys_days(year(2020) / January / 1) + std::chrono::seconds(seconds);
    fs::last_write_time(path, file_clock::from_sys(moment));
}

} // namespace sprout
