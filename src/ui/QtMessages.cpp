// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QtMessages.h"

#include "ui/Dialogs.h"
#include "ui/MessageForms.h"

namespace sprout {

void QtMessages::MessageBox(std::string_view title, std::string_view text, MessageIcon icon)
{
    PlainBoxFrm form(WindowInFront(), text, icon);
    form.SetCaption(title.empty() ? std::string() : std::string(" ").append(title));
    form.ShowModal();
}

} // namespace sprout
