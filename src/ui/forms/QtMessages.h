// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Words.h"
#include "service/Messages.h"

namespace sprout {

/// The plain message box in the program's own look.
class QtMessages : public Messages {
public:
    void MessageBox(const Words& title, const Words& text, MessageIcon icon) override;
};

} // namespace sprout
