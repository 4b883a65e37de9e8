// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProgressBar>

#include <cstddef>
#include <string_view>

#include "ui/BandedForm.h"

namespace sprout {

/// Stands in front of all windows while long work is done: what is being done, how far it is, and a button that asks
/// for its end. It is shown without an event loop of its own; whoever works lets it have its events.
class WorkFrm : public BandedForm {
    Q_OBJECT

public:
    WorkFrm(QWidget* parent, std::string_view what);

    /// What is being done now, with the bar at its beginning.
    void ShowStage(std::string_view what);
    /// The work done, in pieces.
    void ShowShare(std::size_t done, std::size_t total);

    [[nodiscard]] bool StopWanted() const { return stopWanted; }

    /// Asks for the end, as the button does.
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
