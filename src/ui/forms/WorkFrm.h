// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProgressBar>

#include <cstddef>

#include "base/Words.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

/// Stays in front of all windows during long work and shows what is being done, the progress, and a stop button. It has
/// no event loop of its own; the code that does the work lets it process events.
class WorkFrm : public BandedForm {
    Q_OBJECT

public:
    WorkFrm(QWidget* parent, const Words& what);

    /// Shows what is being done now and resets the bar.
    void ShowStage(const Words& what);
    /// Shows the work done so far.
    void ShowShare(std::size_t done, std::size_t total);

    [[nodiscard]] bool StopWanted() const { return stopWanted; }

    /// Asks to stop, like the button.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AskForEnd();

    QLabel* WorkLbl;
    QProgressBar* WorkBar;
    ImageButton* StopBtn;
    bool stopWanted = false;
};

} // namespace sprout
