// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace sprout {

/// The system calls of replacing a file and copying a folder. A program linked with `--wrap` for each of them can make
/// them fail.
enum class SystemCall { Open, Writev, Fchmod, Fsync, Close, Rename, Lseek, Fstat, Read, Write, Mkdir, Futimens };
inline constexpr std::size_t kSystemCalls = 12;
inline constexpr std::array<const char*, kSystemCalls> kCallNames = {
    "open", "writev", "fchmod", "fsync", "close", "rename", "lseek", "fstat", "read", "write", "mkdir", "futimens"};

enum class Fault {
    None,
    FailOnce,    // the nth call
    FailForGood, // the nth call and all later ones
    Short,       // writev takes at most 1000 bytes
    Nothing,     // writev takes no bytes
    KillBefore,  // the program ends instead of the nth call
    KillAfter    // the program ends after it
};

/// The exit code of a program that was ended by a fault.
inline constexpr int kKilled = 42;

struct Faults {
    SystemCall call = SystemCall::Open;
    int nth = 0;
    Fault fault = Fault::None;
    int error = 0;
    std::array<int, kSystemCalls> calls{}; // since the faults were set
};

/// The faults that apply to the calls of the running test.
Faults& TheFaults();

} // namespace sprout
