// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/WelcomeCard.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "main_window/WelcomeHand.h"
#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Artwork.h"
#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PutAt.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/FittingFont.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kCorner = 12;
constexpr LaterWords kTitle = Words::Later("Welcome!");
constexpr LaterWords kPlayText = Words::Later("Play all plays the song");
constexpr LaterWords kDemoText = Words::Later("Demo shows you how");

int WidthOf(const Words& text, const QFont& font)
{
    return QFontMetrics(font).horizontalAdvance(QtText(text)) + 1;
}

} // namespace

WelcomeCard::WelcomeCard(QWidget* window, HintWatcher& watcher)
    : QWidget(window), scheme(*this, AllOffTimer::OffAtFirst)
{
    const LaterWords hint = MainWindowHint("WelcomeCard");
    setObjectName(QStringLiteral("WelcomeCard"));
    setCursor(Qt::PointingHandCursor);
    // Screen readers say an alert when it appears, wherever the focus is.
    SetSpokenRole(*this, QAccessible::AlertMessage);
    SetSpokenName(*this, Words::Text("Welcome! Play all plays the song, Demo shows you how to make one."));
    watcher.Watch(*this, hint);
    scheme.AddButton({"WelcomeCloseBtn", Words::Later("Put away"), hint, Plate::Title, {}, "CloseImgBtn"},
                     [this] { Q_EMIT PutAway(); });
    hide();
}

void WelcomeCard::PointTo(QWidget& button)
{
    auto* hand = new WelcomeHand(button);
    hand->setVisible(isVisibleTo(parentWidget()));
    hands.emplace_back(hand);
}

void WelcomeCard::PlaceIn(const Box& strip)
{
    const bool hasRoom = strip.height > 0;
    if (hasRoom) {
        places = PlaceWelcome(strip, Needs());
        PutAt(*this, places.card);
        PutAt(CloseButton(), places.closeButton);
        update();
    }
    ShowAll(hasRoom);
}

void WelcomeCard::Delete()
{
    ShowAll(false);
    for (const QPointer<WelcomeHand>& hand : hands)
        if (hand)
            hand->deleteLater();
    deleteLater();
}

void WelcomeCard::ShowAll(bool shown)
{
    setVisible(shown);
    for (const QPointer<WelcomeHand>& hand : hands)
        if (hand)
            hand->setVisible(shown);
}

WelcomeNeeds WelcomeCard::Needs() const
{
    return {WidthOf(kTitle, ButtonFont()), WidthOf(kPlayText, LabelFont()), WidthOf(kDemoText, LabelFont())};
}

void WelcomeCard::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kBark, 1));
    painter.setBrush(kSun);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
    if (places.hasTitle) {
        PaintPicture(painter, "pictures/WelcomeSprout", places.sprout);
        PaintText(painter, kTitle, places.title, ButtonFont());
    }
    PaintPicture(painter, "buttons/PlayAllBtn", places.playPicture);
    PaintText(painter, kPlayText, places.play, LabelFont());
    PaintPicture(painter, "buttons/DemoBtn", places.demoPicture);
    PaintText(painter, kDemoText, places.demo, LabelFont());
}

void WelcomeCard::PaintPicture(QPainter& painter, const char* name, const Box& place) const
{
    const QRect rect = RectOf(place);
    painter.drawPixmap(rect.topLeft(), Artwork(QString::fromLatin1(name), rect.size(), devicePixelRatioF()));
}

void WelcomeCard::PaintText(QPainter& painter, const Words& text, const Box& place, const QFont& font) const
{
    const QFont fitting = FittingFont(font, QtText(text), place.width);
    painter.setFont(fitting);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(RectOf(place), Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(fitting).elidedText(QtText(text), Qt::ElideRight, place.width));
}

void WelcomeCard::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void WelcomeCard::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT PutAway();
}

void WelcomeCard::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT PutAway();
    else
        QWidget::keyPressEvent(event);
}

} // namespace sprout
