// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <vector>

#include "core/Song.h"
#include "tune_window/rules/StepLayout.h"

namespace sprout {

/// The surface of the step editor: draws a tune's columns as of the last request, and passes on mouse events in its own
/// pixels.
class TunFramPic : public QWidget {
    Q_OBJECT

public:
    explicit TunFramPic(QWidget* parent);

    /// Sets the tune whose columns are drawn from now on. stepsLeft: left edge of step 1.
    void DrawTuneSteps(const Tune& tune, std::int32_t stepsLeft);

    /// Shows a step's icon pressed, until the next drawing.
    void DrawIconPressed(std::int32_t step);

    /// The bars as drawn, from 1; all values of off-steps are 0.
    [[nodiscard]] const std::vector<DurationBar>& DurationBars() const { return bars; }

Q_SIGNALS:
    void Pressed(QPoint place, Qt::MouseButton button);
    void Moved(QPoint place, Qt::MouseButtons held);
    void Released(QPoint place, Qt::MouseButton button);
    void Wheeled(int pixels); ///< to the right, or to the left if negative
    void Resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What is drawn for a step.
    struct Column {
        bool on = false;
        bool beatIsMissing = false;
        Picture picture;
    };

    void ForColumnsIn(const QRect& area, const std::function<void(std::int32_t)>& paint) const;
    void PaintStrip(QPainter& painter, const QRect& area) const;
    void PaintLamp(QPainter& painter, std::int32_t step) const;
    void PaintIcon(QPainter& painter, std::int32_t step) const;
    void PaintFrame(QPainter& painter, std::int32_t step) const;
    void PaintKeys(QPainter& painter, std::int32_t step) const;
    void PaintBars(QPainter& painter, const QRect& area) const;
    void PaintBar(QPainter& painter, const DurationBar& bar, std::int32_t middle) const;
    [[nodiscard]] QPixmap Art(const char* name, int width, int height) const;
    [[nodiscard]] std::int32_t StepCount() const { return static_cast<std::int32_t>(columns.size()) - 1; }

    std::vector<Column> columns = std::vector<Column>(1);
    std::vector<DurationBar> bars = std::vector<DurationBar>(1);
    std::vector<std::int32_t> middles = std::vector<std::int32_t>(1); ///< widths of the bars' middles
    std::int32_t stepsLeft = kStepsLeftAtStart;
    std::int32_t pressedStep = 0; ///< the step whose icon is pressed
};

} // namespace sprout
