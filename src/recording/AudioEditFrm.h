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

/// The small editor of one audio track's sound. What is edited is a copy, which `OkBtn` writes back to the track.
///
/// It is made for each opening: `UpdateFormWithCurrentTrack`, `ShowModal`, then `TrackWasChanged`.
class AudioEditFrm : public BandedForm {
    Q_OBJECT

public:
    explicit AudioEditFrm(QWidget* parent);
    AudioEditFrm(const AudioEditFrm&) = delete;
    AudioEditFrm& operator=(const AudioEditFrm&) = delete;
    ~AudioEditFrm() override;

    /// Loads the sound of a track, the empty wave where it has none, and shows the whole of it. No sample is copied.
    void UpdateFormWithCurrentTrack(std::int32_t track);

    /// Puts the play marker where the sound in play is, out of sight where that is not the sound of this window.
    void UpdatePlayPointer();

    /// The window was left with OK.
    bool Ok = false;

    /// The window was left with OK, and the track has another sound now: its row is to be drawn anew.
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
    bool scrollGuard = false; ///< the program moves `HScroll`
};

/// Lets the editor, if it is open, follow the sound in play.
void UpdatePlayPointer();

} // namespace sprout
