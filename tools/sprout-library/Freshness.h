// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// A number that stands for everything that goes into a file: FNV-1a of 64 bits.
class Fingerprint {
public:
    /// Each text counts with its length, so that two texts are not one.
    Fingerprint& Add(std::string_view bytes);
    Fingerprint& AddFile(const std::filesystem::path& file);
    [[nodiscard]] std::string Text() const;

private:
    std::uint64_t value = 0xCBF29CE484222325;
};

/// Remembers of what each file of a folder tree was made, so that only what changed is made again.
class Freshness {
public:
    /// root: the tree; what is remembered lies in a hidden file there.
    explicit Freshness(std::filesystem::path root);

    /// True when all `files`, given below the root, are there and were made of the same things. Notes them as wanted.
    /// Where it is not so, everything is forgotten until `Finish`.
    [[nodiscard]] bool IsFresh(const std::vector<std::filesystem::path>& files, const std::string& fingerprint);

    /// Deletes what was made before and is wanted no more, and remembers the rest. To be called when all was made.
    void Finish() const;

private:
    std::filesystem::path root;
    std::map<std::string, std::string> before;
    std::map<std::string, std::string> now;
};

} // namespace sprout
