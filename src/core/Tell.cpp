// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Tell.h"

#include "service/Messages.h"
#include "service/Services.h"

namespace sprout {

namespace {

std::size_t messages = 0;

}

void Tell(const Words& title, const Words& text)
{
    ++messages;
    TheServices().messages->MessageBox(title, text);
}

std::size_t MessagesTold()
{
    return messages;
}

} // namespace sprout
