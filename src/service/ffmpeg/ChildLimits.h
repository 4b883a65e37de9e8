// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// Takes from this process, which reads files of strangers, what it does not need: memory beyond 64 MB more than it has
/// now, processor time beyond 15 s, files longer than `mostFileBytes`, any further file, and core dumps. It ends with
/// its parent. False where the machine refuses.
///
/// Libraries are loaded before. A write beyond the limit fails; who uses up the processor time is ended by a signal.
[[nodiscard]] bool LimitChild(std::uint64_t mostFileBytes);

} // namespace sprout
