// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Shared.h"

namespace sprout {

SharedState& Shared()
{
    static SharedState state;
    return state;
}

} // namespace sprout
