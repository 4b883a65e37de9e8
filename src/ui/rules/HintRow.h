// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/Words.h"

namespace sprout {

/// A control of a window and its hint.
struct HintRow {
    std::string_view name;
    LaterWords hint;
};

} // namespace sprout
