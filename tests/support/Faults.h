// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace sprout {

/// The system calls of a file's replacement and of a folder's copy, which a program linked with `--wrap` for each of
/// them can let fail.
enum class SystemCall { Open, Writev, Fchmod, Fsync, Close, Rename, Lseek, Fstat, Read, Write, Mkdir, Futimens };
inline constexpr std::size_t kSystemCalls = 12;
inline constexpr std::array<const char*, kSystemCalls> kCallNames = {
    "open", "writev", "fchmod", "fsync", "close", "rename", "lseek", "fstat", "read", "write", "mkdir", "futimens"};

enum class Fault {
    None,
    FailOnce,    // the nth call
    FailForGood, // the nth call and all behind it
    Short,       // writev takes 1000 bytes at most
    Nothing,     // writev takes no byte
    KillBefore,  // the program ends instead of the nth call
    KillAfter    // the program ends behind it
};

/// Exit code of a program that a fault ended.
inline constexpr int kKilled = 42;

struct Faults {
    SystemCall call = SystemCall::Open;
    int nth = 0;
    Fault fault = Fault::None;
    int error = 0;
    std::array<int, kSystemCalls> calls{}; // made since the faults were set
};

/// What happens to the calls of the running test.
Faults& TheFaults();

} // namespace sprout
