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

/// Thrown if a new file is complete but cannot replace what stands in its place.
class NotReplaced : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// A file that is written beside its target under a hidden name and replaces the target when it is complete.
///
/// At any moment the target holds either the old bytes or the new ones, never a part. If this object is destroyed
/// before the file is put in place, the target stays as it was and nothing is left beside it. All failures throw
/// `RunTimeError` with a plain sentence.
class Replacement {
public:
    Replacement() = default;
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    virtual ~Replacement() = default;

    /// Writes at the current position and moves it behind the written bytes.
    virtual void Write(std::span<const std::byte> bytes) = 0;
    /// Moves the position to a byte, counted from 0. Bytes skipped below a later write become zero.
    virtual void MoveTo(std::uint64_t place) = 0;
    /// Puts the file in the target's place; the last call. With `Flush::Yes` its bytes are on the disk before that, and
    /// its name before the return. Throws `NotReplaced` if an old file stays in the way.
    virtual void PutInPlace(Flush flush) = 0;
};

/// Tells different states of a file apart.
struct FileFacts {
    std::uint64_t Device = 0;
    std::uint64_t Inode = 0;
    std::uint64_t Size = 0;     ///< bytes
    std::int64_t WrittenNs = 0; ///< last write, in nanoseconds since 1970
    std::int64_t ChangedNs = 0; ///< last change of its metadata, likewise
    friend bool operator==(const FileFacts&, const FileFacts&) = default;
};

/// Keeps other running programs from changing a file while this object lives.
class FileHold {
public:
    FileHold() = default;
    FileHold(const FileHold&) = delete;
    FileHold& operator=(const FileHold&) = delete;
    virtual ~FileHold() = default;
};

/// File operations that need more from the machine than the standard library offers.
class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    /// Replaces `target` with the concatenated `pieces`, or creates it.
    ///
    /// The bytes are written beside the target under a hidden name and renamed over it, so at any moment the target
    /// holds either the old bytes or the new ones, never a part. With `Flush::Yes` they are on the disk before the
    /// rename, and the rename before the return. The folder is created if only it is missing. Throws `RunTimeError`
    /// with a plain sentence on any failure; the target is then unchanged and nothing is left beside it. Throws
    /// `NotReplaced` if the target is not a plain file or its user may not write it. Links are followed.
    virtual void ReplaceFile(const std::filesystem::path& target, std::span<const std::span<const std::byte>> pieces,
                             Flush flush) = 0;

    /// Begins such a replacement for a file that may be too large to hold in memory a second time. Throws
    /// `RunTimeError` if nothing can be written beside the target.
    [[nodiscard]] virtual std::unique_ptr<Replacement> BeginReplacement(const std::filesystem::path& target) = 0;

    /// True if nothing exists at `target`, or if it is a plain file that the user may write in a folder that the user
    /// may change. Links are followed.
    [[nodiscard]] virtual bool MayBeReplaced(const std::filesystem::path& target) const = 0;

    /// True if the user may create and delete files in a folder, or if the system does not tell. Links are followed.
    [[nodiscard]] virtual bool MayChangeFolder(const std::filesystem::path& /*folder*/) const { return true; }

    /// Waits until no other running program holds a file in the same folder, then holds it against others that call
    /// this. Null if the system has no locks, or if another program holds one for seconds.
    [[nodiscard]] virtual std::unique_ptr<FileHold> HoldForChange(const std::filesystem::path& /*file*/)
    {
        return nullptr;
    }

    /// The facts of a file, through links; nothing if the system does not report them.
    [[nodiscard]] virtual std::optional<FileFacts> FactsOf(const std::filesystem::path& /*file*/) const
    {
        return std::nullopt;
    }

    /// Deletes a temporary file unless a running program still holds it. Does not follow links.
    virtual void DeleteStaleFile(const std::filesystem::path& path) = 0;

    /// Creates a file from the concatenated `pieces`. It appears complete, and is on the disk on return. Returns false
    /// if the name is taken, even by a dangling link; that stays as it is, even if another program creates it at the
    /// same moment. Throws like `ReplaceFile`.
    [[nodiscard]] virtual bool WriteNewFile(const std::filesystem::path& path,
                                            std::span<const std::span<const std::byte>> pieces) = 0;
};

} // namespace sprout
