// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/Song.h"
#include "main_window/RowButtons.h"
#include "main_window/StripControls.h"
#include "main_window/TrackCanvasCalls.h"
#include "main_window/TrackSurface.h"
#include "main_window/rules/StripChoice.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/widgets/ButtonScheme.h"
#include "ui/widgets/Hints.h"

namespace sprout {

/// The title strip: each track's number, picture, delete and play pictures, the buttons that float over them while the
/// pointer is there, and the buttons that add a track.
///
/// For the keyboard the strip is one tab stop. Up and down choose a row, left and right one of its buttons, which then
/// floats as if the pointer were there. Enter and Space press it, Escape leaves it.
class TrackTitlePic : public TrackSurface {
    Q_OBJECT

public:
    /// view: what is scrolled into view; view and calls outlive the strip. buttons: the window's; the strip adds its
    /// own.
    TrackTitlePic(const TrackView& view, ButtonScheme& buttons, const TrackCanvasCalls& calls, QWidget* parent);

    /// Clears the strip and draws all of it.
    void DrawAll(const SongState& song);
    /// Draws a track's row if it is in view and its picture has changed. Does nothing if the whole strip is waiting for
    /// a redraw.
    void DrawRow(const SongState& song, std::int32_t track);
    /// Places the buttons that add a track, and their label, below the last row.
    void PlaceAddButtons(std::int32_t trackCount);
    void HideTrackButtons();

    /// The track under the pointer or chosen by key; 0 for none.
    [[nodiscard]] std::int32_t HoverTrack() const { return rowButtons.HoverTrack(); }
    [[nodiscard]] bool TrackTuneBtnVisible() const { return controls.tuneBtn->isVisible(); }
    [[nodiscard]] bool TrackAudioBtnVisible() const { return controls.audioBtn->isVisible(); }

Q_SIGNALS:
    /// The user chose a row by key, and it must be scrolled into view.
    void RowChosen(int track);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void PaintOver(QPainter& painter) override;

private:
    struct RowLook {
        std::int32_t trackType = 0;
        Picture picture;
    };

    void WatchControls();
    void Clear();
    void HoverAt(std::int32_t x, std::int32_t y);
    void LeaveRows();
    void TuneHovered();

    void ChooseRow(std::int32_t track);
    void ChooseColumn(std::int32_t step);
    void PressChosen();
    void ShowChosen();

    const TrackView& view;
    ButtonScheme& buttons;
    const TrackCanvasCalls& calls;
    HintWatcher watcher;
    StripControls controls;
    RowButtons rowButtons;
    StripChoice choice;
    std::vector<std::optional<RowLook>> drawnRows; ///< by row, from the top
};

} // namespace sprout
