// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WindowFrame.h"

#include <QPainter>

#include "main_window/EdgeGrip.h"
#include "main_window/GroundWatch.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PutAt.h"

namespace sprout {

namespace {

/// A vine in a lower corner.
class CornerVine : public QWidget {
public:
    CornerVine(QWidget* parent, const char* name) : QWidget(parent) { setObjectName(QString::fromLatin1(name)); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, Artwork(QStringLiteral("pictures/") + objectName(), size(), devicePixelRatioF()));
    }
};

} // namespace

WindowFrame::WindowFrame(QWidget& window, HintWatcher& watcher, GroundWatch& ground)
    : corners{new CornerVine(&window, "Corner3Pic"), new CornerVine(&window, "Corner4Pic")}
{
    for (QWidget* corner : corners)
        watcher.Watch(*corner, {});
    ground.Watch(*corners[0]);
    for (std::size_t i = 0; i < grips.size(); ++i) {
        grips[i] = new EdgeGrip(&window, kWindowGrips[i]);
        watcher.Watch(*grips[i], {});
        ground.Watch(*grips[i]);
    }
}

void WindowFrame::Place(const MainWindowPlaces& places)
{
    const std::array cornerPlaces{places.leftCorner, places.rightCorner};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i]->setVisible(places.hasStatus);
        PutAt(*corners[i], cornerPlaces[i]);
    }
    for (EdgeGrip* grip : grips)
        grip->Place();
}

void WindowFrame::ShowMaximized(bool maximized)
{
    for (EdgeGrip* grip : grips)
        grip->setVisible(!maximized);
}

void WindowFrame::Paint(QWidget& window)
{
    QPainter painter(&window);
    painter.fillRect(window.rect(), kPaper);
    if (window.isMaximized())
        return;
    painter.setPen(QPen(kBark, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin)); // the default join clips corners
    painter.drawRect(window.rect().adjusted(1, 1, -1, -1));
}

} // namespace sprout
