// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ButtonStates.h"

#include <array>

namespace sprout {

std::string_view FaceName(ButtonFace face)
{
    constexpr std::array<std::string_view, 5> names{"Normal", "Normal", "Raised", "Pressed", "PressedOn"};
    return names[static_cast<std::size_t>(face)];
}

int ButtonStates::AddButton(std::string_view name)
{
    states.push_back({std::string(name)});
    return Count();
}

void ButtonStates::InitButtons()
{
    for (ButtonState& state : states) {
        state.Wanted = ButtonFace::Normal;
        state.Shown = ButtonFace::None;
    }
}

void ButtonStates::ButtonHover(int button)
{
    if (down)
        return;
    ButtonsOff();
    WantUnlessOn(button, ButtonFace::Raised);
}

void ButtonStates::ButtonsOff()
{
    for (int button = 1; button <= Count(); ++button)
        if (Wanted(button) == ButtonFace::Raised)
            Wanted(button) = ButtonFace::Normal;
}

void ButtonStates::ButtonPress(int button)
{
    down = true;
    WantUnlessOn(button, ButtonFace::Pressed);
}

void ButtonStates::ButtonRelease(int button)
{
    down = false;
    ButtonHover(button);
}

void ButtonStates::SetWanted(int button, ButtonFace face)
{
    Wanted(button) = face;
}

std::vector<int> ButtonStates::RefreshButtons()
{
    std::vector<int> changed;
    for (int button = 1; button <= Count(); ++button) {
        ButtonState& state = states[static_cast<std::size_t>(button)];
        if (state.Shown == state.Wanted)
            continue;
        state.Shown = state.Wanted;
        changed.push_back(button);
    }
    return changed;
}

void ButtonStates::WantUnlessOn(int button, ButtonFace face)
{
    if (Wanted(button) != ButtonFace::PressedOn)
        Wanted(button) = face;
}

} // namespace sprout
