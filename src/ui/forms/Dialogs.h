// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/Words.h"

class QWidget;

namespace sprout {

/// Property of a window that stands beside the others, such as the help: it owns no question, because closing it would
/// close the question too.
inline constexpr const char* kStandsBeside = "standsBeside";

/// The window that a question belongs to: the open modal window, else the active one. Null if there is none, or if that
/// one stands beside the others.
[[nodiscard]] QWidget* WindowInFront();

/// A window's title, behind one blank; a blank title means the program's name.
[[nodiscard]] Words CaptionOf(const Words& title);

// Modal questions and messages in the program's own forms, shown from the front window. Their titles
// become captions by `CaptionOf`.

/// Shows a message with OK; it has one line if `line2` is blank.
void ShowMessage(const Words& line1, const Words& line2 = {}, const Words& title = {});

/// Asks whether to delete or overwrite something; 1 for yes, else 0. No has the initial focus.
[[nodiscard]] int AskYesNo(const Words& line1, const Words& line2 = {}, const Words& title = {});

/// Asks for a text, starting with `defaultText`; empty if cancelled.
[[nodiscard]] std::string AskText(std::string_view defaultText, const Words& line1, const Words& line2 = {},
                                  const Words& title = {});

} // namespace sprout
