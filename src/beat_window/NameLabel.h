// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include "base/Words.h"

namespace sprout {

/// A centred name on one or two lines: a long name continues on the second line and ends there with dots. The tool tip
/// shows all of it.
class NameLabel : public QLabel {
    Q_OBJECT

public:
    explicit NameLabel(QWidget* parent);

    void ShowName(const Words& name);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace sprout
