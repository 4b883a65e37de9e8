// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/Messages.h"

namespace sprout {

/// The plain message box in the program's own look.
class QtMessages : public Messages {
public:
    void MessageBox(std::string_view title, std::string_view text, MessageIcon icon) override;
};

} // namespace sprout
