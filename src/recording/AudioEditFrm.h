// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "recording/rules/WaveEdits.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

class EditedSound;

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
    [[nodiscard]] bool TrackWasChanged() const;

    /// Sizes the window for a screen with this much room.
    void FitTo(QSize room);

    /// Acts as `CancelBtn`.
    void reject() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct CommandRow;

    void MakeSound();
    void MakeButtons();
    void SetTabOrders();

    [[nodiscard]] bool HasSelection();
    void ChangeVolume(VolumeChange change);
    void PlayEditWave();
    void DeleteBtn();
    void OkBtn();
    void CancelBtn();

    EditedSound* sound;
    QLabel* SelectOkLbl = nullptr;
    QLabel* SelectedLbl = nullptr;
    std::int32_t trackNumber = 0;
};

/// Makes the editor, if it is open, follow the sound that is playing.
void UpdatePlayPointer();

} // namespace sprout
