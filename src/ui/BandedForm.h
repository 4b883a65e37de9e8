// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>

#include <span>
#include <string_view>
#include <vector>

#include "ui/ButtonScheme.h"
#include "ui/Hints.h"
#include "ui/WindowMover.h"

namespace sprout {

/// Height of a window's title band. Places inside a form count from its lower edge.
inline constexpr int kBandHeight = 26;

/// A modal window in the program's own look: no system frame, a leaf band with the title and a close box, and a rounded
/// body of paper. Dragging the band moves it.
class BandedForm : public QDialog {
    Q_OBJECT

public:
    explicit BandedForm(QWidget* parent);

    /// What the caller reads after the form has closed; 0 if it was closed by its close box, Escape or the system.
    int Result = 0;

    /// The title in the band, as it is.
    void SetCaption(std::string_view caption);

    /// Centres the form on its screen, shows it modally and returns `Result`.
    int ShowModal();

    /// Centres the form on its screen and shows it in front of all windows, without waiting for its answer.
    void Appear();

    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// The place below the band at (x, top).
    [[nodiscard]] static QPoint BodyPoint(int x, int top) { return {x, top + kBandHeight}; }

    /// A label of the body in the label font, sized to its text.
    QLabel& AddLabel(const char* name);

    /// Adds a word button that closes the form with `result`. The first one added is the one that Enter presses.
    ImageButton& AddAnswer(const ButtonRow& row, int result);
    /// Adds a word button that does something else.
    ImageButton& AddWordButton(const ButtonRow& row, std::function<void()> onClick);

    /// Closes the form with a result.
    void Answer(int result);

    /// Sets the size, centres the word buttons side by side at a top, and leaves a margin below them.
    void PlaceButtons(int width, int top);

    [[nodiscard]] HintWatcher& Watcher() { return watcher; }

    /// Shows hints in the band while the form hides the status line.
    void ShowHintsInBand();

private:
    void Centre();
    void PaintBand(QPainter& painter) const;
    void PaintVine(QPainter& painter) const;
    /// Gives the caption its room in the band, and the hint what that leaves.
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
