// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// Takes from this process, which reads untrusted files, what it does not need: memory beyond 64 MB more than it has
/// now, processor time beyond 15 s, files longer than `mostFileBytes`, opening further files, and core dumps. It ends
/// with its parent. Returns false if the machine refuses.
///
/// Load libraries before this. A write beyond the limit fails; using up the processor time ends the process by a
/// signal.
[[nodiscard]] bool LimitChild(std::uint64_t mostFileBytes);

} // namespace sprout
