// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFocusEvent>
#include <QLabel>
#include <QObject>
#include <QString>

#include <string_view>

namespace sprout {

/// A control of a window and the words that explain it.
struct HintRow {
    std::string_view name;
    std::string_view hint;
};

/// The main window's hint for a control, empty where it has none.
[[nodiscard]] std::string_view MainWindowHint(std::string_view name);

/// The hint of the status frame itself.
inline constexpr std::string_view kStatusFrameHint = "Move the mouse over any button to read help clue here";

/// Names the label that shows hints, `StatusLbl` of the main window. It may go before the hints do.
void SetStatusLbl(QLabel* label);

/// Puts a hint on the status line, from any window; an empty text clears it.
void ShowHint(const QString& text);

/// Shows hints in a label of another window too, while that window hides the status line. The label may go before the
/// hints do.
void AddHintStrip(QLabel& strip);

/// Lets the hint follow the keyboard: shows the widget's hint when the Tab key brings it the focus, and clears it when
/// that key takes it away. For focus events of both kinds.
void ShowHintOfFocus(const QWidget& widget, const QFocusEvent& event);

/// False while the pointer rests where it was when the hint was shown. A window that opens under it gets moves that are
/// none, and must not wipe out the hint that belongs to it.
[[nodiscard]] bool MouseMovedSinceHint();

/// The property that holds a widget's hint; a widget without it has the hint of what it lies on.
inline constexpr const char* kHintProperty = "hint";

/// Shows a hint for every move of the mouse over widgets that are no image buttons, and for the focus that comes to
/// them by the keyboard.
class HintWatcher : public QObject {
    Q_OBJECT

public:
    explicit HintWatcher(QObject* parent) : QObject(parent) {}

    /// A move over `widget` shows `hint`; an empty one clears the line.
    void Watch(QWidget& widget, std::string_view hint);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace sprout
