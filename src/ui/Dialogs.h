// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

class QWidget;

namespace sprout {

/// The window that a question belongs to: the open modal window, else the active one. Null if there is none. Never the
/// help, because closing it would also close the question.
[[nodiscard]] QWidget* WindowInFront();

// Modal questions and messages in the program's own forms, shown from the front window. A blank title means the
// program's name; every title gets one leading blank.

/// Shows a message with OK; it has one line if `line2` is blank.
void ShowMessage(std::string_view line1, std::string_view line2 = {}, std::string_view title = {});

/// Asks whether to delete or overwrite something; 1 for yes, else 0. No has the initial focus.
[[nodiscard]] int AskYesNo(std::string_view line1, std::string_view line2 = {}, std::string_view title = {});

/// Asks for a text, starting with `defaultText`; empty if cancelled.
[[nodiscard]] std::string AskText(std::string_view defaultText, std::string_view line1, std::string_view line2 = {},
                                  std::string_view title = {});

} // namespace sprout
