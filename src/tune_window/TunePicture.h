// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QImage>

#include "base/Picture.h"

namespace sprout {

/// A clickable tune picture in a white frame, drawn at the largest whole multiple of its pixels that fits.
class TunePicture : public QAbstractButton {
    Q_OBJECT

public:
    explicit TunePicture(QWidget* parent);

    /// An empty picture clears it.
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
