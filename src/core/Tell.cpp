// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tell.h"

#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

void Tell(std::string_view title, std::string_view text)
{
    TheServices().messages->MessageBox(title, text);
}

} // namespace sprout
