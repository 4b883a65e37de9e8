// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TitleBand.h"

#include <QMouseEvent>
#include <QPainter>

#include "main_window/rules/MainWindowPlaces.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kBandSproutSide = 30;
constexpr int kSproutLeft = 10;
constexpr int kWindowButton = 28;
constexpr int kWindowButtonsApart = 8;
constexpr int kLastButtonFromEdge = 10;
constexpr int kBandLine = 2;

} // namespace

TitleBand::TitleBand(QWidget* parent) : QWidget(parent), captionLbl(new QLabel(this))
{
    setObjectName(QStringLiteral("MainTitlePic"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    captionLbl->setObjectName(QStringLiteral("CaptionLbl"));
    captionLbl->setFont(ButtonFont());
    captionLbl->setTextFormat(Qt::PlainText);
    QPalette onDeepLeaf = captionLbl->palette();
    onDeepLeaf.setColor(QPalette::WindowText, kPaper);
    captionLbl->setPalette(onDeepLeaf);
    captionLbl->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TitleBand::AddWindowButton(ImageButton& button)
{
    button.setParent(this);
    button.resize(kWindowButton, kWindowButton);
    windowButtons.push_back(&button);
}

void TitleBand::SetCaption(const Words& newCaption)
{
    caption = newCaption;
    PlaceParts();
}

void TitleBand::PlaceParts()
{
    int right = width() - kLastButtonFromEdge;
    for (ImageButton* button : windowButtons) {
        if (button->isHidden())
            continue;
        button->move(right - kWindowButton, (kTitleBandHeight - kBandLine - kWindowButton) / 2);
        right = button->x() - kWindowButtonsApart;
    }
    const int left = kSproutLeft + kBandSproutSide + 4;
    captionLbl->setGeometry(left, 0, right - left, kTitleBandHeight - kBandLine);
    SetCutText(*captionLbl, caption);
}

void TitleBand::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kDeepLeaf);
    painter.fillRect(QRect(0, height() - kBandLine, width(), kBandLine), kBark);
    painter.drawPixmap(
        kSproutLeft, (height() - kBandSproutSide) / 2,
        Artwork(QStringLiteral("pictures/SproutPaper"), QSize(kBandSproutSide, kBandSproutSide), devicePixelRatioF()));
}

void TitleBand::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PlaceParts();
}

void TitleBand::mousePressEvent(QMouseEvent* event)
{
    mover.Press(*window(), *event);
}

void TitleBand::mouseMoveEvent(QMouseEvent* event)
{
    mover.Move(*window(), *event);
}

void TitleBand::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    mover.Release();
}

void TitleBand::mouseDoubleClickEvent(QMouseEvent* event)
{
    mover.Release();
    if (event->button() == Qt::LeftButton)
        window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
}

} // namespace sprout
