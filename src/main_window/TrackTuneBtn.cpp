// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTuneBtn.h"

#include <QPainter>

#include <cmath>

#include "main_window/TrackPictures.h"
#include "main_window/rules/MainWindowHints.h"
#include "ui/look/Palette.h"
#include "ui/widgets/Hints.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kTuneButtonFrame = 1;
constexpr int kTuneButtonSide = kPictureSide + 2 * kTuneButtonFrame;

} // namespace

TrackTuneBtn::TrackTuneBtn(QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("TrackTuneBtn"));
    SetHintOf(*this, MainWindowHint("TrackTuneBtn"));
    SetSpokenName(*this, Words::Text("Tune"));
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    resize(kTuneButtonSide, kTuneButtonSide);
    hide();
}

void TrackTuneBtn::SetTune(const Tune& tune)
{
    raised = RaisedTunePicture(tune.Picture);
    SetToolTip(*this, tune.Name.empty() ? Words::Text("Tune Button") : Words::AsIs(tune.Name));
    update();
}

void TrackTuneBtn::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), isDown() ? kSun : kBark);
    const qreal ratio = devicePixelRatioF();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != std::floor(ratio));
    painter.drawImage(rect().adjusted(kTuneButtonFrame, kTuneButtonFrame, -kTuneButtonFrame, -kTuneButtonFrame),
                      raised);
}

void TrackTuneBtn::enterEvent(QEnterEvent* event)
{
    ShowHintOf(*this);
    QAbstractButton::enterEvent(event);
}

void TrackTuneBtn::mouseMoveEvent(QMouseEvent* event)
{
    ShowHintOf(*this);
    if (Hovered)
        Hovered();
    QAbstractButton::mouseMoveEvent(event);
}

} // namespace sprout
