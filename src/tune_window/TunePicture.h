// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QImage>

#include "base/Picture.h"

namespace sprout {

/// The picture of a tune in a white frame, to click on. It is drawn as large as whole multiples of its pixels fit.
class TunePicture : public QAbstractButton {
    Q_OBJECT

public:
    explicit TunePicture(QWidget* parent);

    /// No picture clears it.
    void SetPicture(const sprout::Picture& picture);
    [[nodiscard]] const sprout::Picture& Picture() const { return shown; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    sprout::Picture shown;
    QImage image;
};

} // namespace sprout
