// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

#include <string_view>

namespace sprout {

class HintWatcher;

/// `StatusLbl`: the hint for what is under the pointer, on one line or, if it is too long, on two narrow lines.
class HintLabel : public QLabel {
    Q_OBJECT

public:
    explicit HintLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// `SoundStatusLbl`: the player's state, in bold red while it reports that there is no device.
class SoundLabel : public QLabel {
    Q_OBJECT

public:
    explicit SoundLabel(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// `StatusFramePic`: the hint, the cell under the pointer and the player's state.
class StatusBar : public QWidget {
    Q_OBJECT

public:
    StatusBar(QWidget* parent, HintWatcher& watcher);

    [[nodiscard]] QLabel& SoundStatusLbl() { return *soundStatusLbl; }

    /// Sets the text of `TrackMouPosLbl`.
    void ShowCell(std::string_view cell);

    /// Shows whether there is a sound device.
    void ShowSoundDevices(int count);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    HintLabel* statusLbl;
    QLabel* trackMouPosLbl;
    SoundLabel* soundStatusLbl;
};

} // namespace sprout
