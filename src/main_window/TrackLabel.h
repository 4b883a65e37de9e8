// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <functional>

#include "base/Words.h"

namespace sprout {

/// A small heading of the title strip that reacts to a click, Enter and Space.
class TrackLabel : public QLabel {
    Q_OBJECT

public:
    TrackLabel(const char* name, const Words& text, std::function<void()> onClick, QWidget* parent);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void()> onClick;
};

} // namespace sprout
