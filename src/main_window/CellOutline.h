// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

/// The outline of the cell cursor: light next to dark, so that one of them is visible on any background. It ignores the
/// mouse and is hidden at first.
class CellOutline : public QWidget {
    Q_OBJECT

public:
    explicit CellOutline(QWidget* parent);

    void PlaceAround(QPoint cursor);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace sprout
