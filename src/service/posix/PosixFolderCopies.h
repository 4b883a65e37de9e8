// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/FolderCopies.h"

namespace sprout {

/// `FolderCopies` on the system calls of POSIX.
class PosixFolderCopies : public FolderCopies {
public:
    [[nodiscard]] std::vector<LeftOutFile> FillFolder(const std::filesystem::path& source,
                                                      const std::filesystem::path& target,
                                                      const Progress& progress) override;
    [[nodiscard]] std::vector<LeftOutFile> AddFiles(const std::filesystem::path& source,
                                                    const std::filesystem::path& target,
                                                    std::span<const std::filesystem::path> names,
                                                    const Progress& progress) override;
    [[nodiscard]] bool IsUnfinished(const std::filesystem::path& target) const override;
};

} // namespace sprout
