// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/SheetPicture.h"

#include <QApplication>

#include <cstdio>

namespace sprout {

bool SavePicture(QWidget& widget, const QString& path)
{
    if (widget.grab().save(path))
        return true;
    std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
    return false;
}

void SaveSheet(QWidget& widget, const QString& folder, const QString& name)
{
    QApplication::processEvents();
    SavePicture(widget, QStringLiteral("%1/%2.png").arg(folder, name));
}

void ShowAndSaveSheet(QWidget& widget, const QString& folder, const QString& name)
{
    widget.show();
    SaveSheet(widget, folder, name);
}

} // namespace sprout
