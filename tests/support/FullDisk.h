// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Errors.h"
#include "service/Files.h"

namespace sprout {

/// A disk on which nothing can be written.
class FullDisk : public Files {
public:
    void ReplaceFile(const std::filesystem::path& /*target*/, std::span<const std::span<const std::byte>> /*pieces*/,
                     Flush /*flush*/) override
    {
        throw RunTimeError(Words::AsIs("No space left on device."));
    }
    [[nodiscard]] std::unique_ptr<Replacement> BeginReplacement(const std::filesystem::path& /*target*/) override
    {
        throw RunTimeError(Words::AsIs("No space left on device."));
    }
    [[nodiscard]] bool MayBeReplaced(const std::filesystem::path& /*target*/) const override { return true; }
    void DeleteStaleFile(const std::filesystem::path& /*path*/) override {}
    [[nodiscard]] bool WriteNewFile(const std::filesystem::path& /*path*/,
                                    std::span<const std::span<const std::byte>> /*pieces*/) override
    {
        throw RunTimeError(Words::AsIs("No space left on device."));
    }
};

} // namespace sprout
