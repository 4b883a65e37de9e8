// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

/// A hand that points to a button and stays with it when it moves. Mouse events pass through it.
class WelcomeHand : public QWidget {
    Q_OBJECT

public:
    /// The hand becomes a sibling of the button, above it.
    explicit WelcomeHand(QWidget& button);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PlaceAt(const QWidget& button);
};

} // namespace sprout
