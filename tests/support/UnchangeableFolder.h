// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>

namespace sprout {

/// While it lives, nothing can be made, replaced or deleted in the folder. This holds for root too, who gives up the
/// right to access protected files.
class UnchangeableFolder {
public:
    explicit UnchangeableFolder(const std::filesystem::path& lockedFolder) : folder(lockedFolder)
    {
        std::filesystem::permissions(folder, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
        EXPECT_EQ(syscall(SYS_capget, &head, rights), 0);
        rightsBefore = rights[0].effective;
        SetRights(rightsBefore & ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH)));
    }
    UnchangeableFolder(const UnchangeableFolder&) = delete;
    UnchangeableFolder& operator=(const UnchangeableFolder&) = delete;
    ~UnchangeableFolder()
    {
        SetRights(rightsBefore);
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    }

private:
    void SetRights(std::uint32_t effective)
    {
        rights[0].effective = effective;
        EXPECT_EQ(syscall(SYS_capset, &head, rights), 0);
    }

    std::filesystem::path folder;
    __user_cap_header_struct head{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct rights[2]{};
    std::uint32_t rightsBefore = 0;
};

} // namespace sprout
