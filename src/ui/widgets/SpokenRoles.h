// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QWidget>

namespace sprout {

/// Gives a widget that Qt treats as a plain area a role for screen readers.
void SetSpokenRole(QWidget& widget, QAccessible::Role role);

/// Presents a button to screen readers as one of several exclusive choices. Its click behaviour does not change.
void SetSpokenChoice(QAbstractButton& button, bool chosen);

} // namespace sprout
