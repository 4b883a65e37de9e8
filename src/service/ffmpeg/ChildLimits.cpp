// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ffmpeg/ChildLimits.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <string>

namespace sprout {

namespace {

constexpr rlim_t kMoreMemory = rlim_t{64} << 20;
constexpr rlim_t kProcessorSeconds = 15;
constexpr rlim_t kStandardFiles = 3;

/// Bytes of private writable memory of the process, as counted by RLIMIT_DATA; 0 if unknown.
rlim_t OwnMemory()
{
    std::ifstream facts("/proc/self/status");
    for (std::string word; facts >> word;) {
        rlim_t kilobytes = 0;
        if (word == "VmData:" && facts >> kilobytes)
            return kilobytes << 10;
    }
    return 0;
}

bool Lower(int resource, rlim_t most)
{
    rlimit limit{};
    if (::getrlimit(static_cast<__rlimit_resource>(resource), &limit) != 0)
        return false;
    limit.rlim_max = std::min(limit.rlim_max, most);
    limit.rlim_cur = limit.rlim_max;
    return ::setrlimit(static_cast<__rlimit_resource>(resource), &limit) == 0;
}

} // namespace

bool LimitChild(std::uint64_t mostFileBytes)
{
    const rlim_t memory = OwnMemory();
    std::signal(SIGXFSZ, SIG_IGN);
    return memory > 0 && ::prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           Lower(RLIMIT_CORE, 0) && Lower(RLIMIT_CPU, kProcessorSeconds) && Lower(RLIMIT_FSIZE, mostFileBytes) &&
           Lower(RLIMIT_NOFILE, kStandardFiles) && Lower(RLIMIT_DATA, memory + kMoreMemory);
}

} // namespace sprout
