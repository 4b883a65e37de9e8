// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstddef>

namespace sprout {

/// The working sign: a sprout that grows with the work, in the middle of the window that it belongs to.
class ProcessPic : public QWidget {
    Q_OBJECT

public:
    explicit ProcessPic(QWidget* parent);

    /// Shows the sign and draws it at once, since no event is handled while the work goes on.
    void Appear();
    /// The work done, in pieces; draws when a twentieth more is done.
    void ShowProgress(std::size_t done, std::size_t total);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int twentieths = 0;
};

} // namespace sprout
