// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusEvent>
#include <QLabel>
#include <QObject>

#include "base/Words.h"
#include "ui/widgets/DesktopPlacesWindows.h"

namespace sprout {

/// Sets the label that shows hints, `StatusLbl` of the main window. The label may be destroyed before the hints.
void SetStatusLbl(QLabel* label);

/// Shows a hint on the status line, from any window; no words clear it.
void ShowHint(const Words& hint);

/// Gives a widget a hint, which screen readers say too.
void SetHintOf(QWidget& widget, const Words& hint);
/// Shows the widget's own hint.
void ShowHintOf(const QWidget& widget);

/// Also shows hints in a label of another window, while that window covers the status line; or always if the desktop
/// places windows, since nobody else knows what they cover. The label may be destroyed before the hints.
void AddHintStrip(QLabel& strip, bool desktopPlaces = DesktopPlacesWindows());

/// Makes the hint follow the keyboard: shows the widget's hint when the Tab key gives it the focus, and clears it when
/// the Tab key takes the focus away. Call it for both kinds of focus events.
void ShowHintOfFocus(const QWidget& widget, const QFocusEvent& event);

/// False while the pointer rests where it was when the hint was shown. A window that opens under the pointer gets move
/// events without a move; they must not clear its hint.
[[nodiscard]] bool MouseMovedSinceHint();

/// The property that holds a widget's hint; a widget without it uses the hint of its parent.
inline constexpr const char* kHintProperty = "hint";

/// Shows a hint when the mouse moves over a widget that is not an image button, or when the keyboard gives it the
/// focus.
class HintWatcher : public QObject {
    Q_OBJECT

public:
    explicit HintWatcher(QObject* parent) : QObject(parent) {}

    /// A move over `widget` shows `hint`; no words clear the line.
    void Watch(QWidget& widget, const Words& hint);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace sprout
