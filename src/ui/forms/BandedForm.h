// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>

#include <span>
#include <string_view>
#include <vector>

#include "base/Words.h"
#include "ui/look/BandedFormLook.h"
#include "ui/widgets/ButtonScheme.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/WindowMover.h"

namespace sprout {

/// A modal window in the program's own look: no system frame, a leaf-green band with the title and a close box, and a
/// rounded paper body. Dragging the band moves the window.
class BandedForm : public QDialog {
    Q_OBJECT

public:
    explicit BandedForm(QWidget* parent);

    /// The caller reads this after the form has closed; 0 if the close box, Escape or the system closed it.
    int Result = 0;

    /// Sets the title in the band, unchanged.
    void SetCaption(const Words& caption);

    /// Centres the form on its screen, shows it modally and returns `Result`.
    int ShowModal();

    /// Centres the form on its screen and shows it in front of all windows, without waiting for an answer.
    void Appear();

    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// The point below the band at (x, top).
    [[nodiscard]] static QPoint BodyPoint(int x, int top) { return {x, top + kBandHeight}; }

    /// Adds a label to the body, in the label font and sized to its text.
    QLabel& AddLabel(const char* name);

    /// Adds a word button that closes the form with `result`. Enter presses the first one added.
    ImageButton& AddAnswer(const ButtonRow& row, int result);
    /// Adds a word button that does something else.
    ImageButton& AddWordButton(const ButtonRow& row, std::function<void()> onClick);

    /// Closes the form with `result`.
    void Answer(int result);

    /// Sets the size, centres the word buttons side by side at `top`, and leaves a margin below them.
    void PlaceButtons(int width, int top);

    [[nodiscard]] HintWatcher& Watcher() { return watcher; }

    /// Shows hints in the band while the form covers the status line.
    void ShowHintsInBand();

private:
    void Centre();
    /// Gives the caption its space in the band, and the hint the rest.
    void FitCaption();
    void FocusNeighbour(int step);

    ButtonScheme scheme;
    HintWatcher watcher;
    QString captionText;
    QLabel* captionLbl;
    QLabel* hintLbl = nullptr;
    ImageButton* closeBox;
    std::vector<ImageButton*> wordButtons;
    WindowMover mover;
};

} // namespace sprout
