// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

namespace sprout {

/// Runs work(0) ... work(count - 1) on all cores, each once, in any order, and returns when all are done.
///
/// The calling thread works too, and calls `progress(done, count)`, if given, between its pieces and at the end. If
/// several calls throw, the exception of the lowest index is rethrown. An exception from `progress` ends the work:
/// calls that have begun finish, the rest are dropped. threads: at most this many, 0 for one per core.
void ParallelFor(std::size_t count, const std::function<void(std::size_t)>& work,
                 const std::function<void(std::size_t, std::size_t)>& progress = {}, std::size_t threads = 0);

} // namespace sprout
