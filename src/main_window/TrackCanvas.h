// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "main_window/rules/PlayIndicator.h"
#include "main_window/rules/Stroke.h"
#include "main_window/rules/TrackGeometry.h"
#include "main_window/rules/TrackPointer.h"
#include "ui/ButtonScheme.h"

class QScrollBar;

namespace sprout {

class TrackPic;
class TrackTitlePic;

/// What the canvas needs from its window. Every function is called from a user event.
struct TrackCanvasCalls {
    std::function<void(std::int32_t cell)> PlaySongFrom;
    std::function<void(std::int32_t track, std::int32_t cell)> PlayTrackFrom;
    std::function<void()> EnableTrackTitlePlayTimer; ///< a stroke begins, or the pointer is over a tune or audio button
    std::function<void()> PlayOrStop;                ///< the space bar
    std::function<void(std::string_view)> ShowCell;  ///< the text of `TrackMouPosLbl`
    // Clicks on the canvas buttons.
    std::function<void()> TrackPlayBtn, TrackDeleteBtn, TrackTuneBtn, TrackAudioBtn, TrackAddBtn, TrackAddRecBtn;
};

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
    void SetCurrentTool(Tool tool);
    [[nodiscard]] Tool CurrentTool() const;

    /// The track under the pointer in the title strip, 0 for none.
    [[nodiscard]] std::int32_t HoverTrack() const;
    [[nodiscard]] bool TrackTuneBtnVisible() const;
    [[nodiscard]] bool TrackAudioBtnVisible() const;
    /// The track that is being painted with the brush, 0 for none.
    [[nodiscard]] std::int32_t BrushedTrack() const;

    [[nodiscard]] TrackView View() const;
    /// Scrolls to the first track and cell, for another song.
    void ShowFromStart();
    /// Redraws everything and scrolls to the last row and the buttons below it.
    void ShowAddedTrack();

    /// Keeps the marker of a play that starts in view, until the user draws a stroke or scrolls sideways.
    void BeginFollowing();
    /// Scrolls to the marker's cell if the play is followed and no mouse button is held.
    void FollowMarker(std::int32_t cell);
    /// Places or hides the two markers of `PlayPosImg`.
    void ShowPlayIndicator(const PlayIndicator& indicator);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void MakeSurfaces(ButtonScheme& buttons);
    void MakeScrollBars();
    void PlaceParts();
    void FitScrollBars();
    void ScrollToCell(std::int32_t cell);
    void ShowRow(std::int32_t track);
    void ShowCell(std::int32_t cell);

    void Press(QPoint at);
    void Move(QPoint at);
    void Leave();
    void EndStroke();
    [[nodiscard]] TrackHit HitTest(QPoint at) const;
    void DrawStroke();
    void ShowPointer(const TrackPointer& pointer);
    void ShowPointerImage(PointerImage image);

    bool StepKeyCell(const QKeyEvent& event);
    bool LeapKeyCell(int key);
    void MoveKeyCell(std::int32_t cells);
    void ShowKeyCell();
    void PressKeyCell();
    void TellKeyCell();
    [[nodiscard]] QPoint KeyPoint() const;

    TrackCanvasCalls calls;
    TrackView view;
    Tool tool = Tool::Brush;
    Stroke stroke;
    std::int32_t keyTrack = 1; ///< of the cell that the keys act on, 0 for the time band
    std::int32_t keyCell = 1;
    PointerImage pointerImage = PointerImage::Default;
    TrackTitlePic* titlePic = nullptr;
    TrackPic* trackPic = nullptr;
    QScrollBar* vScroll = nullptr;
    QScrollBar* hScroll = nullptr;
    std::optional<FollowedEdges> followed; ///< the edges that make the view follow a play; none: not followed
    QPoint wheelRest;                      ///< rotation since the last whole notch, in eighths of a degree
};

/// Stops the player and hides its markers immediately: the window that a command opens may play its own sound, and the
/// markers would stay visible behind it.
void StopPlay(TrackCanvas& canvas);

} // namespace sprout
