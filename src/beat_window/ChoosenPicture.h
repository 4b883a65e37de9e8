// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QImage>

#include "base/Picture.h"

namespace sprout {

/// The large picture of the chosen beat (`ChoosenPic`); a click on it plays the beat.
class ChoosenPicture : public QAbstractButton {
    Q_OBJECT

public:
    explicit ChoosenPicture(QWidget* parent);

    /// Shows a picture of any size; an empty one clears it.
    void ShowPicture(const Picture& picture);
    [[nodiscard]] bool IsClear() const { return image.isNull(); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage image;
};

} // namespace sprout
