// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/FileReading.h"

#include <fcntl.h>

namespace sprout {

std::optional<Descriptor> OpenForReading(const std::filesystem::path& path)
{
    const int opened = Uninterrupted([&path] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); });
    return opened < 0 ? std::nullopt : std::optional<Descriptor>(opened);
}

std::optional<std::uint64_t> SizeOf(const Descriptor& file)
{
    const off_t end = ::lseek(file.Number(), 0, SEEK_END);
    return end < 0 ? std::nullopt : std::optional(static_cast<std::uint64_t>(end));
}

bool ReadAt(const Descriptor& file, std::uint64_t offset, std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::pread(file.Number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += static_cast<std::uint64_t>(count);
    }
    return true;
}

} // namespace sprout
