// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PicturePixels.h"

#include <QCryptographicHash>
#include <QImage>

namespace sprout {

std::optional<std::string> PixelsOf(const QString& path)
{
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    if (image.isNull())
        return std::nullopt;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (int y = 0; y < image.height(); ++y)
        hash.addData(QByteArrayView(image.constScanLine(y), qsizetype{image.width()} * 4));
    return hash.result().toHex().toStdString() + " " + std::to_string(image.width()) + "x" +
           std::to_string(image.height());
}

} // namespace sprout
