// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

#include "base/Words.h"

namespace sprout {

/// An underlined text that is clicked like a link. A key that is held down clicks it once; the arrow keys are left to
/// its window.
class LinkButton : public QPushButton {
    Q_OBJECT

public:
    LinkButton(const char* name, const Words& text, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace sprout
