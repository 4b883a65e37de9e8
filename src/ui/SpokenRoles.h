// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QWidget>

namespace sprout {

/// Tells screen readers what a widget is for which Qt knows no more than an area.
void SetSpokenRole(QWidget& widget, QAccessible::Role role);

/// Makes a button one of several of which one is chosen, for screen readers: its click stays its own affair.
void SetSpokenChoice(QAbstractButton& button, bool chosen);

} // namespace sprout
