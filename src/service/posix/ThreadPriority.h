// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Makes the calling thread, and those that it starts from then on, give way to the others of the program. There is no
/// way back.
void LowerThreadPriority();

} // namespace sprout
