// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>

#include "core/Song.h"

class QLabel;
class QWidget;

namespace sprout {

/// What the surface of the steps shows only while any step is on: `ChangeAllBtn` after the last step, and the notes
/// that explain icons and keys.
class ChangeAllPart : public QObject {
    Q_OBJECT

public:
    explicit ChangeAllPart(QWidget* surface);

    /// Shows or hides everything and places the button. stepsLeft: left edge of step 1.
    void ShowTune(const Tune& tune, std::int32_t stepsLeft);

    [[nodiscard]] QWidget& ChangeAllBtn() const { return *button; }

Q_SIGNALS:
    void Clicked(); ///< `ChangeAllBtn`

private:
    QWidget* button = nullptr;
    QLabel* NoteInstrLbl = nullptr;
    QLabel* NotePianoLbl = nullptr;
};

} // namespace sprout
