// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "ui/widgets/ImageButton.h"

namespace sprout {

enum class AllOffTimer { OffAtFirst, OnAtOnce };

/// The image buttons of one window. It creates them from table rows, switches their faces, shows their hints, and
/// lowers a raised button after five seconds without a move over a button (`ButtonAllOffTimer`).
class ButtonScheme : public QObject {
    Q_OBJECT

public:
    ButtonScheme(QWidget& window, AllOffTimer timer);

    /// Adds a button to the window; a click runs `onClick`.
    ImageButton& AddButton(const ButtonRow& row, std::function<void()> onClick);

    /// The added button with this name.
    [[nodiscard]] ImageButton& Button(std::string_view name) const;

    void InitButtons();
    void ButtonHover(const ImageButton& button);
    void ButtonsOff();
    void ButtonPress(const ImageButton& button);
    void ButtonRelease(const ImageButton& button);
    /// Sets or clears the face that stays until code changes it.
    void ButtonSetOn(const ImageButton& button);
    void ButtonSetNormal(const ImageButton& button);
    void RefreshButtons();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LetGo();

    QWidget& window;
    ButtonStates states;
    std::vector<ImageButton*> buttons{nullptr}; ///< by number
    QTimer allOffTimer;
};

} // namespace sprout
