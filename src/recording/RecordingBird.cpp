// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/RecordingBird.h"

#include <QLabel>
#include <QTimer>

#include "ui/look/Artwork.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kAnimMilliseconds = 120;
constexpr int kAnimSteps = 5;
constexpr int kAnimHop = 0;  ///< the step at which the bird hops up
constexpr int kAnimLand = 3; ///< the step at which it has landed

} // namespace

RecordingBird::RecordingBird(QLabel& sitting, QLabel& hopping, QObject* parent)
    : QObject(parent), sittingPose(sitting), hoppingPose(hopping), timer(new QTimer(this))
{
    for (QLabel* pose : {&sittingPose, &hoppingPose}) {
        pose->setPixmap(
            Artwork(QStringLiteral("pictures/") + pose->objectName(), pose->size(), pose->devicePixelRatioF()));
        SetSpokenName(*pose, Words::Text("Bird"));
        pose->setVisible(pose == &sittingPose);
    }
    timer->setObjectName(QStringLiteral("AnimTimer"));
    timer->setInterval(kAnimMilliseconds);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, &RecordingBird::Tick);
}

void RecordingBird::Start()
{
    timer->start();
}

void RecordingBird::Stop()
{
    timer->stop();
}

void RecordingBird::Tick()
{
    if (step == kAnimHop || step == kAnimLand) {
        sittingPose.setVisible(step == kAnimLand);
        hoppingPose.setVisible(step == kAnimHop);
    }
    step = (step + 1) % kAnimSteps;
}

} // namespace sprout
