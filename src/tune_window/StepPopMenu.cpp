// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepPopMenu.h"

#include "ui/words/Texts.h"

namespace sprout {

namespace {

StepMoveMnu ItemOf(const QAction& action)
{
    return static_cast<StepMoveMnu>(action.data().toInt());
}

} // namespace

StepPopMenu::StepPopMenu(QWidget* parent) : QMenu(parent)
{
    setObjectName(QStringLiteral("StepPopMnu"));
    for (const StepMenuRow& row : kStepMenu) {
        if (row.caption.IsEmpty())
            addSeparator();
        else
            AddItem(*this, row.caption)->setData(static_cast<int>(row.item));
    }
}

std::optional<StepMoveMnu> StepPopMenu::Choose(const TuneStep& step, QPoint at)
{
    for (QAction* const action : actions())
        if (!action->isSeparator())
            action->setEnabled(StepMenuItemEnabled(ItemOf(*action), step));
    const QAction* const chosen = exec(at);
    return chosen ? std::optional(ItemOf(*chosen)) : std::nullopt;
}

} // namespace sprout
