// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "core/Song.h"
#include "main_window/TrackSurface.h"
#include "main_window/rules/TitleStrip.h"
#include "main_window/rules/TrackGeometry.h"
#include "ui/ButtonScheme.h"
#include "ui/Hints.h"

namespace sprout {

struct TrackCanvasCalls;
class TrackTuneBtn;

/// Width of the title strip.
inline constexpr int kTitleStripWidth = 140;

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
    [[nodiscard]] std::int32_t HoverTrack() const { return hoverTrack; }
    [[nodiscard]] bool TrackTuneBtnVisible() const;
    [[nodiscard]] bool TrackAudioBtnVisible() const;

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

    void MakeHeadings();
    void MakeTuneBtn();
    void MakeButtons();
    void MakeTopLbl();
    ImageButton& AddStripButton(const ButtonRow& row, QSize size, const std::function<void()>& onClick);
    void TuneHovered();

    void Clear();
    void PaintRow(const Track& track, std::int32_t number);
    void HoverAt(std::int32_t x, std::int32_t y);
    void LeaveRows();
    void PlaceFloatingButtons(const FloatingButtons& shown);

    void ChooseRow(std::int32_t track);
    void ChooseColumn(std::int32_t step);
    void PressChosen();
    void ShowChosen();
    [[nodiscard]] QAbstractButton* FloatingButton() const;

    const TrackView& view;
    ButtonScheme& buttons;
    const TrackCanvasCalls& calls;
    HintWatcher watcher;
    std::vector<std::optional<RowLook>> drawnRows; ///< by row, from the top
    std::int32_t hoverTrack = 0;
    bool overlayShown = false;
    std::int32_t chosenRow = 0; ///< the track whose row was chosen by key, 0 for none
    std::int32_t chosenColumn = 0;
    TrackTuneBtn* tuneBtn = nullptr;
    ImageButton* audioBtn = nullptr;
    ImageButton* deleteBtn = nullptr;
    ImageButton* playBtn = nullptr;
    ImageButton* addBtn = nullptr;
    ImageButton* addRecBtn = nullptr;
    QLabel* topLbl = nullptr;
};

} // namespace sprout
