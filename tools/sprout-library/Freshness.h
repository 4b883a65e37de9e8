// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// A hash of everything that goes into a file: FNV-1a of 64 bits.
class Fingerprint {
public:
    /// Also hashes the length of each text, so two texts differ from their concatenation.
    Fingerprint& Add(std::string_view bytes);
    Fingerprint& AddFile(const std::filesystem::path& file);
    [[nodiscard]] std::string Text() const;

private:
    std::uint64_t value = 0xCBF29CE484222325;
};

/// Remembers what each file of a folder tree was made of, so only changed files are made again.
class Freshness {
public:
    /// root: the tree; a hidden file there remembers everything.
    explicit Freshness(std::filesystem::path root);

    /// True if all `files`, given relative to the root, exist and were made of the same things. Notes them as wanted.
    /// If it returns false, everything is forgotten until `Finish`.
    [[nodiscard]] bool IsFresh(const std::vector<std::filesystem::path>& files, const std::string& fingerprint);

    /// Deletes files that were made before and are no longer wanted, and remembers the rest. Call it when all are made.
    void Finish() const;

private:
    std::filesystem::path root;
    std::map<std::string, std::string> before;
    std::map<std::string, std::string> now;
};

} // namespace sprout
