// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstdint>

#include "main_window/CellKeys.h"
#include "main_window/TrackCanvasCalls.h"
#include "main_window/TrackScroll.h"
#include "main_window/TrackTool.h"
#include "main_window/rules/PlayIndicator.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {

class TrackPic;
class TrackTitlePic;

/// `TrackFramePic`: the song as rows. It holds the title strip (`TrackTitlePic`), the painting surface with the time
/// band (`TrackPic`), both scroll bars, the row buttons and the play position markers. It draws the shared song and
/// lets the user paint it.
///
/// The wheel scrolls by rows, with Shift sideways. When `TrackPic` has the focus, the arrow keys, Page Up, Page Down,
/// Home and End scroll, and Space plays and stops. With Ctrl the arrow keys move the cell cursor; with Ctrl and Shift
/// they draw a stroke until one of the two is released. With Shift, Page Up and Page Down move the cursor by a group of
/// cells. Enter acts as a mouse press on that cell. `TrackTitlePic` documents its own keys.
class TrackCanvas : public QWidget {
    Q_OBJECT

public:
    /// buttons: the window's; the canvas adds its own buttons to it.
    TrackCanvas(QWidget* parent, ButtonScheme& buttons, TrackCanvasCalls calls);

    /// Places everything and marks the surfaces for a redraw when they are next shown; several calls cost one redraw.
    void DrawTracksAll();
    void DrawTrackOne(std::int32_t track);
    void DrawTrackTop();
    void HideTrackButtons();

    /// Sets the tool for future presses and drags, and the mouse pointer for it.
    void SetCurrentTool(Tool newTool) { tool.SetCurrentTool(newTool); }

    /// The track under the pointer in the title strip, 0 for none.
    [[nodiscard]] std::int32_t HoverTrack() const;
    [[nodiscard]] bool TrackTuneBtnVisible() const;
    [[nodiscard]] bool TrackAudioBtnVisible() const;
    /// The track that is being painted with the brush, 0 for none.
    [[nodiscard]] std::int32_t BrushedTrack() const { return tool.BrushedTrack(); }

    [[nodiscard]] TrackView View() const { return scroll.View(); }
    /// Scrolls to the first track and cell, for another song.
    void ShowFromStart();
    /// Redraws everything and scrolls to the last row and the buttons below it.
    void ShowAddedTrack();

    /// Keeps the marker of a play that starts in view, until the user draws a stroke or scrolls sideways.
    void BeginFollowing() { scroll.BeginFollowing(); }
    /// Scrolls to the marker's cell if the play is followed and no mouse button is held.
    void FollowMarker(std::int32_t cell) { scroll.FollowMarker(cell); }
    /// Places or hides the two markers of `PlayPosImg`.
    void ShowPlayIndicator(const PlayIndicator& indicator);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void ConnectParts();
    void PlaceParts();

    TrackCanvasCalls calls;
    TrackScroll scroll;
    TrackTitlePic* titlePic;
    TrackPic* trackPic;
    TrackTool tool;
    CellKeys keys;
};

/// Stops the player and hides its markers immediately: the window that a command opens may play its own sound, and the
/// markers would stay visible behind it.
void StopPlay(TrackCanvas& canvas);

} // namespace sprout
