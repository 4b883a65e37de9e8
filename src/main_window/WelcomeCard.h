// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

#include "base/Words.h"
#include "main_window/rules/WelcomePlaces.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {

class HintWatcher;
class WelcomeHand;

/// `WelcomeCard`: tells on the very first start what Play all and Demo are for. A click anywhere on it or on its
/// `WelcomeCloseBtn`, or Escape there, puts it away.
class WelcomeCard : public QWidget {
    Q_OBJECT

public:
    /// The card is hidden until it is placed.
    WelcomeCard(QWidget* window, HintWatcher& watcher);

    /// Adds a hand that points to a button while the card is shown.
    void PointTo(QWidget& button);

    /// Places the card in a strip of its window and shows it with its hands; hides them if the strip is empty.
    void PlaceIn(const Box& strip);

    /// Hides the card with its hands and deletes them as soon as events are handled.
    void Delete();

    [[nodiscard]] ImageButton& CloseButton() const { return scheme.Button("WelcomeCloseBtn"); }

Q_SIGNALS:
    /// The user wants to have the card out of the way.
    void PutAway();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] WelcomeNeeds Needs() const;
    void ShowAll(bool shown);
    void PaintPicture(QPainter& painter, const char* name, const Box& place) const;
    void PaintText(QPainter& painter, const Words& text, const Box& place, const QFont& font) const;

    ButtonScheme scheme;
    std::vector<QPointer<WelcomeHand>> hands;
    WelcomePlaces places;
};

} // namespace sprout
