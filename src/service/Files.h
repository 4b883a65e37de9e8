// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>

#include "base/Errors.h"

namespace sprout {

enum class Flush { No, Yes };

/// Thrown where a new file is whole and what stands in its place does not give way.
class NotReplaced : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// A file that is written beside its target under a hidden name and takes the target's place when it is whole.
///
/// At any moment the target holds the old bytes or the new ones, never a part. One that is destroyed before it was put
/// in place leaves the target as it was and nothing beside it. All failures are thrown as `RunTimeError` with a plain
/// sentence.
class Replacement {
public:
    Replacement() = default;
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    virtual ~Replacement() = default;

    /// Writes at the present place, which moves behind what was written.
    virtual void Write(std::span<const std::byte> bytes) = 0;
    /// Moves the place to a byte, counted from 0; what a write leaves out below it becomes zero.
    virtual void MoveTo(std::uint64_t place) = 0;
    /// Puts the file in the target's place, the last call. With `Flush::Yes` its bytes are on the disk before, and its
    /// name before the return. Throws `NotReplaced` where an old file stays in the way.
    virtual void PutInPlace(Flush flush) = 0;
};

/// What tells one state of a file from another.
struct FileFacts {
    std::uint64_t Device = 0;
    std::uint64_t Inode = 0;
    std::uint64_t Size = 0;     ///< bytes
    std::int64_t WrittenNs = 0; ///< last write, in nanoseconds since 1970
    std::int64_t ChangedNs = 0; ///< last change of its facts, likewise
    friend bool operator==(const FileFacts&, const FileFacts&) = default;
};

/// Keeps other running programs from changing a file, as long as it lives.
class FileHold {
public:
    FileHold() = default;
    FileHold(const FileHold&) = delete;
    FileHold& operator=(const FileHold&) = delete;
    virtual ~FileHold() = default;
};

/// File operations that need more of the machine than the standard library gives.
class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    /// Replaces `target` by the concatenated `pieces`, or makes it.
    ///
    /// The bytes are written beside the target under a hidden name and renamed over it, so that at any moment the
    /// target holds the old bytes or the new ones, never a part. With `Flush::Yes` they are on the disk before the
    /// rename, and the rename before the return. The folder is made if only it is missing. Throws `RunTimeError` with a
    /// plain sentence on any failure; the target then stands as before and nothing is left beside it. What is no plain
    /// file, or may not be written by its user, is not replaced: throws `NotReplaced`. Links are followed.
    virtual void ReplaceFile(const std::filesystem::path& target, std::span<const std::span<const std::byte>> pieces,
                             Flush flush) = 0;

    /// Begins such a replacement of a file that may be too large to stand in memory once more. Throws `RunTimeError`
    /// where nothing can be written beside the target.
    [[nodiscard]] virtual std::unique_ptr<Replacement> BeginReplacement(const std::filesystem::path& target) = 0;

    /// True where nothing stands at `target`, or a plain file that its user may write in a folder that he may change.
    /// Links are followed.
    [[nodiscard]] virtual bool MayBeReplaced(const std::filesystem::path& target) const = 0;

    /// Waits until no other running program holds a file of the same folder, and holds it for those that ask so too.
    /// Null where the system has no locks, and where another program holds one for seconds.
    [[nodiscard]] virtual std::unique_ptr<FileHold> HoldForChange(const std::filesystem::path& /*file*/)
    {
        return nullptr;
    }

    /// The facts of a file, through links; nothing where the system does not tell them.
    [[nodiscard]] virtual std::optional<FileFacts> FactsOf(const std::filesystem::path& /*file*/) const
    {
        return std::nullopt;
    }

    /// Deletes a temporary file, unless a running program still holds it. Follows no link.
    virtual void DeleteStaleFile(const std::filesystem::path& path) = 0;

    /// Makes a file of the concatenated `pieces` that appears whole, and is on the disk when this returns. False where
    /// something has that name, a link without its file too; it stays as it is, also where another program makes it at
    /// the same moment. Throws like `ReplaceFile`.
    [[nodiscard]] virtual bool WriteNewFile(const std::filesystem::path& path,
                                            std::span<const std::span<const std::byte>> pieces) = 0;
};

} // namespace sprout
