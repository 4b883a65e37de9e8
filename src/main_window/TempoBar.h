// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QLabel>
#include <QWidget>

#include <cstdint>

namespace sprout {

class HintWatcher;
class SliderPointer;
class TempoSlot;

/// The tempo of the shared song: slot (`TempoSliderImg`) and pointer (`TempoPrtImg`), the percentage (`TempoLbl`) and
/// the song's duration (`SngDurLbl`).
class TempoBar : public QWidget {
    Q_OBJECT

public:
    TempoBar(QWidget* parent, HintWatcher& watcher);

    /// Shows the song's tempo.
    void UpdateTempoSliderValue();

    /// Fits the bar into a space. In a narrow one the slot is shorter, and the labels go below it if the height allows,
    /// else beside it, one above the other.
    void FitRoom(QSize room);

Q_SIGNALS:
    /// The song's tempo changed, and with it the duration of its cells.
    void TempoChanged();

private:
    void ShowLabels(std::int32_t percent, std::int32_t tempo);
    void FitLabels() const;
    /// Takes the user's choice.
    void TakePercent(std::int32_t percent);

    TempoSlot* TempoSliderImg;
    SliderPointer* TempoPrtImg;
    QLabel* TempoLbl;
    QLabel* SngDurLbl;
    QFont labelFont; ///< of full size
};

} // namespace sprout
