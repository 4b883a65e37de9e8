// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/QtMessages.h"

#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"

namespace sprout {

void QtMessages::MessageBox(const Words& title, const Words& text, MessageIcon icon)
{
    PlainBoxFrm form(WindowInFront(), text, icon);
    form.SetCaption(title.IsBlank() ? Words() : CaptionOf(title));
    form.ShowModal();
}

} // namespace sprout
