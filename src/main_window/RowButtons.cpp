// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/RowButtons.h"

namespace sprout {

namespace {

constexpr int kPictureButtonLeft = kTrackPictureLeft - 1;

} // namespace

RowButtons::RowButtons(const StripControls& controls)
    : tuneBtn(*controls.tuneBtn), buttons{controls.tuneBtn, controls.audioBtn, controls.deleteBtn, controls.playBtn}
{
}

void RowButtons::Place(const FloatingButtons& shown, const SongState& song)
{
    hoverTrack = shown.HoverTrack;
    if (shown.TrackTuneBtn)
        tuneBtn.SetTune(At(song.Tracks, hoverTrack).TrackTune);
    const auto place = [](QWidget& button, bool visible, int x, int y) {
        if (visible)
            button.move(x, y);
        button.setVisible(visible);
    };
    place(*buttons[0], shown.TrackTuneBtn, kPictureButtonLeft, shown.pictureButtonTop);
    place(*buttons[1], shown.TrackAudioBtn, kPictureButtonLeft, shown.pictureButtonTop);
    place(*buttons[2], shown.TrackDeleteBtn, kDeleteButtonLeft, shown.deleteButtonTop);
    place(*buttons[3], shown.TrackPlayBtn, kPlayPicLeft, shown.playButtonTop);
    overlayShown = shown.OverlayShown();
}

bool RowButtons::Hide()
{
    if (!overlayShown)
        return false;
    for (QAbstractButton* button : buttons)
        button->hide();
    overlayShown = false;
    return true;
}

bool RowButtons::RefreshTune(const SongState& song)
{
    if (hoverTrack < 1 || hoverTrack > song.TrackCount) {
        tuneBtn.hide();
        return false;
    }
    tuneBtn.SetTune(At(song.Tracks, hoverTrack).TrackTune);
    return true;
}

QAbstractButton* RowButtons::Visible() const
{
    for (QAbstractButton* button : buttons)
        if (button->isVisible())
            return button;
    return nullptr;
}

} // namespace sprout
