// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ProcessPic.h"

#include <QPainter>

#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr QSize kSignSize{180, 132};
constexpr int kSproutSide = 64;
constexpr int kTwentieths = 20;

} // namespace

ProcessPic::ProcessPic(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("ProcessPic"));
    setAccessibleName(QtText(Words::Text("Working")));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(kSignSize);
    hide();
}

void ProcessPic::Appear()
{
    twentieths = 0;
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    show();
    raise();
    repaint();
}

void ProcessPic::ShowProgress(std::size_t done, std::size_t total)
{
    const int reached = total == 0 ? 0 : static_cast<int>(done * kTwentieths / total);
    if (reached == twentieths || !isVisible())
        return;
    twentieths = reached;
    repaint();
}

void ProcessPic::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF sign = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setPen(QPen(kBark, 3));
    painter.setBrush(kPaper);
    painter.drawRoundedRect(sign, 16, 16);
    painter.drawPixmap(
        (width() - kSproutSide) / 2, 10,
        Artwork(QStringLiteral("pictures/Sprout"), QSize(kSproutSide, kSproutSide), devicePixelRatioF()));
    painter.setFont(ButtonFont());
    painter.drawText(QRect(0, 76, width(), 26), Qt::AlignCenter, QtText(Words::Text("One moment...")));

    const QRectF ground(20, 106, width() - 40, 12);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kSand);
    painter.drawRoundedRect(ground, 6, 6);
    painter.setBrush(kLeaf);
    if (twentieths > 0)
        painter.drawRoundedRect(QRectF(ground.topLeft(), QSizeF(ground.width() * twentieths / kTwentieths, 12)), 6, 6);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kBark, 2));
    painter.drawRoundedRect(ground, 6, 6);
}

} // namespace sprout
