// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "posix/Descriptor.h"

namespace sprout {

/// Bytes that can be read at any place: a file or a block of memory.
class ByteSource {
public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    /// Fills `bytes` from `offset` on. Throws `RunTimeError` if the source ends too early.
    virtual void Read(std::uint64_t offset, std::span<std::byte> bytes) = 0;
};

/// A file, open as long as the object lives. All cores read a large piece, because most of the time goes into the first
/// touch of the memory for it.
class FileSource : public ByteSource {
public:
    /// Throws `RunTimeError` if the path is not a plain file or cannot be read.
    explicit FileSource(const std::filesystem::path& path);

    [[nodiscard]] std::uint64_t Size() const override { return size; }
    void Read(std::uint64_t offset, std::span<std::byte> bytes) override;

private:
    Descriptor file;
    std::uint64_t size = 0;
};

/// Bytes in memory, owned by somebody else.
class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::span<const std::byte> bytes) : content(bytes) {}

    [[nodiscard]] std::uint64_t Size() const override { return content.size(); }
    void Read(std::uint64_t offset, std::span<std::byte> bytes) override;

private:
    std::span<const std::byte> content;
};

/// Walks through a part of a source, never beyond its end. Small reads are buffered; large ones go straight to their
/// target. Nothing is allocated for a count until its bytes are known to exist.
class ByteCursor {
public:
    /// Reads from `begin` up to `end` bytes of the source (clamped to its size).
    ByteCursor(ByteSource& source, std::uint64_t begin, std::uint64_t end);

    [[nodiscard]] std::uint64_t Offset() const { return offset; }
    [[nodiscard]] std::uint64_t Left() const { return end - offset; }

    /// Throws `RunTimeError` unless at least `count` bytes are left.
    void Require(std::uint64_t count) const;

    void Read(std::span<std::byte> bytes);
    [[nodiscard]] std::int32_t ReadInt32();

    /// Moves to a place between the given begin and end.
    void MoveTo(std::uint64_t place);

    /// Moves the end closer, to byte `newEnd` of the source, which must not lie beyond the old end.
    void Narrow(std::uint64_t newEnd);

private:
    void Fill();

    ByteSource& source;
    std::uint64_t begin;
    std::uint64_t end;
    std::uint64_t offset;
    std::vector<std::byte> buffer;
    std::uint64_t bufferBegin = 0;
};

} // namespace sprout
