// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "tune_window/rules/StepCommand.h"

class QKeyEvent;

namespace sprout {

/// What a key asks of the step that has the focus; nothing if it is no key of the steps. isOn: the step is on.
/// lastStep: the last one that the keyboard reaches.
[[nodiscard]] std::optional<StepCommand> CommandOfKey(const QKeyEvent& event, std::int32_t step, bool isOn,
                                                      std::int32_t lastStep);

} // namespace sprout
