// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

#include <cstdint>

#include "ui/widgets/Hints.h"

namespace sprout {

/// The box with the number of steps of `CurrentTune`, `StepNosCmb`. The user picks a number or is asked for another.
class StepNosBox : public QComboBox {
    Q_OBJECT

public:
    explicit StepNosBox(QWidget* parent);

    /// Shows the tune's number. One that is not in the list is shown above it while the tune has it.
    void SyncStepCombo();

Q_SIGNALS:
    void StepCountWanted(std::int32_t count);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void ClickStepNos(int index);
    [[nodiscard]] static std::int32_t AskStepCount();

    HintWatcher hints{this};
};

} // namespace sprout
