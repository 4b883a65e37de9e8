// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>

#include "base/Words.h"

namespace sprout {

// Through these functions words reach the screen and screen readers; Qt's own setters are only used in this folder.

void SetText(QLabel& label, const Words& words);
/// Shows words, cut to the label's width; screen readers get all of them.
void SetCutText(QLabel& label, const Words& words);
/// Shows words in letters as small as the label's width demands. Words that are too long for that are cut, and a tool
/// tip has all of them.
void SetFittingText(QLabel& label, const Words& words);
/// Fills a box with a text that the user may change.
void SetContent(QLineEdit& box, std::string_view text);
/// Names a box like the label beside it.
void SetSpokenNameOf(QWidget& widget, const QLabel& label);

void SetTitle(QWidget& window, const Words& words);
/// A tool tip is always plain text: names come from untrusted files, and Qt would render one that looks like rich text,
/// including pictures.
void SetToolTip(QWidget& widget, const Words& words);
/// The same, broken into several lines if it is long.
void SetLongToolTip(QWidget& widget, const Words& words);
void SetLongToolTip(QListWidgetItem& item, const Words& words);

/// What a screen reader calls the widget.
void SetSpokenName(QWidget& widget, const Words& words);
/// What a screen reader says about the widget.
void SetSpokenDescription(QWidget& widget, const Words& words);

QAction* AddItem(QMenu& menu, const Words& words);
void AddItem(QComboBox& box, const Words& words, const QVariant& data = {});
void InsertItem(QComboBox& box, int index, const Words& words, const QVariant& data);
/// Shows the start of words that are wider than `room`; tool tip and screen readers have all of them.
void AddCutItem(QComboBox& box, const Words& words, int room);
QListWidgetItem* AddLine(QListWidget& list, const Words& words);

} // namespace sprout
