// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

#include <array>
#include <string_view>

#include "main_window/rules/ControlBarPlaces.h"
#include "ui/ButtonScheme.h"

namespace sprout {

class HintWatcher;
class TempoBar;

/// `ControlFramePic`: the tools, the song's title and author, and its tempo. As high as its width asks for.
class ControlBar : public QWidget {
    Q_OBJECT

public:
    /// email: whether the bar has room for its button.
    ControlBar(QWidget* parent, HintWatcher& watcher, EmailTool email);

    /// Takes the button of a tool.
    void AddTool(BarTool tool, ImageButton& button);

    /// Height that the bar needs in a width.
    [[nodiscard]] int HeightFor(int width) const;

    void ShowSong(std::string_view title, std::string_view author);
    void UpdateTempoSliderValue();

Q_SIGNALS:
    /// The title or the author was clicked twice.
    void SongTitleDoubleClicked();
    /// The user has given the song another tempo.
    void TempoChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel& AddSongLabel(const char* name, HintWatcher& watcher);
    void PlaceSongLabels(const ControlBarPlaces& places);
    void PlaceSongInOneLine(const QRect& room);
    void PlaceSongInTwoLines(const QRect& room);

    EmailTool emailTool;
    std::array<ImageButton*, kBarTools> tools{};
    QLabel* titleCaption; ///< `SngTitle2Lbl`
    QLabel* titleText;    ///< `SngTitleLbl`
    QLabel* authorCaption;
    QLabel* authorText;
    QString title;
    QString author;
    TempoBar* tempoBar;
};

} // namespace sprout
