// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ByteCursor.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <system_error>
#include <utility>

#include "base/Errors.h"
#include "base/Parallel.h"
#include "posix/FileReading.h"

namespace sprout {

namespace {

constexpr std::size_t kBufferBytes = 8192;           // the head and the picture of a tune, enough for a list of tunes
constexpr std::size_t kPieceBytes = 4 * 1024 * 1024; // two large pages

Descriptor Opened(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw RunTimeError(Words::Text("The file %1 was not found.", path.native()));
    std::optional<Descriptor> file = OpenForReading(path);
    if (!file)
        throw RunTimeError(Words::Text("The file %1 could not be opened.", path.native()));
    return std::move(*file);
}

} // namespace

FileSource::FileSource(const std::filesystem::path& path) : file(Opened(path))
{
    const std::optional<std::uint64_t> end = SizeOf(file);
    if (!end)
        throw RunTimeError(Words::Text("The file %1 could not be read.", path.native()));
    size = *end;
}

void FileSource::Read(std::uint64_t offset, std::span<std::byte> bytes)
{
    if (offset > size || bytes.size() > size - offset)
        throw RunTimeError(Words::Text("The file is too short."));
    ParallelFor((bytes.size() + kPieceBytes - 1) / kPieceBytes, [&](std::size_t piece) {
        const std::size_t begin = piece * kPieceBytes;
        if (!ReadAt(file, offset + begin, bytes.subspan(begin, std::min(kPieceBytes, bytes.size() - begin))))
            throw RunTimeError(Words::Text("The file could not be read to its end."));
    });
}

void MemorySource::Read(std::uint64_t offset, std::span<std::byte> bytes)
{
    if (offset > content.size() || bytes.size() > content.size() - offset)
        throw RunTimeError(Words::Text("The data are too short."));
    const auto from = content.subspan(static_cast<std::size_t>(offset), bytes.size());
    std::copy(from.begin(), from.end(), bytes.begin());
}

ByteCursor::ByteCursor(ByteSource& bytes, std::uint64_t first, std::uint64_t last)
    : source(bytes), begin(std::min(first, bytes.Size())), end(std::clamp(last, begin, bytes.Size())), offset(begin)
{
}

void ByteCursor::Require(std::uint64_t count) const
{
    if (count > Left())
        throw RunTimeError(Words::Text("The file is damaged: it ends too early."));
}

void ByteCursor::Fill()
{
    buffer.resize(static_cast<std::size_t>(std::min<std::uint64_t>(kBufferBytes, Left())));
    bufferBegin = offset;
    source.Read(offset, buffer);
}

void ByteCursor::Read(std::span<std::byte> bytes)
{
    Require(bytes.size());
    if (bytes.size() >= kBufferBytes) {
        source.Read(offset, bytes);
        offset += bytes.size();
        return;
    }
    while (!bytes.empty()) {
        if (offset < bufferBegin || offset >= bufferBegin + buffer.size())
            Fill();
        const auto place = static_cast<std::size_t>(offset - bufferBegin);
        const std::size_t count = std::min(bytes.size(), buffer.size() - place);
        std::memcpy(bytes.data(), buffer.data() + place, count);
        bytes = bytes.subspan(count);
        offset += count;
    }
}

std::int32_t ByteCursor::ReadInt32()
{
    std::byte bytes[4];
    Read(bytes);
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | std::to_integer<std::uint32_t>(bytes[i]);
    return static_cast<std::int32_t>(value);
}

void ByteCursor::MoveTo(std::uint64_t place)
{
    if (place < begin || place > end)
        throw RunTimeError(Words::Text("The file is damaged: it points beyond its end."));
    offset = place;
}

void ByteCursor::Narrow(std::uint64_t newEnd)
{
    if (newEnd < offset || newEnd > end)
        throw RunTimeError(Words::Text("The file is damaged: it points beyond its end."));
    end = newEnd;
}

} // namespace sprout
