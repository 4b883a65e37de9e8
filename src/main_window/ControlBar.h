// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

#include <array>
#include <string_view>

#include "base/Words.h"
#include "main_window/rules/ControlBarPlaces.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {

class HintWatcher;
class TempoBar;

/// `ControlFramePic`: the tools, the song's title and author, and its tempo. Its height depends on its width.
class ControlBar : public QWidget {
    Q_OBJECT

public:
    /// email: whether the bar has space for the email button.
    ControlBar(QWidget* parent, HintWatcher& watcher, EmailTool email);

    /// Adds a tool's button.
    void AddTool(BarTool tool, ImageButton& button);

    /// The height that the bar needs at a given width.
    [[nodiscard]] int HeightFor(int width) const;

    void ShowSong(std::string_view title, std::string_view author);
    void UpdateTempoSliderValue();

Q_SIGNALS:
    /// The title or the author was double-clicked.
    void SongTitleDoubleClicked();
    /// The user changed the song's tempo.
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
    Words title;
    Words author;
    TempoBar* tempoBar;
};

} // namespace sprout
