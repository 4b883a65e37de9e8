// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/ArtSheet.h"

#include <QDirIterator>
#include <QPainter>
#include <QWidget>

#include <algorithm>

#include "pictures/SheetPicture.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

class ArtSheet : public QWidget {
public:
    ArtSheet() { resize(900, 560); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), kPaper);
        for (int tile = 0; tile <= 10; ++tile) {
            const QPixmap pixmap =
                Artwork(QStringLiteral("tiles/Tile%1").arg(tile), QSize(64, 32), devicePixelRatioF());
            const int top = 8 + tile * 46;
            for (int x = 0; x < 3; ++x)
                painter.drawPixmap(10 + x * 64, top, pixmap);
            painter.fillRect(10, top, 192, 1, Qt::black);
            painter.fillRect(10, top + 32, 192, 1, Qt::black);
            painter.fillRect(58, top, 1, 5, Qt::black);
            painter.fillRect(58, top + 28, 1, 5, Qt::black);
            painter.fillRect(10, top, 1, 33, Qt::black);
        }
        DrawPictures(painter);
    }

private:
    void DrawPictures(QPainter& painter) const
    {
        int x = 230;
        int y = 8;
        QDirIterator files(QStringLiteral(":/art/pictures"));
        while (files.hasNext()) {
            const QString name = QFileInfo(files.next()).completeBaseName();
            const QSize size = SizeOf(name);
            if (x + size.width() > width() - 10) {
                x = 230;
                y += 90;
            }
            painter.drawPixmap(x, y, Artwork(QStringLiteral("pictures/") + name, size, devicePixelRatioF()));
            painter.setPen(kBark);
            painter.setFont(HintFont());
            painter.drawText(x, y + 84, name.left(15));
            x += std::max(size.width() + 14, 120);
        }
    }

    static QSize SizeOf(const QString& name)
    {
        if (name == QStringLiteral("TempoPrtImg"))
            return {30, 35};
        if (name == QStringLiteral("TimeSlide"))
            return {200, 15};
        if (name.startsWith(QStringLiteral("BusyMark")))
            return {3, 17};
        if (name == QStringLiteral("PlayPosImg"))
            return {3, 32};
        if (name == QStringLiteral("DeleteButtonPic"))
            return {14, 16};
        if (name.startsWith(QStringLiteral("TrackBlankPic")) || name.startsWith(QStringLiteral("TrackPlainPic")))
            return {64, 42};
        const bool small = name == QStringLiteral("PlayPic") || name == QStringLiteral("RecordButtonPic") ||
                           name.startsWith(QStringLiteral("Blank")) || name.endsWith(QStringLiteral("TunePicture"));
        return small ? QSize(32, 32) : QSize(64, 64);
    }
};

} // namespace

void DrawArtSheet(const QString& folder)
{
    ArtSheet sheet;
    SaveSheet(sheet, folder, QStringLiteral("art"));
}

} // namespace sprout
