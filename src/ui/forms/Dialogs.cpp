// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/Dialogs.h"

#include <QApplication>

#include "base/Product.h"
#include "core/Shared.h"
#include "ui/forms/MessageForms.h"

namespace sprout {

QWidget* WindowInFront()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return active && active->property(kStandsBeside).toBool() ? nullptr : active;
}

Words CaptionOf(const Words& title)
{
    return Words::Joined({Words::AsIs(" "), title.IsBlank() ? Words::AsIs(kProductName) : title}, "");
}

void ShowMessage(const Words& line1, const Words& line2, const Words& title)
{
    if (line2.IsBlank()) {
        Msg1BtnFrm form(WindowInFront(), line1);
        form.SetCaption(CaptionOf(title));
        form.ShowModal();
    } else {
        Msg1Btn2NoteFrm form(WindowInFront(), line1, line2);
        form.SetCaption(CaptionOf(title));
        form.ShowModal();
    }
}

int AskYesNo(const Words& line1, const Words& line2, const Words& title)
{
    MsgYesNoFrm form(WindowInFront(), line1, line2);
    form.SetCaption(CaptionOf(title));
    return form.ShowModal();
}

std::string AskText(std::string_view defaultText, const Words& line1, const Words& line2, const Words& title)
{
    InputBoxFrm form(WindowInFront(), defaultText, line1, line2);
    form.SetCaption(CaptionOf(title));
    return form.ShowModal() == 1 ? form.Text() : std::string();
}

} // namespace sprout
