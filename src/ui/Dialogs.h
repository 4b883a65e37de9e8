// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

class QWidget;

namespace sprout {

/// The window that a question belongs to: the modal one that waits, else the active one. Never the help, whose closing
/// would take the question along; null where there is no other.
[[nodiscard]] QWidget* WindowInFront();

// Modal questions and messages in the program's own forms, shown from the window that is in front. A blank title stands
// for the program's name; one blank is put before every title.

/// A message with OK, of one line if `line2` is blank.
void ShowMessage(std::string_view line1, std::string_view line2 = {}, std::string_view title = {});

/// Asks whether something may be deleted or overwritten; 1 for yes, else 0. No has the focus at first.
[[nodiscard]] int AskYesNo(std::string_view line1, std::string_view line2 = {}, std::string_view title = {});

/// Asks for a text that starts as `defaultText`; empty if it is cancelled.
[[nodiscard]] std::string AskText(std::string_view defaultText, std::string_view line1, std::string_view line2 = {},
                                  std::string_view title = {});

} // namespace sprout
