// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLabel;
class QTimer;

namespace sprout {

/// The bird of the recording window: it hops while the capture keeps its sound (`AnimTimer`).
class RecordingBird : public QObject {
    Q_OBJECT

public:
    /// sitting, hopping: the labels of its two poses, at their place and named after their pictures; the first is
    /// shown.
    RecordingBird(QLabel& sitting, QLabel& hopping, QObject* parent);

    void Start();
    /// Leaves the bird in its pose.
    void Stop();

private:
    void Tick();

    QLabel& sittingPose;
    QLabel& hoppingPose;
    QTimer* timer;
    int step = 0;
};

} // namespace sprout
