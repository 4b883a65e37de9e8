// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstdint>

namespace sprout {

/// `TempoSliderImg`, the slot of the tempo's pointer: a stem with a knot under the pointer's middle at every half of
/// the reference tempo.
class TempoSlot : public QWidget {
    Q_OBJECT

public:
    explicit TempoSlot(QWidget* parent);

Q_SIGNALS:
    /// The left button was pressed. x: in the parent.
    void Pressed(double x);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double MiddleOf(std::int32_t percent) const;
};

} // namespace sprout
