// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>

namespace sprout {

/// `HScroll` of the audio editor, from 0 to 100: which part of the sound is in view. A drag of the thumb counts once,
/// on release. Left and right scroll in their own direction; Qt reverses the arrow keys of scroll bars.
class WaveScrollBar : public QScrollBar {
    Q_OBJECT

public:
    explicit WaveScrollBar(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace sprout
