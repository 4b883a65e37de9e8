// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WelcomeHand.h"

#include <QEvent>
#include <QPainter>

#include "main_window/rules/WelcomePlaces.h"
#include "ui/look/Artwork.h"
#include "ui/widgets/PutAt.h"

namespace sprout {

WelcomeHand::WelcomeHand(QWidget& button) : QWidget(button.parentWidget())
{
    setObjectName(QStringLiteral("WelcomeHand") + button.objectName());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    button.installEventFilter(this);
    PlaceAt(button);
    raise();
}

void WelcomeHand::PlaceAt(const QWidget& button)
{
    PutAt(*this, PlaceWelcomeHand({button.x(), button.y(), button.width(), button.height()}));
}

bool WelcomeHand::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
        PlaceAt(*static_cast<QWidget*>(watched));
    return QWidget::eventFilter(watched, event);
}

void WelcomeHand::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(QStringLiteral("pictures/WelcomeHand"), size(), devicePixelRatioF()));
}

} // namespace sprout
