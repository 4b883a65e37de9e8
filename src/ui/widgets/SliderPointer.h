// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSlider>

#include <cstdint>
#include <functional>

#include "ui/rules/Slider.h"

namespace sprout {

/// The look and the range of a slider's pointer.
struct PointerLook {
    const char* artwork = ""; ///< path below art/
    QSize size;               ///< of the pointer including its focus frame
    QSize picture;            ///< inside that frame
    std::int32_t lowest = 0;  ///< percent
    std::int32_t highest = 100;
};

/// A pointer that acts for its whole slider: it can be dragged, handles the keys and reports its value to screen
/// readers.
class SliderPointer : public QAbstractSlider {
    Q_OBJECT

public:
    using Told = std::function<void(std::int32_t percent)>;

    /// onSlide: gets each value of a drag; onChoose: gets the final value set by a drag, a key or a screen reader.
    SliderPointer(QWidget* parent, const PointerLook& look, Told onSlide, Told onChoose);

    void ShowPercent(std::int32_t percent);

    /// Sets the slot that the pointer moves in, in the parent's coordinates.
    void SetSlot(int left, int widthPx);

    /// Chooses the percentage that puts the pointer's middle closest to `x` of the parent.
    void ChooseAt(double x);

    [[nodiscard]] bool IsDragged() const { return isDragged; }

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintFocus(QPainter& painter) const;
    void TakeValue(int percent);
    void EndDrag();
    void PutAt(double newLeft);

    PointerLook look;
    Slider slider;
    Told slide;
    Told choose;
    bool isDragged = false;
    std::int32_t downX = 0;
    double left = 0; // unrounded
    std::int32_t shown = 0;
};

} // namespace sprout
