// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FileMark.h"

#include <system_error>

namespace sprout {

namespace fs = std::filesystem;

FileMark MarkOf(const fs::path& path)
{
    std::error_code noSize;
    std::error_code noTime;
    // Only a plain file has a size.
    FileMark mark{path, fs::file_size(path, noSize), fs::last_write_time(path, noTime)};
    return !noSize && !noTime ? mark : FileMark();
}

} // namespace sprout
