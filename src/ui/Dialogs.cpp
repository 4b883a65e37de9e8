// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Dialogs.h"

#include <QApplication>

#include "base/Product.h"
#include "base/Text.h"
#include "core/Shared.h"
#include "ui/HelpFrm.h"
#include "ui/MessageForms.h"

namespace sprout {

namespace {

std::string Caption(std::string_view title)
{
    return std::string(" ").append(Trim(title).empty() ? kProductName : title);
}

} // namespace

QWidget* WindowInFront()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return qobject_cast<HelpFrm*>(active) ? nullptr : active;
}

void ShowMessage(std::string_view line1, std::string_view line2, std::string_view title)
{
    if (Trim(line2).empty()) {
        Msg1BtnFrm form(WindowInFront(), line1);
        form.SetCaption(Caption(title));
        form.ShowModal();
    } else {
        Msg1Btn2NoteFrm form(WindowInFront(), line1, line2);
        form.SetCaption(Caption(title));
        form.ShowModal();
    }
}

int AskYesNo(std::string_view line1, std::string_view line2, std::string_view title)
{
    MsgYesNoFrm form(WindowInFront(), line1, line2);
    form.SetCaption(Caption(title));
    return form.ShowModal();
}

std::string AskText(std::string_view defaultText, std::string_view line1, std::string_view line2,
                    std::string_view title)
{
    InputBoxFrm form(WindowInFront(), defaultText, line1, line2);
    form.SetCaption(Caption(title));
    return form.ShowModal() == 1 ? form.Text() : std::string();
}

} // namespace sprout
