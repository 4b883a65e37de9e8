// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace sprout {

/// While it lives, no file can grow beyond a size.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t mostBytes)
    {
        before = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{mostBytes, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, before);
    }

private:
    rlimit limit{};
    void (*before)(int) = nullptr;
};

} // namespace sprout
