// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/WaveData.h"
#include "recording/rules/WaveEdits.h"
#include "recording/rules/WaveSelection.h"
#include "recording/rules/WaveView.h"
#include "ui/BandedForm.h"

class QScrollBar;

namespace sprout {

class WavePic;

/// The small editor of one audio track's sound. It edits a copy, which `OkBtn` writes back to the track.
///
/// A new one is made for each opening: `UpdateFormWithCurrentTrack`, `ShowModal`, then `TrackWasChanged`.
class AudioEditFrm : public BandedForm {
    Q_OBJECT

public:
    explicit AudioEditFrm(QWidget* parent);
    AudioEditFrm(const AudioEditFrm&) = delete;
    AudioEditFrm& operator=(const AudioEditFrm&) = delete;
    ~AudioEditFrm() override;

    /// Loads a track's sound, or the empty wave if it has none, and shows all of it. Copies no samples.
    void UpdateFormWithCurrentTrack(std::int32_t track);

    /// Moves the play marker to the current place, or out of sight if another sound is playing.
    void UpdatePlayPointer();

    /// The window was left with OK.
    bool Ok = false;

    /// The window was left with OK and the track's sound has changed, so its row must be redrawn.
    [[nodiscard]] bool TrackWasChanged() const { return Ok && changed; }

    /// Sizes the window for a screen with this much room.
    void FitTo(QSize room);

    /// Acts as `CancelBtn`.
    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct CommandRow;

    void MakePicture();
    void MakeScroll();
    void MakeButtons();
    void SetTabOrders();
    void PlaceTools(int left, int top, int side, int right);
    void PlaceAnswers(int left, int top);

    void DrawWaveform();
    void ShowSelection();
    [[nodiscard]] bool HasSelection();

    void PressPicture(double x);
    void DragPicture(double x);
    void ReleasePicture(double x);
    void MoveCursorTo(WaveMove move, WaveKeep keep);
    void SelectAll();
    void Scroll();

    void ChangeVolume(VolumeChange change);
    void ZoomWave(WaveZoom which);
    void PlayEditWave();
    void DeleteBtn();
    void OkBtn();
    void CancelBtn();

    WavePic* wavePic = nullptr;
    QScrollBar* HScroll = nullptr;
    QLabel* SelectOkLbl = nullptr;
    QLabel* SelectedLbl = nullptr;

    std::int32_t trackNumber = 0;
    WaveData editWave;
    WaveView view;
    WaveDrag drag;
    WaveCursor cursor;
    bool changed = false;
    bool scrollGuard = false; ///< the program is moving `HScroll`
};

/// Makes the editor, if it is open, follow the sound that is playing.
void UpdatePlayPointer();

} // namespace sprout
