// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "core/Song.h"
#include "main_window/StripControls.h"
#include "main_window/rules/TitleStrip.h"

namespace sprout {

/// Which of the buttons float over a row of the title strip, and where, while the pointer is there or a key chose one.
class RowButtons {
public:
    /// The controls outlive this object or die with it.
    explicit RowButtons(const StripControls& controls);

    /// Shows these buttons at their places and hides the others. song: has the track over which they float.
    void Place(const FloatingButtons& shown, const SongState& song);
    /// Hides all; the track stays the hovered one. Returns whether any was visible.
    bool Hide();
    /// Gives the tune button the tune of its track, or hides it and returns false if the track is gone.
    bool RefreshTune(const SongState& song);

    /// The track under the pointer or chosen by key; 0 for none.
    [[nodiscard]] std::int32_t HoverTrack() const { return hoverTrack; }
    /// True from the `Place` of a button until the next `Hide`.
    [[nodiscard]] bool AreShown() const { return overlayShown; }
    /// The first of the buttons that is visible, nullptr if none is.
    [[nodiscard]] QAbstractButton* Visible() const;

private:
    TrackTuneBtn& tuneBtn;
    std::array<QAbstractButton*, 4> buttons; ///< tune, audio, delete and play
    std::int32_t hoverTrack = 0;
    bool overlayShown = false;
};

} // namespace sprout
