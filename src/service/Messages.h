// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Words.h"

namespace sprout {

enum class MessageIcon { None, Exclamation };

/// The machine's plain message box with one OK button.
class Messages {
public:
    Messages() = default;
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
    virtual ~Messages() = default;

    /// Shows `text`; a blank title leaves the box untitled. Returns when the user has read it. Interface thread only.
    virtual void MessageBox(const Words& title, const Words& text, MessageIcon icon = MessageIcon::None) = 0;
};

} // namespace sprout
