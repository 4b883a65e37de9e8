// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// The four faces of an image button; `None` is shown before the first refresh.
enum class ButtonFace : std::int32_t { None = 0, Normal = 1, Raised = 2, Pressed = 3, PressedOn = 4 };

/// The word for a face in artwork names.
[[nodiscard]] std::string_view FaceName(ButtonFace face);

struct ButtonState {
    std::string Name;
    ButtonFace Wanted = ButtonFace::Normal;
    ButtonFace Shown = ButtonFace::None;
};

/// The state machine of a window's image buttons, numbered from 1 in table order. Only code sets and clears
/// `PressedOn`; a button in that face keeps it under hover and press.
class ButtonStates {
public:
    /// Returns the new button's number.
    int AddButton(std::string_view name);

    /// All buttons want their normal face, and none is shown yet.
    void InitButtons();

    void ButtonHover(int button); ///< does nothing while a mouse button is held
    void ButtonsOff();            ///< lowers every raised button
    void ButtonPress(int button);
    void ButtonRelease(int button);
    void SetWanted(int button, ButtonFace face);

    /// Numbers of the buttons whose face changed since the last call.
    [[nodiscard]] std::vector<int> RefreshButtons();

    [[nodiscard]] const ButtonState& State(int button) const { return states[static_cast<std::size_t>(button)]; }
    [[nodiscard]] bool ButtonDown() const { return down; }

private:
    [[nodiscard]] int Count() const { return static_cast<int>(states.size()) - 1; }
    [[nodiscard]] ButtonFace& Wanted(int button) { return states[static_cast<std::size_t>(button)].Wanted; }
    void WantUnlessOn(int button, ButtonFace face);

    std::vector<ButtonState> states = std::vector<ButtonState>(1);
    bool down = false;
};

} // namespace sprout
