// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridKeys.h"

#include <array>
#include <utility>

namespace sprout {

namespace {

constexpr std::array<std::pair<Qt::Key, GridStep>, 8> kSteps{{{Qt::Key_Left, GridStep::Left},
                                                              {Qt::Key_Right, GridStep::Right},
                                                              {Qt::Key_Up, GridStep::Up},
                                                              {Qt::Key_Down, GridStep::Down},
                                                              {Qt::Key_PageUp, GridStep::PageUp},
                                                              {Qt::Key_PageDown, GridStep::PageDown},
                                                              {Qt::Key_Home, GridStep::First},
                                                              {Qt::Key_End, GridStep::Last}}};

GridKey::Asks AskedAnew(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Delete:
        return GridKey::Asks::Deletion;
    case Qt::Key_Menu:
        return GridKey::Asks::Menu;
    case Qt::Key_F10:
        return event.modifiers().testFlag(Qt::ShiftModifier) ? GridKey::Asks::Menu : GridKey::Asks::Nothing;
    case Qt::Key_Space:
        return GridKey::Asks::Choice;
    default:
        return GridKey::Asks::Nothing;
    }
}

} // namespace

GridKey GridKeyOf(const QKeyEvent& event)
{
    for (const auto& [key, step] : kSteps)
        if (event.key() == key)
            return {GridKey::Asks::Step, step};
    const GridKey::Asks asked = AskedAnew(event);
    if (asked != GridKey::Asks::Nothing && event.isAutoRepeat())
        return {GridKey::Asks::NoRepeats};
    return {asked};
}

} // namespace sprout
