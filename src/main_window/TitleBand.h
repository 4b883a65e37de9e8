// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

#include <vector>

#include "base/Words.h"
#include "ui/widgets/ImageButton.h"
#include "ui/widgets/WindowMover.h"

namespace sprout {

/// `MainTitlePic`: the leaf-green band with the window's name and its buttons. Dragging it moves the window,
/// double-clicking maximises or restores it.
class TitleBand : public QWidget {
    Q_OBJECT

public:
    explicit TitleBand(QWidget* parent);

    /// Adds a window button; the first one is the rightmost. Hidden buttons leave no gap.
    void AddWindowButton(ImageButton& button);
    void SetCaption(const Words& caption);
    void PlaceParts();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QLabel* captionLbl;
    Words caption;
    std::vector<ImageButton*> windowButtons;
    WindowMover mover;
};

} // namespace sprout
