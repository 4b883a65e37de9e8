// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QPoint>
#include <QRect>

namespace sprout {

/// Places of a grid of pictures, its scroll bar and the frame around both.
struct GridPlaces {
    QRect frame;
    QRect grid;
    QRect scroll;
};

/// With the top left of the frame at `frameAt`.
[[nodiscard]] GridPlaces GridPlacesAt(QPoint frameAt, int columns, int rows);

/// The frame `ShowAllFrame` around a grid and its scroll bar. It shows whether the grid has the focus.
class GridFrame : public QFrame {
    Q_OBJECT

public:
    explicit GridFrame(QWidget* parent);

    void ShowFocus(bool focused);
};

} // namespace sprout
