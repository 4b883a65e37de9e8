// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/Files.h"

namespace sprout {

/// `Files` on the system calls of POSIX.
class PosixFiles : public Files {
public:
    void ReplaceFile(const std::filesystem::path& target, std::span<const std::span<const std::byte>> pieces,
                     Flush flush) override;
    [[nodiscard]] std::unique_ptr<Replacement> BeginReplacement(const std::filesystem::path& target) override;
    [[nodiscard]] bool MayBeReplaced(const std::filesystem::path& target) const override;
    [[nodiscard]] bool MayChangeFolder(const std::filesystem::path& folder) const override;
    [[nodiscard]] std::unique_ptr<FileHold> HoldForChange(const std::filesystem::path& file) override;
    [[nodiscard]] std::optional<FileFacts> FactsOf(const std::filesystem::path& file) const override;
    void DeleteStaleFile(const std::filesystem::path& path) override;
    [[nodiscard]] bool WriteNewFile(const std::filesystem::path& path,
                                    std::span<const std::span<const std::byte>> pieces) override;
};

} // namespace sprout
