// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstddef>

namespace sprout {

/// The busy sign: a sprout that grows with the work, in the middle of its window.
class ProcessPic : public QWidget {
    Q_OBJECT

public:
    explicit ProcessPic(QWidget* parent);

    /// Shows the sign and draws it at once, because no events are handled during the work.
    void Appear();
    /// Reports the work done so far; redraws after every further twentieth.
    void ShowProgress(std::size_t done, std::size_t total);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int twentieths = 0;
};

} // namespace sprout
