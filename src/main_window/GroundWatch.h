// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace sprout {

/// Tells when the mouse moves over the background of widgets, beside the controls on them.
class GroundWatch : public QObject {
    Q_OBJECT

public:
    explicit GroundWatch(QObject* parent) : QObject(parent) {}

    void Watch(QWidget& ground);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void MovedOver();
};

} // namespace sprout
