// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "base/WaveData.h"
#include "base/Words.h"
#include "recording/rules/WaveEdits.h"
#include "recording/rules/WavePoints.h"
#include "recording/rules/WaveSelection.h"
#include "recording/rules/WaveView.h"

namespace sprout {

/// A sound while it is edited: the wave, the part of it that is in view, the selection and the cursor. Widths and
/// places are those of its picture, in logical pixels.
class WaveEditor {
public:
    /// Starts to edit a sound, of which the next drawing shows all. Copies no samples.
    void Load(WaveData sound);

    [[nodiscard]] const WaveData& Wave() const { return wave; }
    /// The wave is no longer the one that was loaded.
    [[nodiscard]] bool IsChanged() const { return changed; }

    /// Fits the view to a picture and returns what the picture shows.
    [[nodiscard]] WaveDrawing Draw(WavePicSize size);
    /// Left edge of the play marker for a sample, `kMarkerOutOfSight` if it is not in the picture.
    [[nodiscard]] std::int32_t MarkerLeft(std::int32_t sample, std::int32_t width) const;

    /// True if at least two samples are selected.
    [[nodiscard]] bool HasSelection() const;
    /// True if there is nothing beside the selection.
    [[nodiscard]] bool SelectsAll() const;
    /// The selection in words.
    [[nodiscard]] Words Spoken() const;

    /// The mouse at x: pressed, dragged and released. The band is what lies over the picture from then on.
    WaveBand Press(double x, std::int32_t width);
    [[nodiscard]] WaveBand Drag(double x, std::int32_t width) const;
    void Release(double x, std::int32_t width);

    void Move(WaveMove move, WaveKeep keep);
    void SelectAll();

    /// scroll: value of the scroll bar, 0 to 100.
    void Scroll(std::int32_t scroll);
    void Zoom(WaveZoom which, std::int32_t width, std::int32_t scroll);

    /// Changes the volume of the selection, which must be there.
    void ChangeVolume(VolumeChange change);
    /// Cuts out the selection, which must be there and not be the whole wave. Nothing is selected then.
    void Cut();

private:
    WaveData wave;
    WaveView view;
    WaveDrag drag;
    WaveCursor cursor;
    bool changed = false;
};

} // namespace sprout
