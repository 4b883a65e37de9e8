// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

#include <cstdint>
#include <vector>

#include "recording/rules/Volume.h"

namespace sprout {

/// `MixerRecSrcCmb`: the list of microphones. The wheel does not change it, and a list that is open stays open if only
/// a volume has changed.
class SourceList : public QComboBox {
    Q_OBJECT

public:
    explicit SourceList(QWidget* parent);

    /// Shows these lines and the selected one. Without lines it says that there is no microphone, and is disabled.
    void ShowLines(const SourceLines& sources);

Q_SIGNALS:
    /// The user chose a line. index: of its source in the machine's list.
    void SourceChosen(std::int32_t index);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void Choose(int row);

    std::vector<SourceLine> lines;
};

} // namespace sprout
