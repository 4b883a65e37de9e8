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

/// What the canvas asks of the window that it lies in. Each is called from an event of the user's.
struct TrackCanvasCalls {
    std::function<void(std::int32_t cell)> PlaySongFrom;
    std::function<void(std::int32_t track, std::int32_t cell)> PlayTrackFrom;
    std::function<void()> EnableTrackTitlePlayTimer; ///< a stroke begins, or a tune or audio button is hovered
    std::function<void()> PlayOrStop;                ///< the space bar
    std::function<void(std::string_view)> ShowCell;  ///< the text of `TrackMouPosLbl`
    // Clicks on the buttons of the canvas.
    std::function<void()> TrackPlayBtn, TrackDeleteBtn, TrackTuneBtn, TrackAudioBtn, TrackAddBtn, TrackAddRecBtn;
};

/// `TrackFramePic`: the song as rows. It holds the title strip (`TrackTitlePic`), the painting surface with the time
/// band (`TrackPic`), both scroll bars, the buttons of the rows and the markers of the play position; it draws the
/// shared song and lets the user paint it.
///
/// The wheel scrolls by rows, with Shift sideways. With the focus on `TrackPic` the arrow keys, Page Up and Page Down,
/// Home and End scroll and the space bar plays and stops. With Ctrl the arrow keys move the cell cursor, with Ctrl and
/// Shift they draw a stroke until one of the two is let go; with Shift, Page Up and Page Down move the cursor by a
/// group of cells. Enter is a press of the mouse on that cell. `TrackTitlePic` tells of its own keys.
class TrackCanvas : public QWidget {
    Q_OBJECT

public:
    /// buttons: the window's; the buttons of the canvas are added to it.
    TrackCanvas(QWidget* parent, ButtonScheme& buttons, TrackCanvasCalls calls);

    /// Places everything and has the surfaces drawn when they are shown next: as often as it is called, once.
    void DrawTracksAll();
    void DrawTrackOne(std::int32_t track);
    void DrawTrackTop();
    void HideTrackButtons();

    /// The tool that presses and drags use from now on; its pointer follows.
    void SetCurrentTool(Tool tool);
    [[nodiscard]] Tool CurrentTool() const;

    /// Track under the pointer in the title strip, 0 for none.
    [[nodiscard]] std::int32_t HoverTrack() const;
    [[nodiscard]] bool TrackTuneBtnVisible() const;
    [[nodiscard]] bool TrackAudioBtnVisible() const;
    /// Track that is painted with the brush at this moment, 0 for none.
    [[nodiscard]] std::int32_t BrushedTrack() const;

    [[nodiscard]] TrackView View() const;
    /// Another song is shown: from its first track and cell on.
    void ShowFromStart();
    /// Draws everything with the last row and the buttons below it in view.
    void ShowAddedTrack();

    /// A play begins whose marker is kept in view, until the user draws a stroke or scrolls sideways.
    void BeginFollowing();
    /// Brings a marker's cell into view where the play is followed; not while a mouse button is held.
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
    std::int32_t keyTrack = 1; ///< of the cell that keys work on, 0 for the time band
    std::int32_t keyCell = 1;
    PointerImage pointerImage = PointerImage::Default;
    TrackTitlePic* titlePic = nullptr;
    TrackPic* trackPic = nullptr;
    QScrollBar* vScroll = nullptr;
    QScrollBar* hScroll = nullptr;
    std::optional<FollowedEdges> followed; ///< beyond which a play is followed; none: it is not
    QPoint wheelRest;                      ///< turned since the last whole notch, in eighths of a degree
};

/// Stops the player and hides its markers at once: the window that a command opens may play a sound of its own, behind
/// which they would stand.
void StopPlay(TrackCanvas& canvas);

} // namespace sprout
