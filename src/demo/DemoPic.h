// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

#include "base/Picture.h"
#include "base/Words.h"
#include "demo/rules/DemoRectangle.h"

namespace sprout {

/// The picture of the present slide, `DemoImages`. It reports what the left mouse button does on it, in pixels of the
/// picture, whatever the size at which it is shown.
class DemoPic : public QWidget {
    Q_OBJECT

public:
    explicit DemoPic(QWidget* parent);

    /// Shows this picture from now on; or `sharp` in its place, if that is exactly twice as large.
    void Show(const Picture& picture, const Picture& sharp = {});
    [[nodiscard]] BoxSize PictureSize() const { return pictureSize; }

    /// Tells screen readers what the slide asks for; one that stands on the picture says it at once.
    void Speak(const Words& instruction);

Q_SIGNALS:
    // If the picture loses the button while it is held, it counts as released.
    void Pressed(sprout::DemoPoint point);
    void Moved(sprout::DemoPoint point);
    void Released();

protected:
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] DemoPoint PixelAt(const QMouseEvent& event) const;
    void LetGo();

    QPixmap pixmap;
    BoxSize pictureSize;
    bool isHeld = false;
    bool isFocusShown = false;
};

} // namespace sprout
