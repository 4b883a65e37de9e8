// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stop_token>
#include <thread>
#include <vector>

#include "posix/Descriptor.h"
#include "service/PrivateFolders.h"

namespace sprout {

/// `PrivateFolders` with folders of mode 0700 that are locked while this object lives. It leaves them behind.
class PosixPrivateFolders : public PrivateFolders {
public:
    [[nodiscard]] std::filesystem::path MakeFolder(const std::filesystem::path& parent) override;
    void DeleteFolder(const std::filesystem::path& folder) override;
    /// Works in its own thread, which this object's destructor stops.
    void DeleteLeftFolders(const std::filesystem::path& parent) override;

private:
    struct Held {
        std::filesystem::path folder;
        Descriptor lock;
    };

    std::vector<Held> held;
    std::jthread cleaner;
};

/// Does the work of `PosixPrivateFolders::DeleteLeftFolders` in one go: deletes the folders in `parent` whose names
/// begin like those of private folders, that belong to the user, that were last changed more than a day ago, and that
/// no running program holds. Links are never followed; inside such a folder they are deleted like files. A folder that
/// holds another folder stays.
void DeleteLeftPrivateFolders(const std::filesystem::path& parent, const std::stop_token& stop = {});

} // namespace sprout
